#include "serial/mode_string.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace velmora {
namespace {

struct GoodMode {
    const char* name;
    const char* text;
    LineSettings expected;
};

class GoodModeTest : public ::testing::TestWithParam<GoodMode> {};

TEST_P(GoodModeTest, IsRead) {
    const auto settings = parseModeString(GetParam().text);
    ASSERT_TRUE(settings.has_value());
    EXPECT_EQ(*settings, GetParam().expected);
}

constexpr GoodMode kGoodModes[] = {
    {"Default", "9600,N,8,1", {9600, Parity::None, 8, StopBits::One}},
    {"SmallLetters", "9600,n,8,1", {9600, Parity::None, 8, StopBits::One}},
    {"BlanksAround", " 2400 , E , 7 , 2 ", {2400, Parity::Even, 7, StopBits::Two}},
    {"Odd", "1200,O,8,1", {1200, Parity::Odd, 8, StopBits::One}},
    {"Mark", "1200,M,8,1", {1200, Parity::Mark, 8, StopBits::One}},
    {"Space", "1200,S,8,1", {1200, Parity::Space, 8, StopBits::One}},
    {"FiveBitsOneAndAHalf", "50,N,5,1.5", {50, Parity::None, 5, StopBits::OneAndHalf}},
    {"SixBits", "50,N,6,1", {50, Parity::None, 6, StopBits::One}},
    {"Fast", "230400,N,8,1", {230400, Parity::None, 8, StopBits::One}},
    {"Short11", "11,N,8,1", {110, Parity::None, 8, StopBits::One}},
    {"Short15", "15,N,8,1", {150, Parity::None, 8, StopBits::One}},
    {"Short30", "30,N,8,1", {300, Parity::None, 8, StopBits::One}},
    {"Short60", "60,N,8,1", {600, Parity::None, 8, StopBits::One}},
    {"Short12", "12,N,8,1", {1200, Parity::None, 8, StopBits::One}},
    {"Short24", "24,N,8,1", {2400, Parity::None, 8, StopBits::One}},
    {"Short48", "48,N,8,1", {4800, Parity::None, 8, StopBits::One}},
    {"Short96", "96,N,8,1", {9600, Parity::None, 8, StopBits::One}},
    {"Short19", "19,N,8,1", {19200, Parity::None, 8, StopBits::One}},
    {"Keywords", "baud=9600 parity=E data=7 stop=2", {9600, Parity::Even, 7, StopBits::Two}},
    {"KeywordsInAnyOrderAndCase", "STOP=1 Data=8  PARITY=n baud=96", {9600, Parity::None, 8, StopBits::One}},
    {"BaudAlone", "baud=1200", {1200, Parity::None, 8, StopBits::One}},
};
INSTANTIATE_TEST_SUITE_P(Rows, GoodModeTest, ::testing::ValuesIn(kGoodModes),
                         [](const auto& row) { return std::string(row.param.name); });

struct BadMode {
    const char* name;
    const char* text;
};

class BadModeTest : public ::testing::TestWithParam<BadMode> {};

TEST_P(BadModeTest, IsRefused) {
    EXPECT_FALSE(parseModeString(GetParam().text).has_value());
}

constexpr BadMode kBadModes[] = {
    {"Empty", ""},
    {"Blanks", "   "},
    {"Words", "fast please"},
    {"BaudOnly", "9600"},
    {"ThreeFields", "9600,N,8"},
    {"FiveFields", "9600,N,8,1,x"},
    {"EmptyField", "9600,,8,1"},
    {"TrailingComma", "9600,N,8,1,"},
    {"BaudZero", "0,N,8,1"},
    {"BaudNegative", "-9600,N,8,1"},
    {"BaudWithLetters", "9600x,N,8,1"},
    {"BaudTooLarge", "99999999999,N,8,1"},
    {"ParityUnknown", "9600,X,8,1"},
    {"ParityWord", "9600,NONE,8,1"},
    {"DataFour", "9600,N,4,1"},
    {"DataNine", "9600,N,9,1"},
    {"DataTwoDigits", "9600,N,08,1"},
    {"StopThree", "9600,N,8,3"},
    {"StopOneAndAHalfWithEightBits", "9600,N,8,1.5"},
    {"StopTwoWithFiveBits", "9600,N,5,2"},
    {"FlowControl", "9600,N,8,1 xon=on"},
    {"KeywordUnknown", "baud=9600 xon=on"},
    {"KeywordTwice", "baud=9600 baud=1200"},
    {"KeywordWithoutValue", "baud= parity=N"},
    {"KeywordWithoutBaud", "parity=N data=8 stop=1"},
    {"FormsMixed", "9600,N,8 stop=1"},
};
INSTANTIATE_TEST_SUITE_P(Rows, BadModeTest, ::testing::ValuesIn(kBadModes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ModeStringTest, SettingsHaveAModeStringThatGivesThemBack) {
    EXPECT_EQ(modeString(LineSettings()), "9600,N,8,1");
    for (const char* mode : {"110,O,7,2", "300,E,7,1", "50,M,5,1.5", "4000000,S,8,2"}) {
        EXPECT_EQ(modeString(*parseModeString(mode)), mode);
    }
}

TEST(LineSettingsTest, EachPartMakesADifference) {
    const LineSettings line{9600, Parity::None, 8, StopBits::One};
    EXPECT_EQ(line, (LineSettings{9600, Parity::None, 8, StopBits::One}));
    EXPECT_NE(line, (LineSettings{1200, Parity::None, 8, StopBits::One}));
    EXPECT_NE(line, (LineSettings{9600, Parity::Even, 8, StopBits::One}));
    EXPECT_NE(line, (LineSettings{9600, Parity::None, 7, StopBits::One}));
    EXPECT_NE(line, (LineSettings{9600, Parity::None, 8, StopBits::Two}));
}

}  // namespace
}  // namespace velmora
