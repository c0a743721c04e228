#include "serial/terminal_settings_posix.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(TerminalSettingsPosixTest, WhatIsAppliedIsRead) {
    for (const char* mode :
         {"9600,N,8,1", "110,O,7,2", "115200,E,8,1", "4000000,M,6,1", "50,S,5,1.5", "300,N,5,1"}) {
        termios block{};
        const LineSettings line = *parseModeString(mode);
        EXPECT_TRUE(applyLineSettings(block, line)) << mode;
        EXPECT_EQ(lineSettingsOf(block), line) << mode;
    }
}

TEST(TerminalSettingsPosixTest, ARateWithoutANameHasNoPlace) {
    termios block{};
    EXPECT_FALSE(applyLineSettings(block, {31250, Parity::None, 8, StopBits::One}));
    cfsetospeed(&block, B0);
    EXPECT_EQ(lineSettingsOf(block).baud, 0U);
}

}  // namespace
}  // namespace velmora
