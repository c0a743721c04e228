#include <gtest/gtest.h>
#include <windows.h>

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

#include "organiser/command_line.h"
#include "organiser/serial_line.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

std::string nameFromEnvironment(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr ? value : "";
}

std::string problemWith(const std::string& device, int baud = 9600) {
    try {
        const SerialLine line(device, baud);
    } catch (const LineError& error) {
        return error.what();
    }
    return "";
}

/// A port that is opened and nothing else.
class PlainPort {
  public:
    explicit PlainPort(const std::string& port)
        : handle_(CreateFileA(("\\\\.\\" + port).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~PlainPort() { CloseHandle(handle_); }
    PlainPort(const PlainPort&) = delete;
    PlainPort& operator=(const PlainPort&) = delete;

    DCB settings() const {
        DCB settings{};
        settings.DCBlength = sizeof settings;
        EXPECT_TRUE(GetCommState(handle_, &settings));
        return settings;
    }
    /// One byte, zero when none comes within five seconds.
    char readOne() const {
        COMMTIMEOUTS timeouts{};
        timeouts.ReadTotalTimeoutConstant = 5'000;
        char byte = 0;
        DWORD count = 0;
        EXPECT_TRUE(SetCommTimeouts(handle_, &timeouts));
        EXPECT_TRUE(ReadFile(handle_, &byte, 1, &count, nullptr));
        return byte;
    }

  private:
    HANDLE handle_;
};

/// Two ports that a cable joins. Their names come from outside: no machine has them of itself.
class SerialLineWin32Test : public testing::Test {
  protected:
    void SetUp() override {
        if (here.empty() || there.empty()) {
            GTEST_SKIP() << "VELMORA_TEST_PORT and VELMORA_TEST_FAR_PORT name no ports";
        }
    }

    static std::string readAll(SerialLine& line, std::size_t count) {
        std::string bytes;
        while (bytes.size() < count) {
            const std::string part = line.read(line.now() + 2s);
            if (part.empty()) {
                break;
            }
            bytes += part;
        }
        return bytes;
    }
    const std::string here = nameFromEnvironment("VELMORA_TEST_PORT");
    const std::string there = nameFromEnvironment("VELMORA_TEST_FAR_PORT");
};

TEST_F(SerialLineWin32Test, EveryByteValuePassesBothWays) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    SerialLine line(here, 9600);
    SerialLine other(there, 9600);
    line.write(bytes);
    EXPECT_EQ(readAll(other, bytes.size()), bytes);
    other.write(bytes);
    EXPECT_EQ(readAll(line, bytes.size()), bytes);
}

TEST_F(SerialLineWin32Test, MoreThanTheQueueHoldsArrivesWhole) {
    std::string bytes;
    for (int i = 0; i < 9'000; ++i) {
        bytes += static_cast<char>(i * 7);
    }
    SerialLine line(here, 115'200);
    SerialLine other(there, 115'200);
    std::string got;
    for (std::size_t sent = 0; sent < bytes.size(); sent += 300) {
        line.write(std::string_view(bytes).substr(sent, 300));
        got += readAll(other, 300);
    }
    EXPECT_EQ(got, bytes);
}

TEST_F(SerialLineWin32Test, ReadEndsAtItsDeadline) {
    SerialLine line(here, 9600);
    const auto begin = line.now();
    EXPECT_EQ(line.read(begin + 20ms), "");
    EXPECT_GE(line.now() - begin, 20ms);
    EXPECT_EQ(line.read(begin), "");
}

TEST_F(SerialLineWin32Test, ReadEndsLongBeforeItsDeadlineWhenBytesAreThere) {
    SerialLine line(here, 9600);
    SerialLine other(there, 9600);
    const auto begin = line.now();
    other.write("x");
    EXPECT_EQ(line.read(begin + 30s), "x");
    EXPECT_LT(line.now() - begin, 10s);
}

TEST_F(SerialLineWin32Test, BytesFromBeforeTheOpeningAreForgotten) {
    SerialLine other(there, 9600);
    {
        const PlainPort holder(here);
        other.write("old");
        EXPECT_EQ(holder.readOne(), 'o') << "the others wait in the queue";
    }
    SerialLine line(here, 9600);
    other.write("new");
    EXPECT_EQ(readAll(line, 3), "new");
}

TEST_F(SerialLineWin32Test, SettingsAreGivenBackOnClosing) {
    { const SerialLine line(here, 4800); }
    const DCB before = PlainPort(here).settings();
    { const SerialLine line(here, before.BaudRate == 1200 ? 2400 : 1200); }
    const DCB after = PlainPort(here).settings();
    EXPECT_EQ(after.BaudRate, before.BaudRate);
    EXPECT_EQ(after.ByteSize, before.ByteSize);
    EXPECT_EQ(after.fBinary, before.fBinary);
}

TEST_F(SerialLineWin32Test, ClosingDoesNotWaitForWhomeverDoesNotRead) {
    const SerialLine other(there, 9600);
    OrganiserLine::Time begin{};
    {
        SerialLine line(here, 9600);
        begin = line.now();
        line.write(std::string(1'000, 'x'));
    }
    EXPECT_LT(other.now() - begin, 10s);
}

TEST_F(SerialLineWin32Test, TakesTheUsualSpeedsAndOthers) {
    for (const int baud : {75, 110, 300, 1'200, 2'400, 9'600, 19'200, 38'400, 57'600, 115'200}) {
        EXPECT_EQ(problemWith(here, baud), "") << baud;
    }
}

TEST_F(SerialLineWin32Test, NameMayBeInSmallLettersOrAPath) {
    std::string small;
    for (const char letter : here) {
        small += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    EXPECT_EQ(problemWith(small), "");
    EXPECT_EQ(problemWith("\\\\.\\" + here), "");
}

TEST_F(SerialLineWin32Test, PortOfAnotherProgramIsInUse) {
    const std::string held = nameFromEnvironment("VELMORA_TEST_HELD_PORT");
    if (held.empty()) {
        GTEST_SKIP() << "VELMORA_TEST_HELD_PORT names no port that another program has open";
    }
    EXPECT_EQ(problemWith(held), held + " is in use by another program.");
}

TEST_F(SerialLineWin32Test, PulledCableIsALineError) {
    const std::string port = nameFromEnvironment("VELMORA_TEST_PULLED_PORT");
    const std::string pull = nameFromEnvironment("VELMORA_TEST_PULL");
    if (port.empty() || pull.empty()) {
        GTEST_SKIP() << "VELMORA_TEST_PULLED_PORT and VELMORA_TEST_PULL name no port that can be pulled";
    }
    SerialLine line(port, 9600);
    std::ofstream(pull) << "now";
    EXPECT_THROW(line.read(line.now() + 20s), LineError);
    EXPECT_THROW(line.write("x"), LineError);
}

TEST(SerialLineWin32Name, WhatCannotBeOpenedIsToldInOneSentence) {
    EXPECT_EQ(problemWith("COM250"),
              "COM250 does not exist; is the adapter plugged in, and is it the right port?");
    EXPECT_EQ(problemWith("NUL"), "NUL is not a serial port.");
}

}  // namespace
}  // namespace velmora
