#include "doctor/unframed.h"

#include <gtest/gtest.h>

#include "doctor/likely_settings.h"
#include "link/frames.h"
#include "serial/bit_sampling.h"

namespace velmora {
namespace {

class UnframedTest : public testing::Test {
  protected:
    UnframedTest() {
        crc.load_CRCtable();
        request = buildFrame(crc, FrameType::Connect, 0, {});
    }
    Unframed judged(const std::string& bytes) { return judgeUnframed(crc, bytes, LineSettings()); }

    Crc crc;
    std::string request;
};

TEST_F(UnframedTest, TheRateIsToldByTheBitsOfALinkRequest) {
    for (const std::uint32_t rate : {1200U, 2400U, 4800U, 19200U}) {
        const LineSettings sender{rate};
        const Unframed likely = judged(sampledValues(request, sender, LineSettings()));
        EXPECT_EQ(likely.cause, Cause::WrongRate);
        EXPECT_EQ(likely.settings, sender) << rate;
    }
}

TEST_F(UnframedTest, TheParityIsToldToo) {
    const LineSettings sender{9600, Parity::Even, 7, StopBits::One};
    const Unframed likely = judged(sampledValues(request, sender, LineSettings()));
    EXPECT_EQ(likely.cause, Cause::WrongParity);
    EXPECT_EQ(likely.settings, sender);
}

TEST_F(UnframedTest, OtherBytesHaveTheirCauses) {
    EXPECT_EQ(judged(std::string(9, '\0')).cause, Cause::LineStuck);
    EXPECT_EQ(judged("\x15\x15").cause, Cause::OtherProtocol);
    EXPECT_EQ(judged("CCCC").cause, Cause::OtherProtocol);
    EXPECT_EQ(judged("\x05\x05").cause, Cause::OtherProtocol);
    EXPECT_EQ(judged("DIR A:\tX\r\n").cause, Cause::OtherProtocol);
    EXPECT_EQ(judged("~").cause, Cause::Noise);
    EXPECT_EQ(judged("\x15").cause, Cause::Noise);
    EXPECT_EQ(judged("\x81\xFE\x33\x90\x02\xA7").cause, Cause::Noise);
}

TEST_F(UnframedTest, SettingsHaveWords) {
    EXPECT_EQ(settingsInWords(LineSettings()), "9600 baud");
    EXPECT_EQ(settingsInWords({1200, Parity::Odd, 8, StopBits::One}), "1200 baud with 8 bits and odd parity");
    EXPECT_EQ(settingsInWords({300, Parity::None, 7, StopBits::One}), "300 baud with 7 bits and no parity");
}

}  // namespace
}  // namespace velmora
