// The main window and a controller, with everything around them under the test's control.
#pragma once

#include <cstdint>
#include <string>

#include "server/server_controller.h"
#include "support/fake_timers.h"
#include "support/no_yield.h"
#include "support/recording_store.h"
#include "support/scripted_box.h"
#include "support/scripted_link.h"
#include "support/scripted_port.h"
#include "ui/qt/frm_main.h"

namespace velmora::test {

/// The window's actions reach the controller as in the program.
struct WindowRig {
    WindowRig() {
        controller.attachLink(link);
        controller.showLabelTexts();
        controller.setClosingActions({&store, {}, {}});
        frmMain::Actions actions;
        actions.pbStartStop_Click = [this] { controller.pbStartStop_Click(); };
        actions.pbSetup_Click = [this] { controller.pbSetup_Click([this] { ++setups; }); };
        actions.pbFolder_Click = [this] { ++folders; };
        actions.pbHide_Click = [this] { controller.pbHide_Click(); };
        actions.pbShutDown_Click = [this] { controller.pbShutDown_Click(); };
        actions.pbOpenFolder_Click = [this] { ++openedFolders; };
        actions.pbAbout_Click = [this] { ++abouts; };
        actions.pbTransfers_Click = [this] { ++transferWindows; };
        actions.lblDebug_DblClick = [this] { ++debugSwitches; };
        actions.queryUnload = [this](CloseReason reason) {
            lastReason = reason;
            return controller.queryUnload(reason);
        };
        actions.closed = [this] { closed = true; };
        actions.resized = [this](bool minimised) { controller.windowResized(minimised); };
        window.setActions(std::move(actions));
    }

    /// Brings a server of any state to another.
    void reach(std::int32_t state) {
        if (state >= WaitLink) {
            controller.setState(WaitLink);
        }
        controller.setState(state);
    }

    FakeTime time;
    NoYield yield;
    frmMain window;
    ScriptedBox box;
    Strings strings;
    ServerOptions options;
    TransferSettings transfer;
    ScriptedPort port;
    ScriptedLink link;
    RecordingStore store;
    FakeTime::FakeTimer& comTimer = time.makeTimer();
    FakeTime::FakeTimer& plpTimer = time.makeTimer();
    FakeTime::FakeTimer& displayTimer = time.makeTimer();
    int setups = 0;
    int folders = 0;
    int transferWindows = 0;
    int abouts = 0;
    int openedFolders = 0;
    int debugSwitches = 0;
    bool closed = false;
    CloseReason lastReason = CloseReason::Terminated;
    ServerController controller{
        {window, box, strings, options, transfer, port, comTimer, plpTimer, displayTimer, time, yield,
         [](const std::string& path) { return path.substr(path.find_last_of("\\/") + 1); }}};
};

}  // namespace velmora::test
