#include "arguments/nearest_word.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

std::string nearest(const std::string& typed) {
    return nearestWord(typed, {"--port", "--baud", "--folder", "--file-type", "--trace", "--trace-file"});
}

TEST(NearestWord, OneMistakeInAShortWordIsUnderstood) {
    EXPECT_EQ(nearest("--prot"), "--port") << "swapped";
    EXPECT_EQ(nearest("--bad"), "--baud") << "left out";
    EXPECT_EQ(nearest("--foldder"), "--folder") << "added";
    EXPECT_EQ(nearest("--traze"), "--trace") << "changed";
    EXPECT_EQ(nearest("-port"), "--port") << "one dash";
}

TEST(NearestWord, TheBeginningOfAWordIsEnough) {
    EXPECT_EQ(nearest("--fi"), "--file-type");
    EXPECT_EQ(nearest("--trace-f"), "--trace-file");
}

TEST(NearestWord, TheSameWordComesFirst) {
    EXPECT_EQ(nearest("--trace"), "--trace");
}

TEST(NearestWord, WhatIsTooFarOffHasNone) {
    for (const char* typed : {"", "-", "--", "--verbose", "COM1", "--frobnicate"}) {
        EXPECT_EQ(nearest(typed), "") << typed;
    }
    EXPECT_EQ(nearestWord("--port", {}), "");
}

}  // namespace
}  // namespace velmora
