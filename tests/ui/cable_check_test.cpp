#include "ui/cable_check.h"

#include <gtest/gtest.h>

#include "arguments/version.h"
#include "doctor/stoppable_line.h"

namespace velmora {
namespace {

class CableCheckTest : public testing::Test {
  protected:
    /// Two steps and a verdict, unless it is stopped between the steps.
    Diagnosis examine(StepObserver& observer, const std::function<bool()>& stopWanted) {
        observer.found({DoctorStep::Adapter, StepStatus::Well, "FT232R, driver ftdi_sio."});
        if (amid) {
            amid();
        }
        if (stopWanted()) {
            throw ExaminationStopped();
        }
        observer.found({DoctorStep::Listening, StepStatus::Fault, "Nothing comes."});
        return {verdict, {}};
    }

    Verdict verdict{Cause::WrongRate, 95, "The Organiser uses 1200 baud, and the server 9600 baud."};
    std::function<void()> amid;
    int changes = 0;
    CableCheck check{"/dev/ttyUSB0",
                     [this](StepObserver& observer, const std::function<bool()>& stopWanted) {
                         return examine(observer, stopWanted);
                     },
                     [this] { ++changes; }};
};

TEST_F(CableCheckTest, SaysNothingBeforeItIsOver) {
    EXPECT_EQ(check.state(), CableCheck::State::Waiting);
    amid = [this] {
        EXPECT_EQ(check.state(), CableCheck::State::Running);
        EXPECT_EQ(check.steps().size(), 1U);
        EXPECT_EQ(check.result() + check.advice() + check.line(), "");
    };
    EXPECT_EQ(check.result() + check.advice() + check.line(), "");
    check.run();
    EXPECT_EQ(changes, 4);
}

TEST_F(CableCheckTest, TellsTheCauseWhatHelpsAndAllInOneLine) {
    check.run();
    EXPECT_EQ(check.state(), CableCheck::State::Done);
    EXPECT_EQ(check.result(),
              "The Organiser speaks at another rate than the server. The Organiser uses 1200 baud, and the "
              "server 9600 baud.");
    EXPECT_EQ(check.advice(), wordsOf(Cause::WrongRate).advice);
    EXPECT_EQ(check.line(), "Cable check: wrong-rate, 95 % sure. " + check.result() +
                                " Port: /dev/ttyUSB0. Adapter: FT232R, driver ftdi_sio. Velmora " +
                                fullVersion() + ".");
}

TEST_F(CableCheckTest, AWellLineNeedsNoAdvice) {
    verdict = {};
    check.run();
    EXPECT_EQ(check.result(), "The line is well.");
    EXPECT_EQ(check.advice(), "");
}

TEST_F(CableCheckTest, AStoppedCheckSaysSoAndCanBeMadeAgain) {
    amid = [this] { check.stop(); };
    check.run();
    EXPECT_EQ(check.state(), CableCheck::State::Stopped);
    EXPECT_EQ(check.result(), "The check was stopped.");
    EXPECT_EQ(check.advice() + check.line(), "");
    amid = nullptr;
    check.run();
    EXPECT_EQ(check.state(), CableCheck::State::Done);
    EXPECT_EQ(check.steps().size(), 2U);
}

TEST_F(CableCheckTest, APortThatDoesNotOpenHasNoAdapterToName) {
    CableCheck missing(
        "COM9",
        [](StepObserver&, const std::function<bool()>&) {
            return Diagnosis{{Cause::DeviceMissing, 95, {}}, {}};
        },
        [] {});
    missing.run();
    EXPECT_EQ(missing.line(),
              "Cable check: device-missing, 95 % sure. There is no such port. Port: COM9. Velmora " +
                  fullVersion() + ".");
}

}  // namespace
}  // namespace velmora
