#include "doctor/stoppable_line.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>

#include "doctor/line_doctor.h"
#include "doctor/simulated_line.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class StoppableLineTest : public testing::Test {
  protected:
    void examine() { LineDoctor(ExaminedDevice(), stoppable, LineSettings()).examine(); }

    test::SimulatedLine line{tools::Illness(), 1};
    ExaminedLine::Time stopAt{0};
    StoppableLine stoppable{line, [this] { return line.now() >= stopAt; }};
};

TEST_F(StoppableLineTest, WithoutAWishToStopItWaitsForItsDeadline) {
    StoppableLine unstopped(line, {});
    EXPECT_TRUE(unstopped.read(1s).bytes.empty());
    EXPECT_EQ(unstopped.now(), 1s);
}

TEST_F(StoppableLineTest, AReadEndsSoonAfterItIsStopped) {
    stopAt = 500ms;
    EXPECT_THROW(stoppable.read(10s), ExaminationStopped);
    EXPECT_LE(line.now(), 520ms);
}

TEST_F(StoppableLineTest, AnExaminationThatIsStoppedTakesTheLinkDown) {
    line.handheld = std::make_unique<test::SimulatedHandheld>(70ms, 20ms);
    stopAt = 2s;
    EXPECT_THROW(examine(), ExaminationStopped);
    line.read(line.now() + 1s);
    EXPECT_EQ(line.handheld->heard().back(), static_cast<std::uint8_t>(FrameType::Discon));
}

TEST_F(StoppableLineTest, ALineThatIsLostMeanwhileIsStoppedAllTheSame) {
    stopAt = 2s;
    line.lostAt = 2s;
    EXPECT_THROW(examine(), ExaminationStopped);
}

}  // namespace
}  // namespace velmora
