// State changes: what each state shows and does, starting, and changes that meet a start or a stop.
#include "server/port_status.h"
#include "support/controller_fixture.h"

namespace velmora {
namespace {

using test::milliseconds;

const std::string kBlankLine(16, ' ');

class StateChange : public test::ControllerTest {};

struct ShownRow {
    const char* name;
    std::int32_t state;
    const char* line1;
    const char* line2;
};

class ShownState : public StateChange, public testing::WithParamInterface<ShownRow> {};

// Each from state 5 ("Waiting for link" over a blank line), which is what an empty line leaves.
TEST_P(ShownState, ShowsItsTextsAndIsStored) {
    reach(WaitLink);
    controller.setState(GetParam().state);
    EXPECT_EQ(controller.state(), GetParam().state);
    expectDisplay(GetParam().line1, GetParam().line2);
    if (GetParam().state != WaitLink) {
        EXPECT_EQ(view.states, std::vector<std::int32_t>{GetParam().state});
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ShownState,
    testing::Values(ShownRow{"NoPort", NoPort, "No port selected", "The server could"},
                    ShownRow{"Shutdown", Shutdown, "Waiting for link", "                "},
                    ShownRow{"OnExit", OnExit, "Server was stopp", "  Click Start!  "},
                    ShownRow{"Offline", Offline, " Server Offline ", "  Click Start!  "},
                    ShownRow{"WaitLink", WaitLink, "Waiting for link", "                "},
                    ShownRow{"Connect", Connect, "Waiting for link", " Connecting...  "},
                    ShownRow{"FileAccess", FileAccess, " Accessing file ", "                "},
                    ShownRow{"Upload", Upload, " Uploading file ", "                "},
                    ShownRow{"Downld", Downld, "Downloading file", "                "},
                    ShownRow{"SendDir", SendDir, "    Sending     ", "   directory    "},
                    ShownRow{"SendMenu", SendMenu, "    Sending     ", "      menu      "},
                    ShownRow{"ServiceBusy", ServiceBusy, "  Sending code  ", "                "},
                    ShownRow{"LinkFailed", LinkFailed, "Waiting for link", "                "},
                    ShownRow{"Error", Error, "Waiting for link", "Waiting for link"}),
    [](const auto& row) { return row.param.name; });

TEST_F(StateChange, NumbersThatAreNoStateAreIgnored) {
    reach(Offline);
    for (const std::int32_t number : {-1, -2, 15, 1000, -2'000'000'000}) {
        controller.setState(number);
        EXPECT_EQ(controller.state(), Offline) << number;
    }
    EXPECT_TRUE(view.states.empty());
}

TEST_F(StateChange, TheSameStateAgainDoesNothing) {
    reach(WaitLink);
    options.AutoHide = true;
    controller.setState(WaitLink);
    EXPECT_TRUE(view.states.empty());
    EXPECT_FALSE(view.minimised);
}

TEST_F(StateChange, TheErrorStateIsProcessedEachTimeButNotRedrawn) {
    reach(Error);
    options.AutoPopup = true;
    view.minimised = true;
    view.enabled[MainButton::StartStop] = false;
    const int drawn = view.displayChanges;
    controller.setState(Error);
    EXPECT_EQ(view.states, std::vector<std::int32_t>{Error});
    EXPECT_TRUE(view.enabled[MainButton::StartStop]);
    EXPECT_TRUE(view.said("restore"));
    EXPECT_EQ(view.displayChanges, drawn);
}

TEST_F(StateChange, OfflineAtFirstShowsTheWelcomeTexts) {
    controller.setState(Offline);
    EXPECT_EQ(controller.state(), Offline);
    expectDisplay("Please set PROTO", "and click Start!");
    EXPECT_TRUE(displayTimer.enabled());
}

TEST_F(StateChange, NoPortDisablesStartAndLeadsToSetup) {
    controller.setState(NoPort);
    EXPECT_FALSE(view.enabled[MainButton::StartStop]);
    EXPECT_TRUE(view.enabled[MainButton::Setup]);
    EXPECT_EQ(view.focus, std::vector<MainButton>{MainButton::Setup});
}

TEST_F(StateChange, AnInvisibleWindowGivesNoFocus) {
    view.visible = false;
    controller.setState(NoPort);
    controller.setState(WaitLink);
    controller.setState(Offline);
    EXPECT_TRUE(view.focus.empty());
}

TEST_F(StateChange, StartOpensThePortAndSetsTheButtons) {
    reach(Offline);
    controller.setState(WaitLink);
    EXPECT_EQ(link.calls, std::vector<std::string>{"start"});
    EXPECT_TRUE(port.open);
    EXPECT_EQ(view.captions[MainButton::StartStop], "Stop");
    EXPECT_TRUE(view.enabled[MainButton::StartStop]);
    EXPECT_FALSE(view.enabled[MainButton::Setup]);
    EXPECT_EQ(view.focus, std::vector<MainButton>{MainButton::StartStop});
    EXPECT_FALSE(view.said("minimise"));
}

TEST_F(StateChange, StopClosesThePortAndSetsTheButtons) {
    reach(WaitLink);
    controller.setState(Offline);
    EXPECT_EQ(link.calls, std::vector<std::string>{"stop"});
    EXPECT_FALSE(port.open);
    EXPECT_EQ(view.captions[MainButton::StartStop], "Start");
    EXPECT_TRUE(view.enabled[MainButton::Setup]);
    EXPECT_EQ(view.focus, std::vector<MainButton>{MainButton::StartStop});
    EXPECT_TRUE(box.asked.empty());
}

TEST_F(StateChange, AChangeBetweenStoppedStatesStopsNothing) {
    reach(OnExit);
    controller.setState(Offline);
    EXPECT_TRUE(link.calls.empty());
    expectDisplay(" Server Offline ", "  Click Start!  ");
}

struct StartRow {
    const char* name;
    std::int32_t result;
    const char* warning;
};

class FailedStart : public StateChange, public testing::WithParamInterface<StartRow> {};

TEST_P(FailedStart, WarnsAndStaysOffline) {
    reach(OnExit);
    options.AutoHide = true;
    port.number = 7;
    link.startResult = GetParam().result;
    controller.setState(WaitLink);
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(view.warning(), GetParam().warning);
    EXPECT_TRUE(view.messages.lines[1].twoLines);
    expectDisplay(" Server Offline ", "  Click Start!  ");
    EXPECT_NE(view.captions[MainButton::StartStop], "Stop");
    EXPECT_FALSE(view.said("minimise"));
    EXPECT_TRUE(controller.portFailed());
    EXPECT_EQ(link.count("stop"), 0);
}

INSTANTIATE_TEST_SUITE_P(Results, FailedStart,
                         testing::Values(StartRow{"InUse", 4, "Port COM7 is in use by another application!"},
                                         StartRow{"NotAccessible", 5, "Port COM7 is not accessible!"},
                                         StartRow{"OpenError", 6, "Port COM7 open error!"},
                                         StartRow{"UnknownResult", 99, "Port COM7 "}),
                         [](const auto& row) { return row.param.name; });

TEST_F(StateChange, ResultNoughtIsASuccessfulStartToo) {
    link.startResult = 0;
    controller.setState(WaitLink);
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(StateChange, AFailedStartAtProgramStartShowsTheWelcomeTexts) {
    link.startResult = 5;
    controller.setState(WaitLink);
    EXPECT_EQ(controller.state(), Offline);
    expectDisplay("Please set PROTO", "and click Start!");
}

TEST_F(StateChange, ALaterStartForgetsTheFailure) {
    link.startResult = 5;
    controller.setState(WaitLink);
    link.startResult = 1;
    controller.setState(WaitLink);
    EXPECT_FALSE(controller.portFailed());
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(StateChange, AutoHideMinimisesOnStartAndWhenTheLinkIsSoughtOrUp) {
    options.AutoHide = true;
    controller.setState(WaitLink);
    EXPECT_TRUE(view.minimised);
    reach(Connect);
    view.minimised = false;
    controller.setState(WaitLink);
    EXPECT_TRUE(view.minimised);
    view.minimised = false;
    controller.setState(Connect);
    EXPECT_TRUE(view.minimised);
    view.minimised = false;
    controller.setState(Downld);
    EXPECT_FALSE(view.minimised);
}

TEST_F(StateChange, AutoPopupRaisesTheWindowForTransfers) {
    options.AutoPopup = true;
    reach(WaitLink);
    controller.setState(Connect);
    EXPECT_TRUE(view.windowCalls.empty());
    for (std::int32_t state = FileAccess; state <= Error; ++state) {
        view.windowCalls.clear();
        if (state == LinkFailed) {
            continue;
        }
        controller.setState(state);
        EXPECT_EQ(view.windowCalls, (std::vector<std::string>{"restore", "bringToFront"})) << state;
    }
}

TEST_F(StateChange, AFailedLinkRaisesNothing) {
    options.AutoPopup = true;
    options.AutoHide = true;
    reach(Connect);
    controller.setState(LinkFailed);
    EXPECT_TRUE(view.windowCalls.empty());
    EXPECT_TRUE(link.calls.empty());
}

TEST_F(StateChange, TheTitleCarriesTheStateWhileMinimised) {
    reach(WaitLink);
    view.minimised = true;
    controller.setState(SendDir);
    EXPECT_EQ(view.caption, "Velmora - Sending directory");
    controller.setState(Connect);
    EXPECT_EQ(view.caption, "Velmora -  Connecting...");
    view.minimised = false;
    controller.setState(SendMenu);
    EXPECT_EQ(view.caption, "Velmora -  Connecting...");
}

TEST_F(StateChange, TheTitleIsTheCataloguesTextNotTheMirrors) {
    view.minimised = true;
    controller.setState(Offline);
    EXPECT_EQ(view.caption, "Velmora - Server Offline Click Start!");
    EXPECT_EQ(view.line1, "Please set PROTO");
}

TEST_F(StateChange, ShutdownArmsTheTimerAndEndsTheProgramHalfASecondLater) {
    reach(WaitLink);
    closeProgramOnRequest();
    controller.setState(Shutdown);
    EXPECT_FALSE(port.open);
    EXPECT_EQ(plpTimer.interval(), milliseconds(500));
    time.advance(milliseconds(499));
    EXPECT_FALSE(programEnded);
    time.advance(milliseconds(1));
    EXPECT_TRUE(programEnded);
    EXPECT_TRUE(box.asked.empty());
    EXPECT_EQ(link.count("timeout"), 0);
}

TEST_F(StateChange, AClickInTheHalfSecondKeepsTheProgramRunning) {
    reach(WaitLink);
    controller.setState(Shutdown);
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), Offline);
    time.advance(milliseconds(2000));
    EXPECT_FALSE(view.said("close"));
    EXPECT_FALSE(plpTimer.enabled());
    EXPECT_EQ(link.count("timeout"), 0);
}

// ---------------------------------------------------------------------------------------------------------
// Changes that meet a start or a stop

TEST_F(StateChange, AServiceThatEndsWhileTheLinkIsStoppedDoesNotRestartTheServer) {
    reach(Downld);
    options.AutoHide = true;
    link.onStop = [this] { controller.setState(WaitLink); };
    controller.setState(Offline);
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_FALSE(port.open);
    EXPECT_EQ(link.calls, std::vector<std::string>{"stop"});
    EXPECT_EQ(view.states, std::vector<std::int32_t>{Offline});
    EXPECT_FALSE(view.minimised);
}

TEST_F(StateChange, AFailureReportedInsideTheStartStopsTheServerWithTheNextTick) {
    reach(Offline);
    link.onStart = [this] { controller.setState(LinkFailed); };
    controller.setState(WaitLink);
    EXPECT_EQ(controller.state(), LinkFailed);
    tick();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_FALSE(port.open);
}

TEST_F(StateChange, AStopRequestedInsideTheStartIsCarriedOutAfterIt) {
    reach(Offline);
    link.onStart = [this] {
        controller.setState(Offline);
        controller.setState(WaitLink);
    };
    controller.setState(WaitLink);
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_FALSE(port.open);
    EXPECT_EQ(link.calls, (std::vector<std::string>{"start", "stop"}));
}

TEST_F(StateChange, AnotherStartInsideTheStartIsNothing) {
    reach(Offline);
    link.onStart = [this] { controller.pbStartStop_Click(); };
    controller.setState(WaitLink);
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_EQ(link.calls, std::vector<std::string>{"start"});
}

TEST_F(StateChange, TicksInsideTheStartDoNothing) {
    reach(Offline);
    bytesArrive();
    link.onStart = [this] {
        plpTimer.setInterval(milliseconds(10));
        plpTimer.setEnabled(true);
        time.advance(milliseconds(40));
    };
    controller.setState(WaitLink);
    EXPECT_EQ(link.calls, std::vector<std::string>{"start"});
}

TEST_F(StateChange, AProgramThatEndsInsideTheStartStopsTheLink) {
    reach(Offline);
    link.onStart = [this] { EXPECT_TRUE(controller.queryUnload(CloseReason::User)); };
    controller.setState(WaitLink);
    EXPECT_EQ(link.calls, (std::vector<std::string>{"start", "stop"}));
    EXPECT_FALSE(port.open);
    EXPECT_TRUE(view.states.empty());
}

TEST_F(StateChange, AStartIsToldOnceThePortIsOpenAndNoFailedOne) {
    int told = 0;
    onStarted = [&] {
        ++told;
        EXPECT_TRUE(port.open);
    };
    controller.setState(WaitLink);
    controller.setState(Connect);
    EXPECT_EQ(told, 1);
    controller.setState(Offline);
    link.startResult = kStatusInUse;
    controller.setState(WaitLink);
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace velmora
