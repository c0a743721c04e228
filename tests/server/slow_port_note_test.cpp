#include "server/slow_port_note.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/recording_trace.h"
#include "support/recording_window.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;

class SlowPortNoteTest : public ::testing::Test {
  protected:
    test::RecordingWindow window;
    test::RecordingTrace trace;
    SlowPortNote note{window, trace};
};

TEST_F(SlowPortNoteTest, AnAdapterThatSlowsTheLineDownIsToldOnceForAllStarts) {
    note.opened("COM7", 16ms, "9600,N,8,1");
    note.opened("COM7", 16ms, "9600,N,8,1");
    ASSERT_EQ(window.reports.size(), 1U);
    EXPECT_THAT(window.reports[0], HasSubstr("COM7 holds received bytes back for 16 ms"));
    ASSERT_EQ(trace.entries.size(), 1U);
    EXPECT_EQ(trace.entries[0].data, window.reports[0]);
}

TEST_F(SlowPortNoteTest, AnotherAdapterIsToldOfToo) {
    note.opened("COM7", 16ms, "9600,N,8,1");
    note.opened("COM8", 16ms, "9600,N,8,1");
    EXPECT_EQ(window.reports.size(), 2U);
}

TEST_F(SlowPortNoteTest, WhatCostsNothingToSpeakOfIsNotTold) {
    note.opened("COM7", std::nullopt, "9600,N,8,1");
    note.opened("COM7", 1ms, "9600,N,8,1");
    note.opened("COM7", 16ms, "1200,N,8,1");
    note.opened("COM7", 16ms, "no rate");
    EXPECT_TRUE(window.reports.empty());
    EXPECT_TRUE(trace.entries.empty());
}

}  // namespace
}  // namespace velmora
