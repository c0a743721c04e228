#include "serial/adapter_key.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "serial/adapter_chips.h"

namespace velmora {
namespace {

using ::testing::SizeIs;

PortIdentity adapter(const std::string& device, const std::string& serial, const std::string& socket) {
    PortIdentity port;
    port.device = device;
    port.vendorId = "0403";
    port.productId = "6001";
    port.serial = serial;
    port.socket = socket;
    return port;
}

std::string keyTextOf(const PortIdentity& port, const std::vector<PortIdentity>& present) {
    const std::optional<AdapterKey> key = keyOf(port, present);
    return key ? key->text() : "none";
}

TEST(AdapterKeyTest, AnAdapterIsRecognisedByItsSerialNumber) {
    const PortIdentity one = adapter("/dev/ttyUSB0", "A5", "usb-1:1.0");
    EXPECT_EQ(keyTextOf(one, {one}), "0403:6001:A5");
}

TEST(AdapterKeyTest, WithoutASerialNumberItIsRecognisedByItsSocket) {
    const PortIdentity one = adapter("/dev/ttyUSB0", "", "pci-0000:00:14.0-usb-0:2:1.0");
    EXPECT_EQ(keyTextOf(one, {one}), "0403:6001:@pci-0000:00:14.0-usb-0:2:1.0");
}

TEST(AdapterKeyTest, TwoWithTheSameSerialNumberAreToldByTheirSockets) {
    const PortIdentity one = adapter("/dev/ttyUSB0", "0001", "usb-1:1.0");
    const PortIdentity other = adapter("/dev/ttyUSB1", "0001", "usb-2:1.0");
    EXPECT_EQ(keyTextOf(one, {one, other}), "0403:6001:@usb-1:1.0");
    EXPECT_EQ(keyTextOf(other, {one, other}), "0403:6001:@usb-2:1.0");
}

TEST(AdapterKeyTest, WhatCannotBeToldFromAnotherHasNoKey) {
    const PortIdentity one = adapter("/dev/ttyUSB0", "0001", "usb-1:1.0");
    const PortIdentity twin = adapter("/dev/ttyUSB1", "0001", "usb-1:1.0");
    EXPECT_EQ(keyTextOf(one, {one, twin}), "none");
    PortIdentity standard;
    standard.device = "/dev/ttyS0";
    EXPECT_EQ(keyTextOf(standard, {standard}), "none");
    const PortIdentity bare = adapter("/dev/ttyUSB0", "", "");
    EXPECT_EQ(keyTextOf(bare, {bare}), "none");
}

TEST(AdapterKeyTest, ASerialNumberThatLooksLikeASocketIsNotUsed) {
    const PortIdentity odd = adapter("/dev/ttyUSB0", "@home", "usb-1:1.0");
    EXPECT_EQ(keyTextOf(odd, {odd}), "0403:6001:@usb-1:1.0");
}

TEST(AdapterKeyTest, ATextIsReadBack) {
    for (const char* text : {"0403:6001:A5", "1a86:7523:@pci-0000:00:14.0-usb-0:2:1.0", "0403:6001:a:b"}) {
        const std::optional<AdapterKey> key = adapterKey(text);
        ASSERT_TRUE(key) << text;
        EXPECT_EQ(key->text(), text);
    }
    EXPECT_EQ(adapterKey("1A86:7523:X")->text(), "1a86:7523:X");
}

TEST(AdapterKeyTest, OtherTextsAreNoKeys) {
    for (const char* text : {"", "COM5", "0403:6001", "0403:6001:", "0403:6001:@", "403:6001:A",
                             "0403:600g:A", "0403::A", "/dev/ttyUSB0"}) {
        EXPECT_FALSE(adapterKey(text)) << text;
    }
}

TEST(AdapterKeyTest, CapitalsDoNotMatter) {
    EXPECT_TRUE(adapterKey("0403:6001:a50285bi")->matches(adapter("x", "A50285BI", "")));
    EXPECT_FALSE(adapterKey("0403:6001:A5")->matches(adapter("x", "A50285BI", "")));
    EXPECT_FALSE(adapterKey("0403:6015:A5")->matches(adapter("x", "A5", "")));
}

TEST(AdapterKeyTest, ANameOfAnAdapterBeginsWithUsb) {
    EXPECT_EQ(adapterKeyOfName("usb:0403:6001:A5")->text(), "0403:6001:A5");
    EXPECT_EQ(adapterName(*adapterKeyOfName("USB:0403:6001:A5")), "usb:0403:6001:A5");
    EXPECT_FALSE(adapterKeyOfName("0403:6001:A5"));
    EXPECT_TRUE(namesAdapter("usb:nonsense"));
    EXPECT_FALSE(adapterKeyOfName("usb:nonsense"));
    EXPECT_FALSE(namesAdapter("/dev/ttyUSB0"));
}

TEST(AdapterKeyTest, AKeyThatMatchesTwoPortsNamesBoth) {
    const std::vector<PortIdentity> ports{adapter("/dev/ttyUSB0", "0001", "usb-1:1.0"),
                                          adapter("/dev/ttyUSB1", "0001", "usb-2:1.0")};
    const AdapterKey key = *adapterKey("0403:6001:0001");
    EXPECT_THAT(portsMatching(key, ports), SizeIs(2));
    EXPECT_EQ(severalSentence(key, portsMatching(key, ports)),
              "usb:0403:6001:0001 is /dev/ttyUSB0 and /dev/ttyUSB1; none of them is taken. Name the device "
              "instead.");
}

TEST(AdapterChipsTest, KnowsTheUsualChipsAndNoOthers) {
    EXPECT_EQ(adapterChip("0403", "6001"), "FT232R");
    EXPECT_EQ(adapterChip("1a86", "7523"), "CH340");
    EXPECT_EQ(adapterChip("0403", "ffff"), "");
}

TEST(AdapterKeyTest, AMakerAloneNamesNoAdapter) {
    PortIdentity port;
    port.vendorId = "0403";
    port.serial = "A50285BI";
    EXPECT_EQ(keyOf(port, {port}), std::nullopt);
}

}  // namespace
}  // namespace velmora
