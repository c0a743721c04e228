// EXIT and SHUTDOWN, interrupting a transfer, the end of the program, and questions that wait.
#include "support/controller_fixture.h"

namespace velmora {
namespace {

using test::milliseconds;

const char* const kInterrupt = "Transaction in progress! Do you really want to stop the server?";
const char* const kExitQuestion = "EXIT requested by Organiser, stop server?";
const char* const kShutdownQuestion = "SHUTDOWN requested by Organiser, terminate Velmora?";

class StopRequest : public test::ControllerTest {};

// ---------------------------------------------------------------------------------------------------------
// The gate of EXIT and SHUTDOWN

struct WindowRow {
    bool restoreWin;
    bool hideWin;
    std::vector<std::string> calls;
};

TEST_F(StopRequest, TheWindowReactsAsConfigured) {
    for (const WindowRow& row : {WindowRow{true, false, {"restore"}}, WindowRow{false, true, {"minimise"}},
                                 WindowRow{true, true, {}}, WindowRow{false, false, {}}}) {
        for (const std::int32_t request : {OnExit, Shutdown}) {
            reach(WaitLink);
            options.RestoreWin = row.restoreWin;
            options.HideWin = row.hideWin;
            controller.setState(request);
            EXPECT_EQ(view.windowCalls, row.calls);
            controller.setState(Offline);
        }
    }
}

TEST_F(StopRequest, AnIgnoredExitLeavesStateAndDisplayButTheWindowHasReacted) {
    reach(WaitLink);
    options.StopServer = false;
    const int drawn = view.displayChanges;
    controller.setState(OnExit);
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_EQ(view.displayChanges, drawn);
    EXPECT_TRUE(view.said("restore"));
    EXPECT_TRUE(port.open);
    EXPECT_TRUE(box.asked.empty());
}

TEST_F(StopRequest, AnIgnoredShutdownLeavesTheServerRunning) {
    reach(WaitLink);
    options.AllowShutdown = false;
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_TRUE(port.open);
}

TEST_F(StopRequest, EachRequestHasItsOwnSwitch) {
    reach(WaitLink);
    options.StopServer = false;
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), Shutdown);
    controller.setState(Offline);
    reach(WaitLink);
    options.StopServer = true;
    options.AllowShutdown = false;
    controller.setState(OnExit);
    EXPECT_EQ(controller.state(), OnExit);
}

TEST_F(StopRequest, AskedUsersDecideAlone) {
    options.AskUser = true;
    options.StopServer = false;
    options.AllowShutdown = false;
    reach(WaitLink);
    controller.setState(OnExit);
    EXPECT_EQ(controller.state(), OnExit);
    reach(WaitLink);
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), Shutdown);
    ASSERT_EQ(box.asked.size(), 2U);
    EXPECT_EQ(box.asked[0].text, kExitQuestion);
    EXPECT_EQ(box.asked[1].text, kShutdownQuestion);
    EXPECT_EQ(box.asked[0].title, "Velmora");
    EXPECT_EQ(box.asked[0].icon, BoxIcon::Question);
    EXPECT_TRUE(box.asked[0].foreground);
}

TEST_F(StopRequest, ANoLeavesEverything) {
    options.AskUser = true;
    box.answer = false;
    reach(WaitLink);
    controller.setState(OnExit);
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_TRUE(port.open);
    EXPECT_TRUE(link.calls.empty());
    EXPECT_FALSE(plpTimer.enabled());
}

TEST_F(StopRequest, TheSameRequestIsNotAskedAgainWhileItsQuestionWaits) {
    options.AskUser = true;
    reach(WaitLink);
    link.receiveResult = OnExit;
    box.whileAsking = [this] {
        view.windowCalls.clear();
        bytesArrive();
        time.advance(milliseconds(200));
        EXPECT_TRUE(view.windowCalls.empty());
    };
    bytesArrive();
    tick();
    EXPECT_EQ(box.asked.size(), 1U);
    EXPECT_EQ(controller.state(), OnExit);
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(StopRequest, AServerThatStoppedWhileExitWasAskedStaysAsItIs) {
    options.AskUser = true;
    reach(WaitLink);
    box.whileAsking = [this] {
        portBreaks();
        time.advance(milliseconds(20));
    };
    controller.setState(OnExit);
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(view.warning(), "COM1: device gone");
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(StopRequest, AnAcceptedShutdownEndsTheProgramThoughTheServerStoppedMeanwhile) {
    options.AskUser = true;
    reach(WaitLink);
    closeProgramOnRequest();
    box.whileAsking = [this] {
        portBreaks();
        time.advance(milliseconds(20));
    };
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), Shutdown);
    EXPECT_EQ(link.count("stop"), 1);
    time.advance(milliseconds(500));
    EXPECT_TRUE(programEnded);
}

TEST_F(StopRequest, ATransferThatBeganWhileShutdownWasAskedIsGuarded) {
    options.AskUser = true;
    reach(WaitLink);
    box.whileAsking = [this] {
        box.whileAsking = {};
        controller.setState(Connect);
        controller.setState(Downld);
    };
    controller.setState(Shutdown);
    ASSERT_EQ(box.asked.size(), 2U);
    EXPECT_EQ(box.asked[1].text, kInterrupt);
    EXPECT_EQ(controller.state(), Shutdown);
}

TEST_F(StopRequest, ARequestOfAServerThatIsStoppedAlreadyIsStillCarriedOut) {
    reach(Offline);
    controller.setState(OnExit);
    EXPECT_EQ(controller.state(), OnExit);
    EXPECT_TRUE(link.calls.empty());
}

// ---------------------------------------------------------------------------------------------------------
// Interrupting a transfer

TEST_F(StopRequest, StoppingATransferIsAskedInEveryStateFromConnectOnButLinkFailed) {
    for (std::int32_t state = WaitLink; state <= Error; ++state) {
        reach(state);
        box.asked.clear();
        controller.setState(Offline);
        const bool asks = state >= Connect && state != LinkFailed;
        EXPECT_EQ(box.asked.size(), asks ? 1U : 0U) << state;
        EXPECT_EQ(controller.state(), Offline) << state;
        EXPECT_FALSE(port.open) << state;
    }
}

TEST_F(StopRequest, TheQuestionDefaultsToNoAndWarns) {
    reach(Downld);
    controller.pbStartStop_Click();
    ASSERT_EQ(box.asked.size(), 1U);
    EXPECT_EQ(box.asked[0].text, kInterrupt);
    EXPECT_EQ(box.asked[0].title, "Velmora");
    EXPECT_EQ(box.asked[0].icon, BoxIcon::Exclamation);
    EXPECT_FALSE(box.asked[0].defaultYes);
}

TEST_F(StopRequest, ARefusedStopLeavesStatePortLinkAndButtons) {
    reach(Downld);
    box.answer = false;
    box.whileAsking = [this] { EXPECT_FALSE(view.enabled[MainButton::Setup]); };
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), Downld);
    EXPECT_TRUE(port.open);
    EXPECT_TRUE(link.calls.empty());
    EXPECT_FALSE(view.enabled[MainButton::Setup]);
    EXPECT_EQ(view.captions[MainButton::StartStop], "Stop");
}

TEST_F(StopRequest, ExitInterruptsWithoutAskingShutdownAsks) {
    reach(Downld);
    controller.setState(OnExit);
    EXPECT_EQ(controller.state(), OnExit);
    EXPECT_TRUE(box.asked.empty());

    reach(Downld);
    box.answer = false;
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), Downld);
    EXPECT_TRUE(port.open);
    EXPECT_FALSE(plpTimer.enabled());
    box.answer = true;
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), Shutdown);
    EXPECT_EQ(box.asked.size(), 2U);
}

TEST_F(StopRequest, ShutdownOfAFailedLinkAsksNothing) {
    reach(LinkFailed);
    controller.setState(Shutdown);
    EXPECT_EQ(controller.state(), Shutdown);
    EXPECT_TRUE(box.asked.empty());
}

TEST_F(StopRequest, TheTransferGoesOnWhileTheQuestionWaits) {
    reach(Downld);
    box.answer = false;
    box.whileAsking = [this] {
        bytesArrive();
        time.advance(milliseconds(60));
    };
    controller.pbStartStop_Click();
    EXPECT_EQ(link.count("receive"), 3);
    EXPECT_EQ(controller.state(), Downld);
}

TEST_F(StopRequest, ATransferThatEndedWhileTheQuestionWaitedIsStoppedAllTheSame) {
    reach(Downld);
    box.whileAsking = [this] { controller.setState(WaitLink); };
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(StopRequest, AServerThatStoppedWhileTheQuestionWaitedIsNotStoppedAgain) {
    reach(Downld);
    box.whileAsking = [this] { controller.setState(OnExit); };
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), OnExit);
    EXPECT_EQ(link.count("stop"), 1);
    expectDisplay("Server was stopp", "  Click Start!  ");
}

TEST_F(StopRequest, ALinkThatFailsWhileTheQuestionWaitsStopsTheServerUnasked) {
    reach(Downld);
    box.answer = false;
    box.whileAsking = [this] {
        controller.setState(LinkFailed);
        time.advance(milliseconds(20));
    };
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(box.asked.size(), 1U);
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(StopRequest, AShutdownDuringTheQuestionDoesNotAskASecondTime) {
    reach(Downld);
    box.answer = false;
    box.whileAsking = [this] { controller.setState(Shutdown); };
    controller.pbStartStop_Click();
    EXPECT_EQ(box.asked.size(), 1U);
    EXPECT_EQ(controller.state(), Downld);
}

TEST_F(StopRequest, AShutdownThatWasAcceptedWhileAStopWasAskedStands) {
    reach(Downld);
    box.whileAsking = [this] {
        controller.setState(WaitLink);
        controller.setState(Shutdown);
    };
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), Shutdown);
    EXPECT_TRUE(plpTimer.enabled());
    EXPECT_EQ(link.count("stop"), 1);
}

// ---------------------------------------------------------------------------------------------------------
// The end of the program

class Closing : public test::ControllerTest {
  protected:
    Closing() {
        transfer.DataFileType = 2;
        options.AutoStart = true;
        port.number = 7;
        port.settings = "2400,N,8,1";
        controller.setClosingActions(
            {&store, [this] { steps += "position "; }, [this] { steps += "debug "; }});
    }
    bool close(CloseReason reason = CloseReason::User) { return controller.queryUnload(reason); }

    std::string steps;
};

TEST_F(Closing, SavesSettingsAndPositionAndClosesTheDebugWindow) {
    reach(Offline);
    EXPECT_TRUE(close());
    EXPECT_EQ(store.entries,
              (std::vector<std::string>{"[Settings] DataFileType=2", "[Settings] AutoStart=True",
                                        "[Settings] Port=7", "[Settings] Baud=2400"}));
    EXPECT_EQ(steps, "position debug ");
    EXPECT_TRUE(box.asked.empty());
    EXPECT_TRUE(link.calls.empty());
}

TEST_F(Closing, SavesPortAndBaudWithAutoSaveOnly) {
    reach(Offline);
    options.AutoSave = false;
    options.AutoStart = false;
    close();
    EXPECT_EQ(store.entries,
              (std::vector<std::string>{"[Settings] DataFileType=2", "[Settings] AutoStart=False"}));
}

TEST_F(Closing, SavesTheDialectOfWorksheetsOnceSetupHasChangedIt) {
    transfer.sheets.wksDialect = WksDialect::Common;
    reach(Offline);
    options.AutoSave = false;
    options.AutoStart = false;
    controller.pbSetup_Click([this] { transfer.sheets.wksDialect = WksDialect::Own; });
    controller.pbSetup_Click([] {});
    close();
    EXPECT_EQ(store.entries,
              (std::vector<std::string>{"[Settings] DataFileType=2", "[Settings] AutoStart=False",
                                        "[Settings] WksDialect=0"}));
}

TEST_F(Closing, SavesNoPortWhenThereWasNone) {
    reach(NoPort);
    close();
    EXPECT_EQ(store.entries.size(), 2U);
}

TEST_F(Closing, StopsARunningServerWithoutAQuestionWhileNothingIsTransferred) {
    reach(WaitLink);
    EXPECT_TRUE(close());
    EXPECT_EQ(link.calls, std::vector<std::string>{"stop"});
    EXPECT_TRUE(box.asked.empty());
    EXPECT_FALSE(port.open);
    EXPECT_EQ(store.entries.size(), 4U);
}

TEST_F(Closing, AsksBeforeItInterruptsATransfer) {
    for (std::int32_t state = Connect; state <= Error; ++state) {
        reach(state);
        box.asked.clear();
        box.answer = false;
        EXPECT_FALSE(close()) << state;
        ASSERT_EQ(box.asked.size(), 1U) << state;
        EXPECT_EQ(box.asked[0].text, kInterrupt);
        EXPECT_FALSE(box.asked[0].defaultYes);
        EXPECT_EQ(controller.state(), state);
        EXPECT_TRUE(port.open);
        EXPECT_TRUE(store.entries.empty());
        EXPECT_EQ(steps, "");
        box.answer = true;
        controller.setState(Offline);
    }
    reach(Downld);
    EXPECT_TRUE(close());
    EXPECT_FALSE(port.open);
    EXPECT_EQ(steps, "position debug ");
}

TEST_F(Closing, AfterAShutdownNothingIsAskedAndAllIsSaved) {
    reach(WaitLink);
    closeProgramOnRequest();
    controller.setState(Shutdown);
    time.advance(milliseconds(500));
    EXPECT_TRUE(programEnded);
    EXPECT_EQ(store.entries.size(), 4U);
    EXPECT_EQ(steps, "position debug ");
    EXPECT_EQ(link.count("stop"), 1);
}

TEST_F(Closing, WhenTheSystemEndsTheProgramNothingIsAskedStoppedOrSaved) {
    for (const CloseReason reason : {CloseReason::SystemShutdown, CloseReason::TaskManager}) {
        test::FakeTime ownTime;
        ServerController other({view, box, strings, options, transfer, port, ownTime.makeTimer(),
                                ownTime.makeTimer(), ownTime.makeTimer(), ownTime, yield,
                                [](const std::string& path) { return path; }});
        other.attachLink(link);
        other.setClosingActions({&store, [this] { steps += "position "; }, [this] { steps += "debug "; }});
        port.open = false;
        other.setState(WaitLink);
        other.setState(Downld);
        link.calls.clear();
        steps.clear();
        EXPECT_TRUE(other.queryUnload(reason));
        EXPECT_TRUE(link.calls.empty());
        EXPECT_TRUE(box.asked.empty());
        EXPECT_TRUE(store.entries.empty());
        EXPECT_EQ(steps, "debug ");
    }
}

TEST_F(Closing, ASignalGivesThePortBackWithoutAskingOrSaving) {
    reach(Downld);
    link.onStop = [this] { controller.setState(WaitLink); };
    EXPECT_TRUE(close(CloseReason::Terminated));
    EXPECT_FALSE(port.open);
    EXPECT_EQ(link.calls, std::vector<std::string>{"stop"});
    EXPECT_TRUE(box.asked.empty());
    EXPECT_TRUE(store.entries.empty());
}

TEST_F(Closing, ASecondCloseWhileTheQuestionWaitsIsRefused) {
    reach(Downld);
    box.answer = false;
    box.whileAsking = [this] { EXPECT_FALSE(close()); };
    EXPECT_FALSE(close());
    EXPECT_EQ(box.asked.size(), 1U);
}

TEST_F(Closing, ACloseWhileAStopIsAskedIsRefused) {
    reach(Downld);
    box.whileAsking = [this] { EXPECT_FALSE(close()); };
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(box.asked.size(), 1U);
}

TEST_F(Closing, AServerThatStoppedWhileTheQuestionWaitedIsNotStoppedAgain) {
    reach(Downld);
    box.whileAsking = [this] { controller.setState(OnExit); };
    EXPECT_TRUE(close());
    EXPECT_EQ(link.count("stop"), 1);
    EXPECT_EQ(steps, "position debug ");
}

TEST_F(Closing, AProgramToldToEndWhileTheQuestionWaitsEndsOnce) {
    reach(Downld);
    box.whileAsking = [this] { EXPECT_TRUE(close(CloseReason::Terminated)); };
    controller.pbStartStop_Click();
    EXPECT_EQ(link.count("stop"), 1);
    EXPECT_EQ(steps, "debug ");
    EXPECT_TRUE(view.states.empty());
}

TEST_F(Closing, NothingMovesAfterTheEnd) {
    reach(WaitLink);
    close();
    link.calls.clear();
    bytesArrive();
    time.advance(milliseconds(5000));
    controller.setState(WaitLink);
    controller.ComTimer_Tick();
    controller.PLPtimer_Tick();
    controller.pbStartStop_Click();
    EXPECT_TRUE(link.calls.empty());
    EXPECT_TRUE(close());
    EXPECT_EQ(steps, "position debug ");
}

TEST_F(Closing, SettingsThatCannotBeSavedAreSaidOnceAndTheProgramEnds) {
    reach(Offline);
    store.failure = ErrorNumber::DiskFull;
    EXPECT_TRUE(close());
    ASSERT_EQ(box.informed.size(), 1U);
    EXPECT_NE(box.informed[0].text.find("Disk full"), std::string::npos);
    EXPECT_EQ(steps, "position debug ");
}

TEST_F(Closing, EachActionMayBeMissing) {
    controller.setClosingActions({});
    reach(WaitLink);
    EXPECT_TRUE(close());
    EXPECT_TRUE(store.entries.empty());
}

}  // namespace
}  // namespace velmora
