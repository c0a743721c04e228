// What the controller shows, its buttons and its port test.
#include "server/server_controller.h"

#include "server/port_status.h"
#include "server/port_test.h"
#include "support/controller_fixture.h"

namespace velmora {
namespace {

using Controller = test::ControllerTest;
using test::milliseconds;

TEST_F(Controller, StartsInStateNoughtWithNothingToPollAndTheStatisticsShown) {
    EXPECT_EQ(controller.state(), Welcome);
    EXPECT_TRUE(comTimer.enabled());
    EXPECT_FALSE(time.advanceToNextTick(milliseconds(1000)));
    EXPECT_FALSE(plpTimer.enabled());
    EXPECT_TRUE(view.statisticsVisible);
}

TEST_F(Controller, TakesItsTicksOffTheTimersAtItsEnd) {
    test::FakeTime otherTime;
    auto& com = otherTime.makeTimer();
    {
        const ServerController shortLived({view, box, strings, options, transfer, port, com,
                                           otherTime.makeTimer(), otherTime.makeTimer(), otherTime, yield,
                                           [](const std::string& path) { return path; }});
    }
    com.setInterval(milliseconds(20));
    EXPECT_TRUE(otherTime.advanceToNextTick(milliseconds(20)));
    EXPECT_TRUE(link.calls.empty());
}

TEST_F(Controller, LabelsGetTheCataloguesTexts) {
    strings.Files = "Dateien";
    strings.Error = "Fehler";
    controller.showLabelTexts();
    EXPECT_EQ(view.headings[StatsHeading::Files], "Dateien");
    EXPECT_EQ(view.headings[StatsHeading::Bytes], "Bytes");
    EXPECT_EQ(view.headings[StatsHeading::Received], "Received");
    EXPECT_EQ(view.headings[StatsHeading::Sent], "Sent");
    EXPECT_EQ(view.warningCaption, "Fehler");
}

TEST_F(Controller, DebugModeShowsTheDebugLabel) {
    controller.setDebugMode(true);
    EXPECT_TRUE(view.debugLabel);
    controller.setDebugMode(false);
    EXPECT_FALSE(view.debugLabel);
}

TEST_F(Controller, TheCurrentFilesNameIsShownWhileAFileIsAtWork) {
    for (const std::int32_t state : {FileAccess, Upload, Downld}) {
        reach(state);
        controller.setCurrentFile("C:\\Psion\\Memo" + std::to_string(state) + ".odb");
        EXPECT_EQ(view.line2, "   Memo" + std::to_string(state) + ".odb    ");
    }
    EXPECT_EQ(view.statuses.back(), "Downloading file: Memo9.odb");
    EXPECT_EQ(controller.CurrentFile(), "C:\\Psion\\Memo9.odb");
}

TEST_F(Controller, TheCurrentFileIsOnlyStoredInOtherStates) {
    for (const std::int32_t state : {WaitLink, Connect, SendDir, ServiceBusy}) {
        reach(state);
        const std::string before = view.line2;
        controller.setCurrentFile("/psion/Memo.odb");
        EXPECT_EQ(view.line2, before) << state;
        EXPECT_EQ(controller.CurrentFile(), "/psion/Memo.odb");
    }
}

TEST_F(Controller, AnEmptyCurrentFileClearsItsLine) {
    reach(Downld);
    controller.setCurrentFile("/psion/Memo.odb");
    controller.setCurrentFile("");
    EXPECT_EQ(view.line2, std::string(16, ' '));
    EXPECT_EQ(view.statuses.back(), "Downloading file: Memo.odb");
}

TEST_F(Controller, ALongFileNameScrolls) {
    reach(Upload);
    controller.setCurrentFile("/psion/A very long name.odb");
    EXPECT_EQ(view.line2, "A very long name");
    time.advance(milliseconds(2700));
    EXPECT_EQ(view.line2, " very long name.");
    EXPECT_EQ(view.line1, " Uploading file ");
}

TEST_F(Controller, AnErrorTextIsShownAndStored) {
    controller.setErrorMsg("Too many!");
    EXPECT_EQ(view.line1, "   Too many!    ");
    EXPECT_EQ(controller.ErrorMsg(), "Too many!");
}

TEST_F(Controller, AnEmptyErrorTextIsIgnored) {
    controller.setErrorMsg("Too many!");
    const int before = view.displayChanges;
    controller.setErrorMsg("");
    EXPECT_EQ(controller.ErrorMsg(), "Too many!");
    EXPECT_EQ(view.displayChanges, before);
}

TEST_F(Controller, MessagesReachTheView) {
    controller.ShowText("one", "two", "three");
    EXPECT_EQ(view.messages.lines[0].text, "one");
    controller.ShowWarning("careful", "");
    EXPECT_EQ(view.warning(), "careful");
    controller.ShowClear();
    EXPECT_EQ(view.warning(), "");
}

TEST_F(Controller, LostContactIsShownUntilSomethingElseHappens) {
    strings.LineDown = "Gone!";
    reach(Downld);
    controller.ShowLineDown();
    controller.setState(WaitLink);
    EXPECT_EQ(view.messages.lines[1].text, "Gone!");
    EXPECT_TRUE(view.messages.lines[1].visible);
    EXPECT_FALSE(view.messages.warning);
    EXPECT_TRUE(box.asked.empty());
    controller.setState(Connect);
    EXPECT_FALSE(view.messages.lines[1].visible);
}

TEST_F(Controller, LostContactIsStillShownByAServerThatStopped) {
    reach(WaitLink);
    controller.ShowLineDown();
    controller.setState(Offline);
    EXPECT_TRUE(view.messages.lines[1].visible);
    controller.pbStartStop_Click();
    EXPECT_FALSE(view.messages.lines[1].visible);
}

TEST_F(Controller, OtherMessagesOutliveLostContact) {
    reach(Downld);
    controller.ShowWarning("careful", "");
    controller.ShowLineDown();
    EXPECT_EQ(view.warning(), "careful");
    controller.ShowClear();
    controller.ShowLineDown();
    controller.ShowWarning("careful", "");
    controller.setState(WaitLink);
    controller.setState(Connect);
    EXPECT_EQ(view.warning(), "careful");
}

TEST_F(Controller, AReportReachesTheViewAndChangesNothingElse) {
    const auto displayed = view.statuses.size();
    controller.Report("Plan.wks: saved");
    EXPECT_EQ(view.reports, std::vector<std::string>{"Plan.wks: saved"});
    EXPECT_EQ(view.statuses.size(), displayed);
}

TEST_F(Controller, StatisticsSurviveStartAndStop) {
    controller.SetStats(StatsBytesReceived, 12);
    reach(WaitLink);
    controller.pbStartStop_Click();
    EXPECT_EQ(view.stats[StatsLabel::BytesRecv], "12");
    controller.SetStats(StatsReset, 0);
    EXPECT_EQ(view.stats[StatsLabel::BytesRecv], "0");
}

TEST_F(Controller, StartStopStartsAStoppedServer) {
    for (const std::int32_t stopped : {Offline, OnExit}) {
        reach(stopped);
        controller.ShowWarning("old", "");
        controller.pbStartStop_Click();
        EXPECT_EQ(controller.state(), WaitLink);
        EXPECT_TRUE(port.open);
        EXPECT_EQ(view.warning(), "");
        controller.pbStartStop_Click();
        EXPECT_EQ(controller.state(), Offline);
        EXPECT_FALSE(port.open);
    }
}

TEST_F(Controller, AClickInStateNoughtShowsTheWelcomeTextAndDoesNotStart) {
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), Offline);
    expectDisplay("Please set PROTO", "and click Start!");
    EXPECT_EQ(link.count("start"), 0);
}

TEST_F(Controller, SetupIsFollowedByAStartWithAutoStartOnly) {
    reach(Offline);
    controller.ShowWarning("old", "");
    int opened = 0;
    controller.pbSetup_Click([&] { ++opened; });
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(view.warning(), "");
    EXPECT_EQ(controller.state(), Offline);
    controller.pbSetup_Click([&] { options.AutoStart = true; });
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(Controller, SetupEnablesStartAgainAfterNoPort) {
    reach(NoPort);
    EXPECT_FALSE(view.enabled[MainButton::StartStop]);
    controller.pbSetup_Click([] {});
    EXPECT_TRUE(view.enabled[MainButton::StartStop]);
    EXPECT_EQ(controller.state(), NoPort);
}

TEST_F(Controller, SetupStaysShutWhileTheServerRunsOrItIsOpen) {
    int opened = 0;
    controller.pbSetup_Click([&] {
        ++opened;
        controller.pbSetup_Click([&] { ++opened; });
    });
    EXPECT_EQ(opened, 1);
    reach(WaitLink);
    controller.pbSetup_Click([&] { ++opened; });
    EXPECT_EQ(opened, 1);
}

TEST_F(Controller, NothingHappensAfterASetupInWhichTheProgramEnded) {
    reach(Offline);
    options.AutoStart = true;
    controller.pbSetup_Click([&] { controller.queryUnload(CloseReason::Program); });
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(link.count("start"), 0);
}

TEST_F(Controller, HideMinimisesAndShutDownCloses) {
    controller.pbHide_Click();
    controller.pbShutDown_Click();
    EXPECT_EQ(view.windowCalls, (std::vector<std::string>{"minimise", "close"}));
}

TEST_F(Controller, AutoStartStartsOnceTheWindowIsShown) {
    reach(Offline);
    controller.windowShown();
    EXPECT_EQ(controller.state(), Offline);
    options.AutoStart = true;
    controller.windowShown();
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(Controller, AutoStartNeedsAPort) {
    reach(NoPort);
    options.AutoStart = true;
    controller.windowShown();
    EXPECT_EQ(controller.state(), NoPort);
}

TEST_F(Controller, ARestoredWindowHasItsOwnTitleAndTheFocusOnStart) {
    reach(Offline);
    view.caption = "something";
    controller.windowResized(true);
    EXPECT_EQ(view.caption, "something");
    controller.windowResized(false);
    EXPECT_EQ(view.caption, "Velmora");
    EXPECT_EQ(view.focus, std::vector<MainButton>{MainButton::StartStop});
}

// A window manager may show a window for a moment that begins minimised.
TEST_F(Controller, AnAutomaticallyHiddenWindowHasItsStateAsTitleHoweverItGotThere) {
    options.AutoHide = true;
    reach(WaitLink);
    controller.windowResized(false);
    EXPECT_EQ(view.caption, "Velmora");
    controller.windowResized(true);
    EXPECT_EQ(view.caption, "Velmora - Waiting for link ");
}

TEST_F(Controller, ARestoredWindowGivesNoFocusToADisabledButton) {
    reach(NoPort);
    controller.windowResized(false);
    EXPECT_TRUE(view.focus.empty());
}

TEST_F(Controller, CheckPortHeedsDontTestModemUnlessForced) {
    yield.onYield = [this] { time.advance(milliseconds(100)); };
    EXPECT_EQ(controller.checkPort(3, 0), kStatusAvailable);
    EXPECT_EQ(port.sent.size(), 1U);
    EXPECT_EQ(port.number, 3);
    options.DontTestModem = true;
    EXPECT_EQ(controller.checkPort(3, 0), kStatusAvailable);
    EXPECT_EQ(controller.checkPort(3, kNoProbe), kStatusAvailable);
    EXPECT_EQ(port.sent.size(), 1U);
    EXPECT_EQ(controller.checkPort(3, kProbeModem | kNoProbe), kStatusAvailable);
    EXPECT_EQ(port.sent.size(), 2U);
}

TEST_F(Controller, CheckPortHearsARequestToEndBeforeItOpensThePort) {
    yield.onYield = [this] { controller.queryUnload(CloseReason::Terminated); };
    EXPECT_EQ(controller.checkPort(3, kProbeModem), kStatusError);
    EXPECT_TRUE(controller.closed());
    EXPECT_TRUE(port.sent.empty());
    EXPECT_EQ(port.number, 1);
}

TEST_F(Controller, CheckPortLeavesTheRunningServersPortAlone) {
    reach(WaitLink);
    EXPECT_EQ(controller.checkPort(9, kProbeModem), kStatusInUse);
    EXPECT_EQ(port.number, 1);
    EXPECT_TRUE(port.open);
}

}  // namespace
}  // namespace velmora
