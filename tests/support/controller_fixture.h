// A controller with everything around it under the test's control.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "server/server_controller.h"
#include "support/fake_timers.h"
#include "support/no_yield.h"
#include "support/recording_store.h"
#include "support/recording_view.h"
#include "support/scripted_box.h"
#include "support/scripted_link.h"
#include "support/scripted_port.h"

namespace velmora::test {

class ControllerTest : public testing::Test {
  protected:
    ControllerTest() { controller.attachLink(link); }

    /// Brings a stopped server to a state, past the questions of start-up.
    void reach(std::int32_t state) {
        if (state >= WaitLink) {
            controller.setState(WaitLink);
        }
        controller.setState(state);
        ASSERT_EQ(controller.state(), state);
        link.calls.clear();
        view.windowCalls.clear();
        view.focus.clear();
        view.statuses.clear();
        view.states.clear();
    }
    void bytesArrive() { port.input = "x"; }
    void portBreaks() { port.countError = CommError(kCommFailed, "device gone", "InBufferCount"); }
    void tick(milliseconds span = milliseconds(20)) { time.advance(span); }
    void expectDisplay(const std::string& line1, const std::string& line2) const {
        EXPECT_EQ(view.line1, line1);
        EXPECT_EQ(view.line2, line2);
    }
    void closeProgramOnRequest() {
        view.onClose = [this] { programEnded = controller.queryUnload(CloseReason::Program); };
    }

    FakeTime time;
    NoYield yield;
    RecordingView view;
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
    bool programEnded = false;
    bool portWatched = false;
    std::function<void()> onStarted;
    ServerController controller{
        {view,
         box,
         strings,
         options,
         transfer,
         port,
         comTimer,
         plpTimer,
         displayTimer,
         time,
         yield,
         [](const std::string& path) { return path.substr(path.find_last_of("\\/") + 1); },
         {},
         [this] { return portWatched; },
         [this] {
             if (onStarted) {
                 onStarted();
             }
         }}};
};

}  // namespace velmora::test
