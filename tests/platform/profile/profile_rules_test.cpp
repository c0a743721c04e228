#include "platform/profile/profile_rules.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace velmora {
namespace {

TEST(ProfileNumber, ReadsDecimalAndPrefixedNumbers) {
    EXPECT_EQ(profileNumber("9600 ; comment"), 9600);
    EXPECT_EQ(profileNumber(" \t-5"), -5);
    EXPECT_EQ(profileNumber("+7"), 7);
    EXPECT_EQ(profileNumber("-0x1F"), -31);
    EXPECT_EQ(profileNumber("0o17"), 15);
    EXPECT_EQ(profileNumber("0b101"), 5);
    EXPECT_EQ(profileNumber("010"), 10);
}

TEST(ProfileNumber, IsZeroWithoutDigits) {
    for (const char* text : {"", "abc", "-", "0x", "0X10", "- 5", "--5"}) {
        EXPECT_EQ(profileNumber(text), 0) << text;
    }
}

TEST(ProfileNumber, IsTheNearestThatFits) {
    EXPECT_EQ(profileNumber("2147483647"), 2'147'483'647);
    EXPECT_EQ(profileNumber("2147483648"), 2'147'483'647);
    EXPECT_EQ(profileNumber("-2147483649"), -2'147'483'647 - 1);
    EXPECT_EQ(profileNumber("0xFFFFFFFFFFFFFFFFFFFFFFFF"), 2'147'483'647);
}

TEST(ProfileNames, ThatWouldNotBeFoundAgainAreRefused) {
    for (const char* section : {"S]", "S\n", " S", "S\t"}) {
        EXPECT_THROW(checkProfileSection(section), RunTimeError) << section;
    }
    for (const char* key : {"", "A=B", ";A", "[A", " A", "A ", "A\r"}) {
        EXPECT_THROW(checkProfileKey(key), RunTimeError) << key;
    }
    EXPECT_THROW(checkProfileValue("1\r\n[T]"), RunTimeError);
    EXPECT_THROW(checkProfileValue(std::string(1, '\0')), RunTimeError);
}

TEST(ProfileNames, OfAnyOtherKindPass) {
    EXPECT_NO_THROW(checkProfileSection("A section; with = and ["));
    EXPECT_NO_THROW(checkProfileKey("A key; with [ and ]"));
    EXPECT_NO_THROW(checkProfileValue(" = ; \" "));
}

}  // namespace
}  // namespace velmora
