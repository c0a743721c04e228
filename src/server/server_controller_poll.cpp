// What the timers drive.
#include <algorithm>
#include <chrono>
#include <utility>

#include "server/controller_scope.h"
#include "server/server_controller.h"

namespace velmora {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kPollInterval{20};
/// A look now and then, should the system ever fail to tell.
constexpr milliseconds kWatchedPollInterval{1000};
constexpr milliseconds kNever{0};

}  // namespace

void ServerController::ComTimer_Tick() {
    if (closed_ || !parts_.ComTimer.enabled()) {
        return;
    }
    poll();
    // Bytes that were left where they are do not tell of themselves again.
    pacePoll();
}

/// Gives the poll the interval that it needs now; its count-down goes on when that is the one it has.
void ServerController::pacePoll() {
    const bool asks = std::find(asking_.begin(), asking_.end(), true) != asking_.end();
    const bool told = parts_.portWatched && parts_.portWatched() && state_ != LinkFailed && !asks;
    milliseconds wanted = kNever;
    if (running()) {
        wanted = told ? kWatchedPollInterval : kPollInterval;
    }
    if (parts_.ComTimer.interval() != wanted) {
        parts_.ComTimer.setInterval(wanted);
    }
}

void ServerController::poll() {
    if (state_ == LinkFailed) {
        setState(Offline);
        return;
    }
    // A port that failed while the user keeps the server running is left alone until it is stopped.
    if (!running() || pollFailed_ || stopping_ > 0) {
        return;
    }
    try {
        if (parts_.port.InBufferCount() <= 0) {
            return;
        }
    } catch (const CommError& error) {
        reportPortError(error);
        return;
    }
    receive();
}

void ServerController::receive() {
    std::int32_t next = kNoStateChange;
    warningsBeforeRead_ = warnings_;
    if (sleepWatch_ != nullptr) {
        sleepWatch_->heard();
    }
    {
        const Scope scope(linkCalls_);
        next = link_->PLP_ReceiveEvent();
    }
    if (running()) {
        setState(next);
    }
    afterLinkCall();
}

void ServerController::afterLinkCall() {
    if (startWaits_ && linkCalls_ == 0) {
        startWaits_ = false;
        setState(WaitLink);
    }
}

void ServerController::reportPortError(const CommError& error) {
    ShowWarning(portName() + ": " + error.description(), whatIsLost());
    pollFailed_ = true;
    portFails();
    setState(Offline);
    if (running()) {
        // The user wants to go on, but there is nothing left to go on with.
        setState(LinkFailed);
    }
}

/// A read that fails inside the link is reported as LinkFailed and nothing more, a write by a warning, which
/// does not know what was under way.
void ServerController::tellOfFailedPort() {
    if (linkCalls_ == 0) {
        return;
    }
    const std::string lost = whatIsLost();
    if (warnings_ == warningsBeforeRead_) {
        ShowWarning(portName() + ": The port failed.", lost);
    } else if (!lost.empty()) {
        ShowWarning(messages_.lines[1].text + ": " + messages_.lines[2].text, lost);
    }
}

/// What a port that fails now takes with it, for the line below the reason.
std::string ServerController::whatIsLost() const {
    return hasFileOpen(state_) ? "The transfer is lost." : "";
}

std::string ServerController::portName() const {
    const int number = parts_.port.CommPort();
    return parts_.portName ? parts_.portName(number) : "COM" + std::to_string(number);
}

void ServerController::portFails(bool gone) {
    if (std::exchange(portFailed_, true)) {
        return;
    }
    if (keeper_ != nullptr && running()) {
        keeper_->lost(gone);
    }
    if (onPortFailure_) {
        onPortFailure_();
    }
}

void ServerController::computerSleeps() {
    asleep_ = true;
    if (keeper_ != nullptr) {
        keeper_->computerSleeps();
    }
    if (!running() || stopping_ > 0 || closed_) {
        return;
    }
    ShowWarning(portName() + ": The computer goes to sleep.", whatIsLost());
    pollFailed_ = true;
    portFails(true);
    setState(LinkFailed);
    setState(Offline);
}

void ServerController::computerWakes() {
    asleep_ = false;
    if (keeper_ != nullptr) {
        keeper_->computerWakes();
    }
}

bool ServerController::restart() {
    const bool busy = inSetup_ > 0 || starting_ > 0 || stopping_ > 0 || linkCalls_ > 0;
    if (state_ != Offline || busy || closed_) {
        return false;
    }
    restarting_ = true;
    setState(WaitLink);
    restarting_ = false;
    // The warning was about the port. Where the adapter is now stays on the screen.
    if (running() && messages_.warning) {
        ShowClear();
    }
    return running();
}

/// Ends the wait for the port; whether there was one, in a server that is stopped.
bool ServerController::stopWaiting() {
    if (keeper_ == nullptr || !keeper_->waiting()) {
        return false;
    }
    keeper_->giveUp();
    if (running()) {
        return false;
    }
    parts_.view.setButtonCaption(MainButton::StartStop, "Start");
    showStateText(state_, state_);
    return true;
}

void ServerController::PLPtimer_Tick() {
    if (closed_) {
        return;
    }
    if (state_ == Shutdown) {
        parts_.PLPtimer.setEnabled(false);
        parts_.view.close();
        return;
    }
    if (!running() || stopping_ > 0) {
        return;
    }
    {
        const Scope scope(linkCalls_);
        link_->PLP_Timeout();
    }
    afterLinkCall();
}

}  // namespace velmora
