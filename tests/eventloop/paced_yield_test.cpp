#include "eventloop/paced_yield.h"

#include <gtest/gtest.h>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class PacedYieldTest : public testing::Test, private EventYield {
  protected:
    void processEvents() override {
        ++passed;
        if (yieldsInside) {
            yield.processEvents();
        }
    }

    test::FakeTime time;
    PacedYield yield{*this, time};
    int passed = 0;
    bool yieldsInside = false;
};

TEST_F(PacedYieldTest, TheFirstCallIsPassedOn) {
    yield.processEvents();
    EXPECT_EQ(passed, 1);
}

TEST_F(PacedYieldTest, OfManyCallsOneEveryTwentyMillisecondsIs) {
    for (int call = 0; call < 1'000; ++call) {
        yield.processEvents();
        yield.processEvents();
        time.advance(1ms);
    }
    EXPECT_EQ(passed, 50);
    time.advance(1h);
    yield.processEvents();
    EXPECT_EQ(passed, 51);
}

TEST_F(PacedYieldTest, WhileTheLoopRunsByItselfNoneIs) {
    for (int look = 0; look < 1'000; ++look) {
        yield.loopRuns();
        yield.processEvents();
        time.advance(5ms);
        yield.processEvents();
    }
    EXPECT_EQ(passed, 0);
    time.advance(20ms);
    yield.processEvents();
    EXPECT_EQ(passed, 1) << "inside a long call";
}

TEST_F(PacedYieldTest, AnEventThatYieldsDoesNotYieldAgain) {
    yieldsInside = true;
    yield.processEvents();
    EXPECT_EQ(passed, 1);
}

}  // namespace
}  // namespace velmora
