#include "eventloop/queue_watch.h"

#include <gtest/gtest.h>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class QueueWatchTest : public ::testing::Test {
  protected:
    QueueWatchTest() { watch.portOpened(kHandle); }
    /// How often the queue is looked at in a time.
    int looksIn(test::milliseconds span) {
        const int before = looks;
        time.advance(span);
        return looks - before;
    }

    static constexpr std::intptr_t kHandle = 42;
    test::FakeTime time;
    int looks = 0;
    int polls = 0;
    bool waiting = false;
    std::chrono::nanoseconds soonest{0};
    QueueWatch watch{time.makeTimer(), time,
                     [this](std::intptr_t handle) {
                         EXPECT_EQ(handle, kHandle);
                         ++looks;
                         return waiting;
                     },
                     [this] { return soonest; },
                     [this] {
                         ++polls;
                         waiting = false;
                         watch.portRead();
                     }};
};

TEST_F(QueueWatchTest, DoesNothingBeforeBytesHaveCome) {
    EXPECT_FALSE(time.advanceToNextTick(1h));
}

TEST_F(QueueWatchTest, AfterBytesItLooksEveryMillisecondForTwoSecondsAndNoLonger) {
    watch.portRead();
    EXPECT_EQ(looksIn(1s), 1'000);
    EXPECT_EQ(looksIn(1h), 999);
    EXPECT_FALSE(time.advanceToNextTick(1h));
    EXPECT_EQ(polls, 0);
}

TEST_F(QueueWatchTest, EachReadKeepsTheConversationWarm) {
    for (int i = 0; i < 5; ++i) {
        watch.portRead();
        EXPECT_EQ(looksIn(1'900ms), 1'900);
    }
    time.advance(1h);
    watch.portRead();
    EXPECT_EQ(looksIn(1s), 1'000) << "warm again";
}

TEST_F(QueueWatchTest, BytesThatWaitRunThePollOnce) {
    watch.portRead();
    time.advance(100ms);
    waiting = true;
    time.advance(1ms);
    EXPECT_EQ(polls, 1);
    EXPECT_EQ(looksIn(1'999ms), 1'999) << "and keep the conversation warm";
    EXPECT_EQ(polls, 1);
}

TEST_F(QueueWatchTest, WhileNoFrameCanBeWholeItLooksLessOften) {
    watch.portRead();
    time.advance(1ms);
    soonest = 3'125us;
    time.advance(1ms);
    EXPECT_EQ(looksIn(30ms), 10);
    soonest = 1'041us;
    time.advance(3ms);
    EXPECT_EQ(looksIn(30ms), 30);
    soonest = 1h;
    time.advance(1ms);
    EXPECT_EQ(looksIn(100ms), 5) << "a line may be faster than it says";
}

TEST_F(QueueWatchTest, ANewConversationIsLookedAfterAtOnce) {
    watch.portRead();
    soonest = 10ms;
    time.advance(1h);
    watch.portRead();
    EXPECT_EQ(looksIn(1ms), 1);
}

TEST_F(QueueWatchTest, LooksAtNothingWhileThePollIsOff) {
    watch.portRead();
    watch.setActive(false);
    waiting = true;
    EXPECT_EQ(looksIn(100ms), 0);
    EXPECT_EQ(polls, 0);
    watch.setActive(true);
    time.advance(1ms);
    EXPECT_EQ(polls, 1);
}

TEST_F(QueueWatchTest, AClosedPortIsNotLookedAt) {
    watch.portRead();
    watch.portClosing();
    EXPECT_FALSE(time.advanceToNextTick(1h));
    watch.portOpened(kHandle);
    EXPECT_FALSE(time.advanceToNextTick(1h)) << "nobody talks on it yet";
}

}  // namespace
}  // namespace velmora
