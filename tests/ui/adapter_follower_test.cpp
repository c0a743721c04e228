#include "ui/adapter_follower.h"

#include <gtest/gtest.h>

#include <optional>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kHalfASecond{500};

class AdapterFollowerTest : public testing::Test {
  protected:
    void follow(bool told) {
        follower.emplace(timer, told, [this] { ++looks; });
    }

    test::FakeTime time;
    test::FakeTime::FakeTimer& timer = time.makeTimer();
    int looks = 0;
    std::optional<AdapterFollower> follower;
};

TEST_F(AdapterFollowerTest, APlugIsSeenWithinHalfASecondAndNothingElseIsLookedFor) {
    follow(true);
    time.advance(std::chrono::seconds(60));
    EXPECT_EQ(looks, 0);
    follower->adaptersChanged();
    time.advance(kHalfASecond);
    EXPECT_EQ(looks, 1);
    time.advance(std::chrono::seconds(60));
    EXPECT_EQ(looks, 1);
}

TEST_F(AdapterFollowerTest, TheManyEventsOfOnePlugAreOneLook) {
    follow(true);
    for (int event = 0; event < 100; ++event) {
        follower->adaptersChanged();
        time.advance(milliseconds(1));
    }
    time.advance(kHalfASecond);
    EXPECT_EQ(looks, 1);
}

TEST_F(AdapterFollowerTest, EventsThatNeverEndDoNotPutTheLookOff) {
    follow(true);
    for (int event = 0; event < 50; ++event) {
        follower->adaptersChanged();
        time.advance(milliseconds(10));
    }
    EXPECT_GE(looks, 1);
}

TEST_F(AdapterFollowerTest, WithoutWordOfTheSystemTheListIsLookedUpTwiceASecond) {
    follow(false);
    for (int half = 1; half <= 10; ++half) {
        time.advance(kHalfASecond);
        EXPECT_GE(looks, half);
    }
}

TEST_F(AdapterFollowerTest, AListThatIsGoneIsNotLookedUp) {
    follow(true);
    follower->adaptersChanged();
    follower.reset();
    time.advance(std::chrono::seconds(1));
    EXPECT_EQ(looks, 0);
}

}  // namespace
}  // namespace velmora
