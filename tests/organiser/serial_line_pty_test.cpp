#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/file.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <deque>
#include <string>
#include <thread>

#include "organiser/serial_line.h"
#include "support/udev_tree.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A pseudo-terminal whose other end the test holds.
class SerialLineTest : public testing::Test {
  protected:
    void SetUp() override {
        other = posix_openpt(O_RDWR | O_NOCTTY);
        ASSERT_GE(other, 0);
        ASSERT_EQ(grantpt(other), 0);
        ASSERT_EQ(unlockpt(other), 0);
        path = ptsname(other);
    }
    void TearDown() override {
        hangUp();
        test::udevTree() = {};
    }
    /// Plugs an adapter in whose device file is this one.
    static void addAdapter(const std::string& name, const std::string& node) {
        std::deque<udev_device>& devices = test::udevTree().devices;
        devices.push_back({"/sys/usb-" + name, "usb-" + name, "usb", "usb_device"});
        udev_device* adapter = &devices.back();
        adapter->attributes = {{"idVendor", "0403"}, {"idProduct", "6001"}, {"serial", "A50285BI"}};
        devices.push_back({"/sys/" + name, name, "tty", {}, adapter, node});
    }

    void hangUp() {
        if (other >= 0) {
            close(other);
            other = -1;
        }
    }
    void otherSends(const std::string& bytes) {
        ASSERT_EQ(write(other, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    std::string otherReads(std::size_t count) {
        std::string bytes(count, '\0');
        const ssize_t got = read(other, bytes.data(), count);
        bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
        return bytes;
    }
    static std::string problemWith(const std::string& device, int baud = 9600) {
        try {
            SerialLine line(device, baud);
        } catch (const LineError& error) {
            return error.what();
        }
        return "";
    }

    int other = -1;
    std::string path;
};

TEST_F(SerialLineTest, EveryByteValuePassesBothWays) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    SerialLine line(path, 9600);
    line.write(bytes);
    EXPECT_EQ(otherReads(1'000), bytes);
    otherSends(bytes);
    std::string got;
    while (got.size() < bytes.size()) {
        const std::string part = line.read(line.now() + 2s);
        ASSERT_FALSE(part.empty());
        got += part;
    }
    EXPECT_EQ(got, bytes);
}

TEST_F(SerialLineTest, ReadEndsAtItsDeadline) {
    SerialLine line(path, 9600);
    const auto begin = line.now();
    EXPECT_EQ(line.read(begin + 20ms), "");
    EXPECT_GE(line.now() - begin, 20ms);
    EXPECT_EQ(line.read(begin), "");
}

TEST_F(SerialLineTest, BytesFromBeforeTheOpeningAreForgotten) {
    const int slave = open(path.c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(slave, 0);
    otherSends("old\n");
    SerialLine line(path, 9600);
    otherSends("new");
    EXPECT_EQ(line.read(line.now() + 2s), "new");
    close(slave);
}

TEST_F(SerialLineTest, OtherSideThatHangsUpIsALineError) {
    SerialLine line(path, 9600);
    hangUp();
    EXPECT_THROW(line.read(line.now() + 2s), LineError);
    EXPECT_THROW(line.write("x"), LineError);
}

TEST_F(SerialLineTest, ReadEndsWithTheFirstBytesThatCome) {
    SerialLine line(path, 9600);
    std::thread sender([this] { otherSends("x"); });
    EXPECT_EQ(line.read(line.now() + 30s), "x");
    sender.join();
}

TEST_F(SerialLineTest, WhatHappensToAnOpenLineIsToldWithItsName) {
    SerialLine line(path, 9600);
    hangUp();
    try {
        line.read(line.now() + 2s);
        FAIL() << "read from a line that was cut";
    } catch (const LineError& error) {
        EXPECT_EQ(error.what(), path + ": The line was cut or the device failed.");
    }
}

TEST_F(SerialLineTest, LockedDeviceIsInUse) {
    const int holder = open(path.c_str(), O_RDWR | O_NOCTTY);
    ASSERT_EQ(flock(holder, LOCK_EX), 0);
    EXPECT_TRUE(problemWith(path).starts_with(path + " is in use by ")) << problemWith(path);
    close(holder);
}

TEST_F(SerialLineTest, SettingsAreGivenBackOnClosing) {
    const int slave = open(path.c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(slave, 0);
    termios before{};
    termios during{};
    termios after{};
    ASSERT_EQ(tcgetattr(slave, &before), 0);
    {
        SerialLine line(path, 1200);
        ASSERT_EQ(tcgetattr(slave, &during), 0);
    }
    ASSERT_EQ(tcgetattr(slave, &after), 0);
    EXPECT_EQ(cfgetospeed(&during), static_cast<speed_t>(B1200));
    EXPECT_EQ(during.c_lflag & ICANON, 0U);
    EXPECT_EQ(after.c_lflag, before.c_lflag);
    EXPECT_EQ(cfgetospeed(&after), cfgetospeed(&before));
    close(slave);
}

TEST_F(SerialLineTest, WhatCannotBeOpenedIsToldInOneSentence) {
    EXPECT_EQ(problemWith("/dev/no-such-device"),
              "/dev/no-such-device does not exist; is the adapter plugged in, and is it the right port?");
    EXPECT_EQ(problemWith("/dev/null"), "/dev/null is not a serial port.");
    const SerialLine held(path, 9600);
    EXPECT_NE(problemWith(path).find(path + " is in use by "), std::string::npos);
}

TEST_F(SerialLineTest, AnAdapterIsFoundByWhatItIs) {
    addAdapter("ttyUSB0", path);
    SerialLine line("usb:0403:6001:A50285BI", 9600);
    line.write("x");
    EXPECT_EQ(otherReads(1), "x");
}

TEST_F(SerialLineTest, AnAdapterThatIsNotPluggedInDoesNotExist) {
    EXPECT_EQ(problemWith("usb:0403:6001:A50285BI"),
              "usb:0403:6001:A50285BI does not exist; is the adapter plugged in, and is it the right port?");
}

TEST_F(SerialLineTest, OfSeveralAdaptersThatFitNoneIsOpened) {
    addAdapter("ttyUSB0", path);
    addAdapter("ttyUSB1", "/dev/null");
    const std::string problem = problemWith("usb:0403:6001:A50285BI");
    EXPECT_NE(problem.find(path), std::string::npos) << problem;
    EXPECT_NE(problem.find("/dev/null"), std::string::npos) << problem;
}

TEST_F(SerialLineTest, ASpeedWithoutANameIsTaken) {
    EXPECT_EQ(problemWith(path, 12345), "");
}

}  // namespace
}  // namespace velmora
