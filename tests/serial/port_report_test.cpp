#include "serial/port_report.h"

#include <gtest/gtest.h>

#include "serial/port_names.h"
#include "support/example_adapter.h"

namespace velmora {
namespace {

PortIdentity standardPort() {
    PortIdentity port;
    port.number = 1;
    port.device = "/dev/ttyS0";
    port.driver = "serial";
    port.mayOpen = true;
    return port;
}

PortIdentity adapter() {
    PortIdentity port = test::exampleAdapter();
    port.serial = "A5";
    port.chip = "FT232R";
    port.holder = "minicom (process 12)";
    return port;
}

TEST(PortReportTest, TheTableHasALineForEachPortAndAlignsItsColumns) {
    EXPECT_EQ(
        portTable({standardPort(), adapter()}),
        "Port  Device        Adapter               State                           Lasting name for --port\n"
        "COM1  /dev/ttyS0    serial                free                            COM1\n"
        "COM5  /dev/ttyUSB0  FTDI FT232R USB UART  in use by minicom (process 12)  usb:0403:6001:A5\n");
}

TEST(PortReportTest, AColumnIsAsWideAsItsCharactersNotItsBytes) {
    PortIdentity port = adapter();
    port.product =
        "c\xC3\xA2"
        "ble s\xC3\xA9rie";
    const std::string table = portTable({port});
    const std::size_t head = table.find("State");
    const std::size_t line = table.find('\n') + 1;
    const std::size_t accents = 2;  // a byte more each
    EXPECT_EQ(table.find("in use by", line) - line, head + accents) << table;
}

TEST(PortReportTest, ThePortThatMayNotBeOpenedSaysWhichGroupToJoin) {
    PortIdentity port = standardPort();
    port.mayOpen = false;
    EXPECT_NE(portTable({port}).find("may not be opened"), std::string::npos);
    port.groupToJoin = "dialout";
    EXPECT_NE(portTable({port}).find("join the group \"dialout\""), std::string::npos);
}

TEST(PortReportTest, ADeviceWithoutALastingNumberIsNamedByItself) {
    PortIdentity port = standardPort();
    port.device = "/dev/ttyAMA0";
    port.number = PortNames::firstFreeNumber();
    EXPECT_EQ(portTable({port}),
              "Port  Device        Adapter  State  Lasting name for --port\n"
              "      /dev/ttyAMA0  serial   free   /dev/ttyAMA0\n");
}

TEST(PortReportTest, ADeviceWithoutANumberHasNone) {
    PortIdentity port = standardPort();
    port.number = 0;
    EXPECT_NE(portsAsJson({port}).find("\"port\": \"\",\n    \"number\": 0,"), std::string::npos);
}

TEST(PortReportTest, AChipThatTheAdapterDoesNotNameStandsBehindIt) {
    PortIdentity port = adapter();
    port.product = "UART";
    EXPECT_NE(portTable({port}).find("FTDI UART, FT232R"), std::string::npos);
    port.maker.clear();
    port.product.clear();
    EXPECT_NE(portTable({port}).find("/dev/ttyUSB0  FT232R "), std::string::npos);
}

TEST(PortReportTest, WhatAnAdapterTellsOfItselfCannotBreakALine) {
    PortIdentity port = adapter();
    port.product = "evil\nCOM9  free";
    EXPECT_NE(portTable({port}).find("FTDI evil<0A>COM9  free"), std::string::npos);
}

TEST(PortReportTest, WithoutPortsThereIsASentenceAndAnEmptyArray) {
    EXPECT_EQ(portTable({}), "No serial port is present.\n");
    EXPECT_EQ(portsAsJson({}), "[]\n");
}

TEST(PortReportTest, TheArrayHasEveryMemberOfEachPort) {
    const std::string expected = R"json([
  {
    "port": "COM5",
    "number": 5,
    "name": "usb:0403:6001:A5",
    "device": "/dev/ttyUSB0",
    "stableName": "",
    "vendorId": "0403",
    "productId": "6001",
    "serial": "A5",
    "socket": "",
    "maker": "FTDI",
    "product": "FT232R USB UART",
    "driver": "",
    "chip": "FT232R",
    "holder": "minicom (process 12)",
    "groupToJoin": "",
    "mayOpen": true
  }
]
)json";
    EXPECT_EQ(portsAsJson({adapter()}), expected);
}

TEST(PortReportTest, BytesThatAreNoUtf8StillGiveValidJson) {
    PortIdentity port = adapter();
    port.product = "bad \xFF byte \"quoted\"";
    const std::string json = portsAsJson({port});
    EXPECT_NE(json.find("byte \\\"quoted\\\""), std::string::npos);
    EXPECT_EQ(json.find('\xFF'), std::string::npos);
}

}  // namespace
}  // namespace velmora
