// The errors that a serial port can end with, the same on every system: what the plain layer records and what
// the public layer raises.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "serial/my_comm.h"
#include "support/comm_error_of.h"
#include "support/no_yield.h"

namespace velmora::test {

/// The ports that the situations need, by their numbers. 0: this machine has no such port.
struct SerialErrorPorts {
    std::int16_t working = 0;  ///< can be opened
    std::int16_t missing = 0;  ///< does not exist
    std::int16_t held = 0;     ///< another program or object has it open
};

struct SerialErrorCase {
    const char* name;
    std::int16_t SerialErrorPorts::*port;
    const char* settings;
    /// Called first; what it raises does not count.
    std::function<void(myComm&)> before;
    std::function<void(myComm&)> action;
    std::int32_t plainNumber;  ///< recorded by the plain layer; 0: it was not asked
    const char* plainSource;
    std::int32_t raisedNumber;
    const char* raisedText;
};

inline void PrintTo(const SerialErrorCase& row, std::ostream* stream) {
    *stream << row.name;
}

/// The table. "fast" is no mode string anywhere.
inline auto serialErrorCases() {
    using Ports = SerialErrorPorts;
    constexpr const char* good = "9600,N,8,1";
    const auto nothing = [](myComm&) {};
    const auto open = [](myComm& port) { port.OpenPort(); };
    const auto close = [](myComm& port) {
        port.OpenPort();
        port.ClosePort();
    };
    const auto set = [](myComm& port) { port.setSettings("2400,N,8,1"); };
    const auto send = [](myComm& port) { port.Send("x"); };
    const auto get = [](myComm& port) {
        std::string text;
        port.GetInput(1, text);
    };
    const auto openProperty = [](myComm& port) { port.setPortOpen(true); };
    return ::testing::Values(
        SerialErrorCase{"MissingPort", &Ports::missing, good, nothing, open, 2, "CommOpen (CreateFile)", 8002,
                        "Invalid port number"},
        SerialErrorCase{"MissingPortByProperty", &Ports::missing, good, nothing, openProperty, 2,
                        "CommOpen (CreateFile)", 8002, "Invalid port number"},
        SerialErrorCase{"MissingPortAgain", &Ports::missing, good, open, open, 2, "CommOpen (CreateFile)",
                        8002, "Invalid port number"},
        SerialErrorCase{"HeldPort", &Ports::held, good, nothing, open, 5, "CommOpen (CreateFile)", 8005,
                        "Port already open"},
        SerialErrorCase{"BadModeString", &Ports::working, "fast", nothing, open, 87,
                        "CommOpen (BuildCommDCB)", 380, "Invalid port settings"},
        SerialErrorCase{"ImpossibleDataBits", &Ports::working, "9600,N,9,1", nothing, open, 87,
                        "CommOpen (BuildCommDCB)", 380, "Invalid port settings"},
        SerialErrorCase{"OpenAfterAFailedStep", &Ports::working, "fast", open, open, -1, "CommOpen", -1,
                        "Error (-1): CommOpen - Port in use"},
        SerialErrorCase{"OpenWhileOpen", &Ports::working, good, open, open, 0, "", 8005, "Port already open"},
        SerialErrorCase{"SettingsWhileOpen", &Ports::working, good, open, set, 0, "", 8000,
                        "Port already open"},
        SerialErrorCase{"SendWhileNotOpen", &Ports::working, good, nothing, send, 0, "", 8018,
                        "Port not open"},
        SerialErrorCase{"InputWhileNotOpen", &Ports::working, good, nothing, get, 0, "", 8018,
                        "Port not open"},
        SerialErrorCase{"SendAfterClosing", &Ports::working, good, close, send, 0, "", 8018,
                        "Port not open"});
}

/// Brings one situation about with this system's device and compares every number and text.
inline void checkSerialError(const SerialErrorCase& row, const SerialErrorPorts& ports,
                             const PortNames& names) {
    if (ports.*row.port == 0) {
        GTEST_SKIP() << "this machine has no such port";
    }
    NoYield yield;
    const std::unique_ptr<CommDevice> device = makeCommDevice(names);
    myComm port{*device, yield};
    port.setCommPort(ports.*row.port);
    port.setSettings(row.settings);
    commErrorOf([&] { row.before(port); });
    const std::optional<CommError> error = commErrorOf([&] { row.action(port); });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->number(), row.raisedNumber);
    EXPECT_EQ(error->description(), row.raisedText);
    EXPECT_EQ(port.lastErrorNumber(), row.plainNumber);
    const std::string start = "Error (" + std::to_string(row.plainNumber) + "): " + row.plainSource + " - ";
    EXPECT_TRUE(port.lastErrorDescription().starts_with(start)) << port.lastErrorDescription();
}

}  // namespace velmora::test
