#include "apps/line_output.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace velmora {
namespace {

class LineOutputTest : public testing::Test {
  protected:
    std::string taken;
    std::size_t room = 1000;
    std::unique_ptr<LineOutput> lines = std::make_unique<LineOutput>([this](std::string_view bytes) {
        const std::size_t count = std::min(room, bytes.size());
        taken += bytes.substr(0, count);
        room -= count;
        return count;
    });
};

TEST_F(LineOutputTest, LinesAreTakenInTheirOrder) {
    lines->print("one");
    lines->print("two");
    EXPECT_EQ(taken, "one\ntwo\n");
}

TEST_F(LineOutputTest, LinesWithoutRoomAreCountedInTheirPlace) {
    lines->print("one");
    room = 0;
    for (int i = 0; i < 12; ++i) {
        lines->print("more");
    }
    room = 1000;
    lines->print("last");
    lines->print("of all");
    EXPECT_EQ(taken, "one\n12 lines lost\nlast\nof all\n");
}

TEST_F(LineOutputTest, OneLostLineIsOne) {
    room = 0;
    lines->print("one");
    room = 1000;
    lines->print("two");
    EXPECT_EQ(taken, "1 line lost\ntwo\n");
}

TEST_F(LineOutputTest, ALineThatWasTakenInPartIsFinishedFirst) {
    room = 2;
    lines->print("first");
    lines->print("second");
    EXPECT_EQ(taken, "fi");
    room = 1000;
    lines->print("third");
    EXPECT_EQ(taken, "first\n1 line lost\nthird\n");
}

TEST_F(LineOutputTest, ACountThatWasTakenInPartIsFinishedFirst) {
    room = 0;
    lines->print("one");
    room = 3;
    lines->print("two");
    EXPECT_EQ(taken, "1 l");
    room = 1000;
    lines->print("three");
    EXPECT_EQ(taken, "1 line lost\n1 line lost\nthree\n");
}

TEST_F(LineOutputTest, WhatIsDueAtTheEndIsPrintedIfThereIsRoom) {
    room = 0;
    lines->print("one");
    room = 1000;
    lines.reset();
    EXPECT_EQ(taken, "1 line lost\n");
}

TEST_F(LineOutputTest, TheLineEndIsTheSystems) {
    LineOutput other(
        [this](std::string_view bytes) {
            taken += bytes;
            return bytes.size();
        },
        "\r\n");
    other.print("one");
    EXPECT_EQ(taken, "one\r\n");
}

}  // namespace
}  // namespace velmora
