#include "doctor/device_findings.h"

#include <gtest/gtest.h>

#include <chrono>

#include "serial/adapter_latency.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

ExaminedDevice presentDevice() {
    ExaminedDevice device;
    device.name = "/dev/ttyUSB0";
    device.facts.exists = true;
    device.facts.mayOpen = true;
    return device;
}

TEST(DeviceFindingsTest, EachFailureToOpenHasItsCause) {
    ExaminedDevice device = presentDevice();
    device.holder = "minicom (process 7)";
    EXPECT_EQ(judgeOpening(device, kNoSuchPort).cause, Cause::DeviceMissing);
    EXPECT_EQ(judgeOpening(device, kInvalidParameter).cause, Cause::SettingsRefused);
    EXPECT_EQ(judgeOpening(device, kDeviceFailed).cause, Cause::DeviceFailed);
    const Verdict busy = judgeOpening(device, kPortInUse);
    EXPECT_EQ(busy.cause, Cause::DeviceBusy);
    EXPECT_EQ(busy.detail, "/dev/ttyUSB0 is in use by minicom (process 7).");
    device.facts.mayOpen = false;
    EXPECT_EQ(judgeOpening(device, 13).cause, Cause::NoPermission);
}

TEST(DeviceFindingsTest, TheAdapterIsDescribed) {
    ExaminedDevice device = presentDevice();
    EXPECT_EQ(adapterFinding(device, LineSettings()).status, StepStatus::Unknown);
    device.identity.product = "USB Serial";
    EXPECT_EQ(adapterFinding(device, LineSettings()).text, "USB Serial.");
    device.identity.driver = "ch341";
    EXPECT_EQ(adapterFinding(device, LineSettings()).text, "USB Serial, driver ch341.");
    device.identity.chip = "CH340";
    const StepFinding finding = adapterFinding(device, LineSettings());
    EXPECT_EQ(finding.text, "CH340, driver ch341.");
    EXPECT_EQ(finding.status, StepStatus::Well);
    device.identity = {};
    device.identity.driver = "serial8250";
    EXPECT_EQ(adapterFinding(device, LineSettings()).text, "The port, driver serial8250.");
}

TEST(DeviceFindingsTest, ASlowAdapterIsNotedWithWhatHelps) {
    ExaminedDevice device = presentDevice();
    device.latency = 16ms;
    const StepFinding finding = adapterFinding(device, LineSettings());
    EXPECT_EQ(finding.status, StepStatus::Noted);
    EXPECT_EQ(finding.text, latencyAdvice(device.name, 16ms));
    device.latency = 1ms;
    EXPECT_EQ(adapterFinding(device, LineSettings()).status, StepStatus::Unknown);
}

TEST(DeviceFindingsTest, ACopyIsNoted) {
    ExaminedDevice device = presentDevice();
    device.identity.vendorId = "0403";
    device.identity.productId = "6001";
    EXPECT_FALSE(isCopy(device.identity));
    device.identity.productId = "0000";
    EXPECT_TRUE(isCopy(device.identity));
    device.identity.vendorId = "067b";
    EXPECT_FALSE(isCopy(device.identity));
    device.identity.product = "Adapter, phased out since 2012";
    EXPECT_TRUE(isCopy(device.identity));
    EXPECT_EQ(adapterFinding(device, LineSettings()).status, StepStatus::Noted);
}

TEST(DeviceFindingsTest, ModemLinesAreRead) {
    EXPECT_EQ(modemLinesFinding(std::nullopt).status, StepStatus::Unknown);
    EXPECT_EQ(modemLinesFinding(0).status, StepStatus::Noted);
    EXPECT_EQ(modemLinesFinding(kCtsOn | kRingOn).text,
              "CTS, RI on: something is connected and switched on at the other end.");
}

}  // namespace
}  // namespace velmora
