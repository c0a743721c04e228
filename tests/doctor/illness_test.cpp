#include "illness.h"

#include <gtest/gtest.h>

#include "arguments/usage_error.h"

namespace velmora::tools {
namespace {

TEST(IllnessTest, SettingsOfTheHandheldGoTogether) {
    const LineSettings wanted{1200, Parity::Even, 7, StopBits::Two};
    EXPECT_EQ(readIllness("--ill", "rate=1200,form=7E2").handheld, wanted);
    EXPECT_EQ(readIllness("--ill", "form=7E2,rate=1200").handheld, wanted);
    EXPECT_EQ(readIllness("--ill", "mute").handheld, std::nullopt);
}

TEST(IllnessTest, EachWordMakesItsIllness) {
    EXPECT_TRUE(readIllness("--ill", "mute").mute);
    EXPECT_TRUE(readIllness("--ill", "deaf").deaf);
    const Illness dead = readIllness("--ill", "dead");
    EXPECT_TRUE(dead.mute && dead.deaf);
    EXPECT_TRUE(readIllness("--ill", "loopback").loopback);
    EXPECT_EQ(readIllness("--ill", "echo").echo, LineSettings());
    EXPECT_TRUE(readIllness("--ill", "modem").modem);
    EXPECT_TRUE(readIllness("--ill", "quiet-modem").quietModem);
    EXPECT_TRUE(readIllness("--ill", "stuck").stuck);
    EXPECT_EQ(readIllness("--ill", "noise=0.25").noise, 0.25);
    EXPECT_EQ(readIllness("--ill", "losses=1").losses, 1);
    EXPECT_EQ(readIllness("--ill", "breaks=0.5").interruptions, 0.5);
    EXPECT_EQ(readIllness("--ill", "xmodem").call, "\x15");
    EXPECT_EQ(readIllness("--ill", "text").call, "Organiser II\r\n");
}

TEST(IllnessTest, AnythingElseIsWrongUsage) {
    for (const char* list : {"", "flu", "mute,", "rate", "rate=", "rate=0", "rate=fast", "form=9N1",
                             "form=7E", "noise=2", "mute=1", "noise"}) {
        EXPECT_THROW(readIllness("--ill", list), UsageError) << list;
    }
}

}  // namespace
}  // namespace velmora::tools
