// State changes.
#include <chrono>

#include "server/caption.h"
#include "server/controller_scope.h"
#include "server/server_controller.h"

namespace velmora {

namespace {

constexpr std::chrono::milliseconds kShutdownDelay{500};
constexpr const char* kWaitingForPort = "Waiting for port";
/// Results of PLP_Start up to this one are success.
constexpr std::int32_t kLastStartSuccess = 1;

bool isServerState(std::int32_t number) {
    return number >= Welcome && number <= Error;
}

}  // namespace

void ServerController::setState(std::int32_t newState) {
    if (!isServerState(newState) || closed_ || stopping_ > 0) {
        return;
    }
    if (starting_ > 0) {
        deferUntilStarted(newState);
        return;
    }
    const bool linkIsDown = !running() || state_ == LinkFailed;
    if (linkCalls_ > 0 && linkIsDown && newState >= WaitLink) {
        return;
    }
    if (newState == state_ && newState != Error) {
        return;
    }
    changeState(newState);
}

// A stop or a failure is not forgotten for a later report of a link that runs.
void ServerController::deferUntilStarted(std::int32_t next) {
    const bool stops = next < WaitLink || next == LinkFailed;
    if (stops || !pending_) {
        pending_ = next;
    }
}

void ServerController::changeState(std::int32_t next) {
    if (next == OnExit || next == Shutdown) {
        const std::int32_t old = state_;
        if (!stopRequestPasses(next) || !stillWanted(old, next)) {
            return;
        }
    }
    if (next == NoPort) {
        enterNoPort();
    } else {
        enableButton(MainButton::StartStop, true);
        if (next == LinkFailed) {
            tellOfFailedPort();
            portFails();
        } else if (next < WaitLink) {
            if (!stopServer(next)) {
                return;
            }
        } else if (running()) {
            continueServing(next);
        } else if (!startServer()) {
            next = Offline;
        }
    }
    if (closed_) {
        return;
    }
    showStateText(state_, next);
    storeState(next);
    if (pending_) {
        const std::int32_t reported = *pending_;
        pending_.reset();
        if (running()) {
            setState(reported);
        }
    }
}

void ServerController::enterNoPort() {
    enableButton(MainButton::StartStop, false);
    enableButton(MainButton::Setup, true);
    focusIfVisible(MainButton::Setup);
}

void ServerController::continueServing(std::int32_t next) {
    if (next != WaitLink && passingShown_) {
        ShowClear();
    }
    if (next == WaitLink || next == Connect) {
        minimiseIfAutoHide();
    } else if (parts_.options.AutoPopup) {
        parts_.view.restore();
        parts_.view.bringToFront();
    }
}

bool ServerController::startServer() {
    portFailed_ = false;
    pollFailed_ = false;
    asleep_ = false;
    if (keeper_ != nullptr && !restarting_) {
        keeper_->beforeStart();
    }
    std::int32_t result = 0;
    {
        const Scope scope(starting_);
        result = link_->PLP_Start(parts_.port, parts_.PLPtimer);
    }
    if (closed_) {
        return true;
    }
    if (result > kLastStartSuccess) {
        const auto index = static_cast<std::size_t>(result);
        const auto& texts = parts_.strings.PortStatus;
        ShowWarning("Port " + portName() + " " + (index < texts.size() ? texts[index] : std::string()), "");
        pending_.reset();
        if (keeper_ != nullptr) {
            keeper_->startFailed();
        }
        portFails();
        return false;
    }
    if (keeper_ != nullptr) {
        keeper_->started();
    }
    minimiseIfAutoHide();
    enableButton(MainButton::Setup, false);
    parts_.view.setButtonCaption(MainButton::StartStop, "Stop");
    focusIfVisible(MainButton::StartStop);
    if (parts_.started) {
        parts_.started();
    }
    return true;
}

void ServerController::showStateText(std::int32_t old, std::int32_t next) {
    if (next == Shutdown) {
        parts_.PLPtimer.setInterval(kShutdownDelay);
        parts_.PLPtimer.setEnabled(true);
        return;
    }
    const bool firstOffline = old == Welcome && next == Offline;
    const auto index = static_cast<std::size_t>(firstOffline ? Welcome : next);
    const DisplayText& text = parts_.strings.DisplayStrings[index];
    Display(text.line1, text.line2);
}

/// A server that waits for its port can be stopped. One that the Organiser has stopped waits no longer.
void ServerController::waitOrNot() {
    if (keeper_ == nullptr || !keeper_->waiting() || running()) {
        return;
    }
    if (state_ == Offline) {
        parts_.view.setButtonCaption(MainButton::StartStop, "Stop");
        Display(parts_.strings.DisplayStrings[Offline].line1, kWaitingForPort);
    } else {
        keeper_->giveUp();
    }
}

void ServerController::storeState(std::int32_t next) {
    // The count-down to the end of the program is off when something else is wanted now.
    if (state_ == Shutdown && next < WaitLink) {
        parts_.PLPtimer.setEnabled(false);
    }
    state_ = next;
    if (sleepWatch_ != nullptr) {
        sleepWatch_->serverIs(next);
    }
    pacePoll();
    waitOrNot();
    if (parts_.view.isMinimised()) {
        showStateAsCaption();
    }
    parts_.view.showState(next);
    if (!running()) {
        withdrawMootQuestions();
    }
}

void ServerController::showStateAsCaption() {
    parts_.view.setCaption(minimisedCaption(parts_.strings.DisplayStrings[static_cast<std::size_t>(state_)]));
}

}  // namespace velmora
