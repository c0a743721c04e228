#include "organiser/frame_text.h"

#include <gtest/gtest.h>

#include <string>

#include "link/frames.h"

namespace velmora {
namespace {

std::string textOf(FrameType type, int sequence, const std::string& data) {
    Crc crc;
    crc.load_CRCtable();
    return frameText(buildFrame(crc, type, static_cast<std::uint8_t>(sequence), data));
}

TEST(FrameTextTest, TypeSequenceAndData) {
    EXPECT_EQ(textOf(FrameType::Ack, 3, ""), "ACK 3");
    EXPECT_EQ(textOf(FrameType::Connect, 0, "0"), "CONNECT");
    EXPECT_EQ(textOf(FrameType::Discon, 0, "\xEE"), "DISCON EE");
    EXPECT_EQ(textOf(FrameType::Data, 2, "a\x10"), "DATA 2 len=2 a<10>");
    EXPECT_EQ(textOf(FrameType::Data, 7, ""), "DATA 7 len=0");
    EXPECT_EQ(textOf(static_cast<FrameType>(32), 0, "\1"), "unknown type 32 01");
}

TEST(FrameTextTest, DamagedFramesAreShownAsTheyCame) {
    EXPECT_EQ(frameText("\x16\x10\x02"), "damaged 16 10 02");
    EXPECT_EQ(frameText(""), "damaged ");
}

}  // namespace
}  // namespace velmora
