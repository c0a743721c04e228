#include <gtest/gtest.h>

#include "capture/capture_cases.h"
#include "capture/pcapng_format.h"
#include "capture/pcapng_reader.h"
#include "capture/pcapng_writer.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using test::CaptureScript;

std::string twoPackets() {
    CaptureScript script;
    script.sent(0, test::frame(FrameType::Connect, 0)).received(12, "\x10\x00"s);
    script.capture.packets.back().comments = {"one", "two"};
    return pcapngFile(script.capture);
}

std::string complaintOf(const std::string& bytes) {
    try {
        readPcapng(bytes);
    } catch (const CaptureError& error) {
        return error.what();
    }
    return "";
}

/// A section of version 1.0, high byte first, with one port that counts microseconds, and one packet.
const std::string kHighFirst =
    "\x0A\x0D\x0D\x0A\0\0\0\x1C\x1A\x2B\x3C\x4D\0\x01\0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0\x1C"
    "\0\0\0\x01\0\0\0\x14\0\x93\0\0\0\0\0\0\0\0\0\x14"
    "\0\0\0\x06\0\0\0\x2C\0\0\0\0\0\0\0\0\0\0\0\x05\0\0\0\x02\0\0\0\x02hi\0\0"
    "\0\x02\0\x04\0\0\0\x01\0\0\0\x2C"s;

TEST(PcapngWriter, BeginsWithASectionAsTheFormatHasIt) {
    const std::string section = pcapngSection(false);
    EXPECT_EQ(section.substr(0, 24),
              "\x0A\x0D\x0D\x0A\x2C\0\0\0\x4D\x3C\x2B\x1A\x01\0\0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s);
    EXPECT_EQ(section.substr(24), "\x04\0\x07\0Velmora\0\0\0\0\0\x2C\0\0\0"s);
}

TEST(PcapngWriter, DescribesAPortWithDeviceSettingsRateAndNanoseconds) {
    EXPECT_EQ(pcapngPort({"COM5", "9600,N,8,1", 9600}),
              "\x01\0\0\0\x44\0\0\0\x93\0\0\0\0\0\0\0"
              "\x02\0\x04\0COM5\x03\0\x0A\0"
              "9600,N,8,1\0\0\x08\0\x08\0\x80\x25\0\0\0\0\0\0\x09\0\x01\0\x09\0\0\0\0\0\0\0\x44\0\0\0"s);
}

TEST(PcapngWriter, APacketHasItsTimeItsDirectionAndItsComments) {
    CapturedPacket packet;
    packet.time = std::chrono::nanoseconds(0x0102030405060708);
    packet.direction = CaptureDirection::Sent;
    packet.bytes = "abcde";
    packet.comments = {"hm"};
    EXPECT_EQ(pcapngPacket(1, packet),
              "\x06\0\0\0\x3C\0\0\0\x01\0\0\0\x04\x03\x02\x01\x08\x07\x06\x05\x05\0\0\0\x05\0\0\0"
              "abcde\0\0\0\x02\0\x04\0\x02\0\0\0\x01\0\x02\0hm\0\0\0\0\0\0\x3C\0\0\0"s);
}

TEST(Pcapng, WhatIsWrittenIsReadBack) {
    CaptureScript script;
    script.sent(0, "abc").received(1, "").note(3, "state: ready");
    script.capture.ports.push_back({"COM7", "1200,E,7,1", 1200});
    script.received(4, std::string(300, '\x10'));
    for (const bool masked : {false, true}) {
        script.capture.masked = masked;
        const ReadCapture read = readPcapng(pcapngFile(script.capture));
        EXPECT_EQ(read.capture.masked, masked);
        EXPECT_EQ(read.capture.ports, script.capture.ports);
        EXPECT_EQ(read.capture.packets, script.capture.packets);
        EXPECT_FALSE(read.damage.has_value());
    }
}

TEST(PcapngReader, ReadsHighByteFirstAndMicroseconds) {
    const ReadCapture read = readPcapng(kHighFirst);
    EXPECT_EQ(read.damage, std::nullopt);
    ASSERT_EQ(read.capture.packets.size(), 1U);
    EXPECT_EQ(read.capture.packets[0].bytes, "hi");
    EXPECT_EQ(read.capture.packets[0].time, std::chrono::microseconds(5));
    EXPECT_EQ(read.capture.packets[0].direction, CaptureDirection::Received);
}

TEST(PcapngReader, SectionsFollowEachOther) {
    const ReadCapture read = readPcapng(twoPackets() + kHighFirst + twoPackets());
    EXPECT_EQ(read.damage, std::nullopt);
    ASSERT_EQ(read.capture.packets.size(), 5U);
    EXPECT_EQ(read.capture.packets[2].port, 1U);
    EXPECT_EQ(read.capture.packets[4].port, 2U);
    EXPECT_EQ(read.capture.packets[4].comments, (std::vector<std::string>{"one", "two"}));
}

TEST(PcapngReader, LeavesOutBlocksAndOptionsThatItDoesNotKnow) {
    const std::string other = "\x05\0\0\0\x10\0\0\0????\x10\0\0\0"s;
    const std::string port = "\x01\0\0\0\x20\0\0\0\x93\0\0\0\0\0\0\0\x63\0\x02\0zz\0\0\0\0\0\0\x20\0\0\0"s;
    const ReadCapture read = readPcapng(pcapngSection(false) + other + port);
    EXPECT_EQ(read.damage, std::nullopt);
    EXPECT_EQ(read.capture.ports, std::vector<CapturedPort>{CapturedPort{}});
}

TEST(PcapngReader, AnUnknownDirectionIsNone) {
    std::string bytes = kHighFirst;
    bytes[bytes.size() - 5] = 3;
    EXPECT_EQ(readPcapng(bytes).capture.packets.at(0).direction, CaptureDirection::None);
}

TEST(PcapngReader, RefusesWhatIsNoCapture) {
    EXPECT_EQ(complaintOf(""), "the file is no capture (pcapng)");
    EXPECT_EQ(complaintOf("ORGANS AND OTHER TEXT, LONG ENOUGH"), "the file is no capture (pcapng)");
    EXPECT_EQ(complaintOf(twoPackets().substr(0, 10)), "the file is no capture (pcapng)");
    std::string unordered = twoPackets();
    unordered[8] = '?';
    EXPECT_EQ(complaintOf(unordered), "the file is no capture (pcapng)");
}

TEST(PcapngReader, RefusesACaptureOfAnotherKindOfLine) {
    std::string bytes = kHighFirst;
    bytes[28 + 9] = 1;
    EXPECT_EQ(complaintOf(bytes),
              "the capture is not of an Organiser's line: its link type is 1 instead of 147 (USER0)");
}

TEST(PcapngReader, EveryPrefixGivesWhatStandsBefore) {
    const std::string whole = twoPackets();
    const std::size_t firstEnd = pcapngSection(false).size();
    for (std::size_t length = firstEnd; length <= whole.size(); ++length) {
        const ReadCapture read = readPcapng(whole.substr(0, length));
        EXPECT_LE(read.capture.packets.size(), 2U);
        for (const CapturedPacket& packet : read.capture.packets) {
            EXPECT_FALSE(packet.bytes.empty()) << length;
        }
        if (read.damage) {
            EXPECT_EQ(*read.damage, "the file is cut off; what follows is missing");
        }
    }
    EXPECT_TRUE(readPcapng(whole.substr(0, whole.size() - 1)).damage.has_value());
    EXPECT_FALSE(readPcapng(whole).damage.has_value());
}

struct DamageRow {
    const char* name;
    std::size_t place;  // behind the section's start
    char byte;
    const char* reason;
};
constexpr const char* kContradiction = "a block's lengths contradict each other; what follows is not read";
constexpr DamageRow kDamages[] = {
    {"TheBlockIsShorterThanAnyBlock", 28 + 7, 8, kContradiction},
    {"TheBlockIsNoMultipleOfFour", 28 + 7, 0x15, kContradiction},
    {"TheLengthBehindTheBlockDiffers", 28 + 19, 0x18, kContradiction},
    {"ThePacketIsOfNoPort", 48 + 11, 1,
     "a packet is of a port that is not described; what follows is not read"},
    {"TheTimeIsOutOfRange", 48 + 12, '\x7F', "a packet's time is out of range; what follows is not read"},
    {"ThePacketIsLongerThanItsBlock", 48 + 23, 100, kContradiction},
    {"TheFlagsAreTooShort", 48 + 35, 1, kContradiction},
};
class PcapngDamageTest : public testing::TestWithParam<DamageRow> {};
TEST_P(PcapngDamageTest, EndsTheReadingAndIsTold) {
    std::string bytes = kHighFirst;
    bytes[GetParam().place] = GetParam().byte;
    const ReadCapture read = readPcapng(bytes);
    EXPECT_TRUE(read.capture.packets.empty());
    EXPECT_EQ(read.damage, GetParam().reason);
}
INSTANTIATE_TEST_SUITE_P(Rows, PcapngDamageTest, testing::ValuesIn(kDamages),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(PcapngReader, ASectionThatIsNotUnderstoodEndsTheReading) {
    std::string newer = twoPackets();
    newer[12] = 2;
    EXPECT_EQ(readPcapng(twoPackets() + newer).damage,
              "a section is of a newer version of the format; it is not read");
    std::string unordered = twoPackets();
    unordered[8] = '?';
    EXPECT_EQ(readPcapng(twoPackets() + unordered).damage, kContradiction);
}

TEST(PcapngReader, AStrangeCountOfTimeEndsTheReading) {
    const std::string port = "\x01\0\0\0\x1C\0\0\0\x93\0\0\0\0\0\0\0\x09\0\x01\0\x0C\0\0\0\x1C\0\0\0"s;
    EXPECT_EQ(readPcapng(pcapngSection(false) + port).damage,
              "a port counts time in steps that are not known; what follows is not read");
}

}  // namespace
}  // namespace velmora
