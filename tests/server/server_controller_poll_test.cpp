// What the timers drive: polling, failing ports, link calls that outlive their link.
#include "support/controller_fixture.h"

namespace velmora {
namespace {

using test::milliseconds;

class Poll : public test::ControllerTest {
  protected:
    Poll() {
        controller.onPortFailure([this] { ++failures; });
    }
    int failures = 0;
};

TEST_F(Poll, BytesRunTheLink) {
    reach(WaitLink);
    tick();
    EXPECT_TRUE(link.calls.empty());
    bytesArrive();
    tick();
    EXPECT_EQ(link.calls, std::vector<std::string>{"receive"});
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(Poll, TheLinksResultBecomesTheState) {
    for (const std::int32_t result : {OnExit, Shutdown}) {
        reach(WaitLink);
        link.receiveResult = result;
        bytesArrive();
        tick();
        EXPECT_EQ(controller.state(), result);
        controller.setState(Offline);
    }
}

TEST_F(Poll, AStoppedServerIsNotPolled) {
    for (const std::int32_t state : {NoPort, Shutdown, OnExit, Offline}) {
        reach(state);
        bytesArrive();
        portBreaks();
        tick();
        EXPECT_TRUE(link.calls.empty());
        EXPECT_EQ(controller.state(), state);
        port.countError.reset();
    }
}

TEST_F(Poll, ADisabledPollDoesNothingWhoeverRunsIt) {
    reach(WaitLink);
    bytesArrive();
    comTimer.setEnabled(false);
    controller.ComTimer_Tick();
    EXPECT_TRUE(link.calls.empty());
    comTimer.setEnabled(true);
    controller.ComTimer_Tick();
    EXPECT_EQ(link.calls, std::vector<std::string>{"receive"});
}

TEST_F(Poll, AFailedLinkIsOfflineWithTheNextTickAndNothingIsAsked) {
    reach(Downld);
    controller.setState(LinkFailed);
    EXPECT_EQ(controller.state(), LinkFailed);
    bytesArrive();
    tick();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_FALSE(port.open);
    EXPECT_TRUE(box.asked.empty());
    EXPECT_EQ(link.calls, std::vector<std::string>{"stop"});
    EXPECT_EQ(failures, 1);
}

TEST_F(Poll, APortErrorWarnsAndStopsTheServer) {
    reach(WaitLink);
    port.number = 7;
    portBreaks();
    tick();
    EXPECT_EQ(view.warning(), "COM7: device gone");
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_FALSE(port.open);
    EXPECT_TRUE(controller.portFailed());
    EXPECT_EQ(failures, 1);
}

TEST_F(Poll, StartWorksAgainWhenTheDeviceIsBack) {
    reach(WaitLink);
    portBreaks();
    tick();
    port.countError.reset();
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_EQ(view.warning(), "");
    EXPECT_FALSE(controller.portFailed());
    bytesArrive();
    link.calls.clear();
    tick();
    EXPECT_EQ(link.calls, std::vector<std::string>{"receive"});
}

TEST_F(Poll, APortErrorDuringATransferAsksOnceHoweverLongTheAnswerTakes) {
    reach(Downld);
    portBreaks();
    box.whileAsking = [this] { time.advance(milliseconds(10'000)); };
    tick();
    EXPECT_EQ(box.asked.size(), 1U);
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(Poll, AfterANoTheFailedPortStopsTheServerWithoutAnotherQuestion) {
    reach(Downld);
    portBreaks();
    box.answer = false;
    tick();
    EXPECT_EQ(controller.state(), LinkFailed);
    tick();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(box.asked.size(), 1U);
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(link.count("receive"), 0);
    EXPECT_EQ(link.count("stop"), 1);
    EXPECT_FALSE(port.open);
    EXPECT_EQ(view.warning(), "COM1: device gone");
    EXPECT_EQ(view.messages.lines[2].text, "The transfer is lost.");
}

TEST_F(Poll, AReadThatFailsInTheLinkIsToldToo) {
    reach(Connect);
    // The same call reads the request for a file, and the end of the line behind it.
    link.onReceive = [this] {
        controller.setState(Downld);
        controller.setState(LinkFailed);
    };
    bytesArrive();
    tick();
    EXPECT_EQ(view.warning(), "COM1: The port failed.");
    EXPECT_EQ(view.messages.lines[2].text, "The transfer is lost.");
    tick();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_TRUE(box.asked.empty());
    EXPECT_EQ(view.warning(), "COM1: The port failed.");
}

TEST_F(Poll, AWriteThatFailsAmidAFileTellsWhatIsLost) {
    reach(Downld);
    link.onReceive = [this] {
        controller.ShowWarning("Send error -1", "gone");
        controller.setState(LinkFailed);
    };
    bytesArrive();
    tick();
    EXPECT_EQ(view.warning(), "Send error -1: gone");
    EXPECT_EQ(view.messages.lines[2].text, "The transfer is lost.");
}

TEST_F(Poll, AWriteThatFailsWhileReadingHasItsOwnWarning) {
    reach(Connect);
    link.onReceive = [this] {
        controller.ShowWarning("Send error 5", "gone");
        controller.setState(LinkFailed);
    };
    bytesArrive();
    tick();
    EXPECT_EQ(view.warning(), "Send error 5");
}

TEST_F(Poll, AfterANoStartWorksWhenTheDeviceIsBack) {
    reach(Downld);
    portBreaks();
    box.answer = false;
    tick();
    tick();
    port.countError.reset();
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_FALSE(controller.portFailed());
}

TEST_F(Poll, APortThatFailsBetweenTransfersLosesNone) {
    for (const std::int32_t state : {WaitLink, Connect}) {
        reach(state);
        portBreaks();
        tick();
        EXPECT_EQ(view.warning(), "COM1: device gone");
        EXPECT_EQ(view.messages.lines[2].text, "");
        port.countError.reset();
    }
}

TEST_F(Poll, APortThatFailsWhileAStopIsAskedStopsTheServerAndWithdrawsTheQuestion) {
    reach(Downld);
    box.whileAsking = [this] {
        portBreaks();
        time.advance(milliseconds(1000));
        EXPECT_EQ(controller.state(), Offline);
    };
    controller.pbStartStop_Click();
    EXPECT_EQ(box.asked.size(), 1U);
    EXPECT_EQ(box.withdrawn, std::vector<std::string>{strings.UserInterrupt});
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(link.count("stop"), 1);
    EXPECT_EQ(failures, 1);
}

TEST_F(Poll, AFailedWriteWithdrawsTheQuestionThatWaits) {
    reach(Downld);
    box.whileAsking = [this] {
        controller.setState(LinkFailed);
        tick();
    };
    controller.pbStartStop_Click();
    EXPECT_EQ(box.withdrawn, std::vector<std::string>{strings.UserInterrupt});
    EXPECT_EQ(controller.state(), Offline);
}

TEST_F(Poll, APortThatFailsWhileExitIsAskedWithdrawsTheQuestion) {
    options.AskUser = true;
    reach(WaitLink);
    box.whileAsking = [this] {
        portBreaks();
        tick();
    };
    controller.setState(OnExit);
    EXPECT_EQ(box.withdrawn, std::vector<std::string>{strings.OnExitAskText});
    EXPECT_EQ(controller.state(), Offline);
}

TEST_F(Poll, AnAcceptedShutdownGoesOnWhenItsQuestionAboutTheTransferHasBecomeMoot) {
    options.AllowShutdown = true;
    reach(Downld);
    box.answer = false;
    box.whileAsking = [this] {
        portBreaks();
        time.advance(milliseconds(40));
    };
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), Shutdown);
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(Poll, AWindowThatIsClosingGoesOnClosingWhenItsQuestionHasBecomeMoot) {
    reach(Downld);
    box.answer = false;
    box.whileAsking = [this] {
        portBreaks();
        time.advance(milliseconds(1000));
    };
    EXPECT_TRUE(controller.queryUnload(CloseReason::User));
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(Poll, TheProtocolTimerRunsTheLinksTimeOut) {
    reach(Connect);
    plpTimer.setInterval(milliseconds(500));
    plpTimer.setEnabled(true);
    time.advance(milliseconds(500));
    EXPECT_EQ(link.calls, std::vector<std::string>{"timeout"});
}

TEST_F(Poll, TheProtocolTimerLeavesAStoppedLinkAlone) {
    reach(Offline);
    controller.PLPtimer_Tick();
    EXPECT_TRUE(link.calls.empty());
}

// ---------------------------------------------------------------------------------------------------------
// Link calls that outlive their link

TEST_F(Poll, AServiceThatGoesOnAfterAStopDoesNotRestartTheServer) {
    reach(Connect);
    link.onReceive = [this] {
        controller.pbStartStop_Click();
        controller.setState(Downld);
        controller.setState(WaitLink);
        controller.setState(LinkFailed);
    };
    bytesArrive();
    tick();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(link.calls, (std::vector<std::string>{"receive", "stop"}));
    EXPECT_FALSE(port.open);
}

TEST_F(Poll, ATimeOutThatOutlivesItsLinkDoesNotRestartTheServer) {
    reach(WaitLink);
    link.onTimeout = [this] {
        controller.pbStartStop_Click();
        controller.setState(WaitLink);
    };
    controller.PLPtimer_Tick();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(link.count("start"), 0);
}

TEST_F(Poll, ARequestOfALinkThatWasStoppedMeanwhileIsDropped) {
    for (const std::int32_t request : {OnExit, Shutdown}) {
        reach(WaitLink);
        options.AskUser = true;
        link.receiveResult = request;
        link.onReceive = [this] { controller.pbStartStop_Click(); };
        bytesArrive();
        tick();
        EXPECT_EQ(controller.state(), Offline);
        EXPECT_TRUE(box.asked.empty());
    }
}

TEST_F(Poll, AStartClickedInsideALinkCallWaitsForItsEnd) {
    reach(WaitLink);
    link.onReceive = [this] {
        link.onReceive = {};
        controller.pbStartStop_Click();
        controller.pbStartStop_Click();
        EXPECT_EQ(controller.state(), Offline);
    };
    bytesArrive();
    tick();
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_EQ(link.calls, (std::vector<std::string>{"receive", "stop", "start"}));
}

TEST_F(Poll, AFailedPortIsNotCoveredUpByWhatTheSameCallReports) {
    reach(Downld);
    link.onReceive = [this] {
        controller.setState(LinkFailed);
        controller.setState(Error);
        controller.setState(WaitLink);
    };
    bytesArrive();
    tick();
    EXPECT_EQ(controller.state(), LinkFailed);
    tick();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_TRUE(box.asked.empty());
}

TEST_F(Poll, TooManySendErrorsLeaveTheServerRunning) {
    reach(Downld);
    link.onTimeout = [this] {
        controller.setState(Error);
        controller.setErrorMsg("Too many send errors!");
        controller.setState(WaitLink);
    };
    controller.PLPtimer_Tick();
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_TRUE(port.open);
    EXPECT_EQ(view.states, (std::vector<std::int32_t>{Error, WaitLink}));
    EXPECT_EQ(controller.ErrorMsg(), "Too many send errors!");
}

TEST_F(Poll, TheLongLineScrollsByTheDisplayTimer) {
    reach(OnExit);
    time.advance(milliseconds(2700));
    EXPECT_EQ(view.line1, "erver was stoppe");
}

}  // namespace
}  // namespace velmora
