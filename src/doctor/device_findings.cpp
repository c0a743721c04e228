#include "doctor/device_findings.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "base/byte_text.h"
#include "serial/adapter_latency.h"
#include "serial/open_diagnosis.h"

namespace velmora {
namespace {

Cause causeOf(OpenFailureKind failure) {
    switch (failure) {
        case OpenFailureKind::Absent:
            return Cause::DeviceMissing;
        case OpenFailureKind::NoPermission:
            return Cause::NoPermission;
        case OpenFailureKind::Busy:
            return Cause::DeviceBusy;
        case OpenFailureKind::Settings:
            return Cause::SettingsRefused;
        case OpenFailureKind::Failed:
            break;
    }
    return Cause::DeviceFailed;
}

std::string chipWords(const PortIdentity& adapter) {
    std::string text = adapter.chip.empty() ? adapter.product : adapter.chip;
    if (text.empty()) {
        text = "The port";
    }
    return text + (adapter.driver.empty() ? "" : ", driver " + adapter.driver);
}

}  // namespace

Verdict judgeOpening(const ExaminedDevice& device, SystemError error) {
    return {causeOf(openFailureKind(error, device.facts)), 95,
            describeOpenFailure(device.name, error, device.facts, device.holder)};
}

bool isCopy(const PortIdentity& adapter) {
    // A driver has taken the product number from such chips, so that nothing uses them.
    const bool unmarked = adapter.vendorId == "0403" && adapter.productId == "0000";
    // What a driver calls chips that it does not work with.
    constexpr std::array<std::string_view, 2> kMarks = {"PHASED OUT", "THIS IS NOT"};
    const std::string product = upperCase(adapter.product);
    bool marked = false;
    for (const std::string_view mark : kMarks) {
        marked = marked || product.find(mark) != product.npos;
    }
    return unmarked || marked;
}

StepFinding adapterFinding(const ExaminedDevice& device, const LineSettings& wanted) {
    const PortIdentity& adapter = device.identity;
    if (isCopy(adapter)) {
        return {DoctorStep::Adapter, StepStatus::Noted,
                chipWords(adapter) + ": the chip is a copy or too old, and its driver may refuse it."};
    }
    if (device.latency && latencyMatters(*device.latency, wanted)) {
        return {DoctorStep::Adapter, StepStatus::Noted, latencyAdvice(device.name, *device.latency)};
    }
    if (adapter.driver.empty() && adapter.chip.empty() && adapter.product.empty()) {
        return {DoctorStep::Adapter, StepStatus::Unknown,
                "The system does not tell what is behind the port."};
    }
    return {DoctorStep::Adapter, StepStatus::Well, chipWords(adapter) + "."};
}

StepFinding modemLinesFinding(std::optional<std::uint32_t> lines) {
    constexpr std::array<std::pair<std::uint32_t, std::string_view>, 4> kLines = {
        {{kCtsOn, "CTS"}, {kDsrOn, "DSR"}, {kCarrierOn, "DCD"}, {kRingOn, "RI"}}};
    if (!lines) {
        return {DoctorStep::ModemLines, StepStatus::Unknown, "The device has no modem lines."};
    }
    std::string on;
    for (const auto& [bit, name] : kLines) {
        if ((*lines & bit) != 0) {
            on += (on.empty() ? "" : ", ") + std::string(name);
        }
    }
    if (on.empty()) {
        return {DoctorStep::ModemLines, StepStatus::Noted,
                "No line is on: nothing is connected or switched on, or the cable has only three wires."};
    }
    return {DoctorStep::ModemLines, StepStatus::Well,
            on + " on: something is connected and switched on at the other end."};
}

}  // namespace velmora
