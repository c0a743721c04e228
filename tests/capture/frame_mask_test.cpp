#include "capture/frame_mask.h"

#include <gtest/gtest.h>

#include "capture/capture_cases.h"
#include "link/frame_cutter.h"

namespace velmora {
namespace {

using namespace std::string_literals;

std::string masked(CaptureDirection direction, const std::string& bytes) {
    return FrameMask(direction).mask(bytes);
}
std::string maskedRequest(const std::string& data) {
    return masked(CaptureDirection::Received, test::dataFrame(3, data));
}

TEST(FrameMask, AFrameOfTheOrganiserKeepsItsOperationOnly) {
    EXPECT_EQ(maskedRequest("\x02my diary"), test::dataFrame(3, "\x02xxxxxxxx"));
    EXPECT_EQ(maskedRequest("\0\1\2NAME"s), test::dataFrame(3, "\0\1\2xxxx"s));
    EXPECT_EQ(maskedRequest("SECRET"), test::dataFrame(3, "Sxxxxx"));
    EXPECT_EQ(maskedRequest(""), test::dataFrame(3, ""));
}

TEST(FrameMask, TheNameOfAServiceStays) {
    for (const char* name : {"FTRAN", "Planm", "time", "TIMEINFO"}) {
        EXPECT_EQ(maskedRequest(name), test::dataFrame(3, name));
    }
    EXPECT_EQ(maskedRequest("TIMES"), test::dataFrame(3, "TIMEx"));
}

TEST(FrameMask, NothingOfWhatTheServerSendsStays) {
    EXPECT_EQ(masked(CaptureDirection::Sent, test::dataFrame(1, "TIME")), test::dataFrame(1, "xxxx"));
}

TEST(FrameMask, OtherFramesStayAsTheyAre) {
    const std::string frames = test::ack(7) + test::frame(FrameType::Connect, 0) +
                               test::frame(FrameType::Discon, 0, "\xC0") +
                               test::frame(FrameType::Connect, 0, "0");
    EXPECT_EQ(masked(CaptureDirection::Sent, frames), frames);
    EXPECT_EQ(masked(CaptureDirection::Received, frames), frames);
}

TEST(FrameMask, EscapesStaySoThatLengthsDo) {
    EXPECT_EQ(maskedRequest("\x02"
                            "a\x10\x10"
                            "b\x10"),
              test::dataFrame(3, "\x02x\x10\x10x\x10"));
}

TEST(FrameMask, ADamagedFrameIsDamagedByTheSameBits) {
    std::string frame = test::dataFrame(3, "\x02secret");
    frame[frame.size() - 1] = static_cast<char>(frame.back() ^ 0x41);
    std::string expected = test::dataFrame(3, "\x02xxxxxx");
    expected[expected.size() - 1] = static_cast<char>(expected.back() ^ 0x41);
    EXPECT_EQ(masked(CaptureDirection::Received, frame), expected);
}

TEST(FrameMask, WhatBelongsToNoFrameIsMasked) {
    EXPECT_EQ(masked(CaptureDirection::Received, "junk" + test::ack(1) + "tail"),
              "xxxx" + test::ack(1) + "xxxx");
    EXPECT_EQ(masked(CaptureDirection::Received,
                     "\x16\x16"
                     "a\x10"),
              "\x16\x16xx");
    EXPECT_EQ(masked(CaptureDirection::Received, "\x16" + test::ack(1)), "\x16" + test::ack(1));
}

TEST(FrameMask, ALoneDleSwallowsItsSuccessorAsOnReceipt) {
    const std::string bytes =
        "\x16\x10\x02\x01\x1A\x02\x10"
        "ab\x10\x03"s;
    EXPECT_EQ(masked(CaptureDirection::Received, bytes), "\x16\x10\x02\x01\x1A\x02\x10xx\x10\x03"s);
}

TEST(FrameMask, PortionsDoNotMatter) {
    const std::string bytes = "??" +
                              test::dataFrame(1,
                                              "\x02"
                                              "ab\x10"
                                              "c") +
                              test::dataFrame(2, "FILE");
    FrameMask mask(CaptureDirection::Received);
    std::string byteByByte;
    for (const char byte : bytes) {
        byteByByte += mask.mask({&byte, 1});
    }
    EXPECT_EQ(byteByByte, masked(CaptureDirection::Received, bytes));
}

TEST(FrameMask, NoiseThatBeganLikeAFrameIsGivenUp) {
    const std::string frame = "\x16\x10\x02" + std::string(FrameCutter::kCapacity + 1, '?');
    const std::string shown = masked(CaptureDirection::Sent, frame + test::ack(1));
    EXPECT_EQ(shown.substr(frame.size()), test::ack(1));
}

TEST(FrameMask, AFrameWithoutABodyStays) {
    EXPECT_EQ(masked(CaptureDirection::Sent,
                     "\x16\x10\x02\x10\x03"
                     "ab"),
              "\x16\x10\x02\x10\x03"
              "ab");
}

TEST(FrameMask, ForgetsWhatItWasGiven) {
    FrameMask mask(CaptureDirection::Sent);
    mask.mask("\x16\x10\x02\x01");
    mask.clear();
    EXPECT_EQ(mask.mask("a"), "x");
}

TEST(MaskedCapture, BytesWithoutADirectionDoNotDisturbTheOthers) {
    test::CaptureScript script;
    script.received(0, "\x16\x10").note(1, "n").received(2, test::ack(1).substr(2));
    script.capture.packets[1].bytes = "secret";
    const Capture shown = maskedCapture(script.capture);
    EXPECT_EQ(shown.packets[1].bytes, "xxxxxx");
    EXPECT_EQ(shown.packets[2].bytes, test::ack(1).substr(2));
}

TEST(MaskedCapture, MasksBothDirectionsAndSaysSo) {
    test::CaptureScript script;
    script
        .received(0, test::dataFrame(1,
                                     "\x02"
                                     "abc"))
        .sent(1, test::dataFrame(1, "def"))
        .note(2, "n");
    script.received(3, "\x16\x10\x02\x01\x19");
    script.capture.ports.push_back(test::usualPort());
    script.received(4, "z");
    const Capture shown = maskedCapture(script.capture);
    EXPECT_TRUE(shown.masked);
    EXPECT_EQ(shown.ports, script.capture.ports);
    ASSERT_EQ(shown.packets.size(), 5U);
    EXPECT_EQ(shown.packets[0].bytes, test::dataFrame(1, "\x02xxx"));
    EXPECT_EQ(shown.packets[1].bytes, test::dataFrame(1, "xxx"));
    EXPECT_EQ(shown.packets[2], script.capture.packets[2]);
    EXPECT_EQ(shown.packets[4].bytes, "x");
}

}  // namespace
}  // namespace velmora
