// What is shown, and the buttons.
#include "server/server_controller.h"

#include "base/byte_text.h"
#include "server/caption.h"
#include "server/controller_scope.h"
#include "server/port_status.h"
#include "server/port_test.h"
#include "server/statistics.h"
#include "server/status_line.h"

namespace velmora {

ServerController::ServerController(const ServerParts& parts)
    : parts_(parts), mirror_(parts.DisplayTimer, [this](int line, const std::string& text) {
          parts_.view.setDisplayLine(line, text);
      }) {
    parts_.ComTimer.onTick([this] { ComTimer_Tick(); });
    parts_.PLPtimer.onTick([this] { PLPtimer_Tick(); });
    parts_.DisplayTimer.onTick([this] { DisplayTimer_Tick(); });
    pacePoll();
    parts_.ComTimer.setEnabled(true);
    ShowStats();
}

ServerController::~ServerController() {
    for (Timer* timer : {&parts_.ComTimer, &parts_.PLPtimer, &parts_.DisplayTimer}) {
        timer->onTick({});
    }
}

void ServerController::setCurrentFile(const std::string& path) {
    currentFile_ = path;
    if (state_ < FileAccess || state_ > Downld) {
        return;
    }
    const std::string name = parts_.displayName(path);
    const std::string activity = parts_.strings.DisplayStrings[static_cast<std::size_t>(state_)].line1;
    showOnMirror("", centre(name, kDisplayColumns), name.empty() ? "" : joinFileName(activity, name));
}

void ServerController::setErrorMsg(const std::string& text) {
    if (text.empty()) {
        return;
    }
    Display(text, "");
    errorMsg_ = text;
}

void ServerController::Display(const std::string& line1, const std::string& line2) {
    showOnMirror(line1, line2, joinDisplayLines(line1, line2));
}

void ServerController::showOnMirror(const std::string& line1, const std::string& line2,
                                    const std::string& status) {
    if (mirror_.Display(line1, line2) && !status.empty()) {
        parts_.view.showStatus(status);
    }
}

void ServerController::ShowText(const std::string& text1, const std::string& text2,
                                const std::string& text3) {
    passingShown_ = false;
    messages_.ShowText(text1, text2, text3);
    parts_.view.showMessages(messages_);
}

void ServerController::ShowWarning(const std::string& text2, const std::string& text3) {
    passingShown_ = false;
    ++warnings_;
    messages_.ShowWarning(text2, text3);
    parts_.view.showMessages(messages_);
}

void ServerController::ShowClear() {
    passingShown_ = false;
    messages_.ShowClear();
    parts_.view.showMessages(messages_);
}

void ServerController::ShowLineDown() {
    ShowPassing(parts_.strings.LineDown, "");
}

void ServerController::ShowPassing(const std::string& text2, const std::string& text3) {
    if (!messages_.warning) {
        ShowText("", text2, text3);
        passingShown_ = true;
    }
}

void ServerController::ShowStats() {
    parts_.view.showStatistics();
}

void ServerController::SetStats(std::int32_t which, std::int16_t amount) {
    velmora::SetStats(parts_.view, which, amount);
}

void ServerController::showLabelTexts() {
    parts_.view.setHeading(StatsHeading::Files, parts_.strings.Files);
    parts_.view.setHeading(StatsHeading::Bytes, parts_.strings.Bytes);
    parts_.view.setHeading(StatsHeading::Received, parts_.strings.Received);
    parts_.view.setHeading(StatsHeading::Sent, parts_.strings.Sent);
    parts_.view.setWarningCaption(parts_.strings.Error);
}

void ServerController::setDebugMode(bool on) {
    parts_.view.showDebugLabel(on);
}

std::int32_t ServerController::checkPort(std::int16_t port, std::int16_t flags) {
    parts_.yield.processEvents();
    if (running() || starting_ > 0) {
        return kStatusInUse;
    }
    if (closed_) {
        return kStatusError;
    }
    return testPort(parts_.port, port, portTestProbes(flags, parts_.options.DontTestModem), parts_.clock,
                    parts_.yield);
}

void ServerController::windowShown() {
    if (parts_.options.AutoStart && state_ == Offline) {
        setState(WaitLink);
    }
}

void ServerController::windowResized(bool minimised) {
    if (minimised) {
        if (parts_.options.AutoHide) {
            showStateAsCaption();  // it may have been shown for a moment since the state was entered
        }
        return;
    }
    parts_.view.setCaption(kProgramName);
    if (startStopEnabled_) {
        parts_.view.setFocus(MainButton::StartStop);
    }
}

void ServerController::pbStartStop_Click() {
    if (stopWaiting()) {
        ShowClear();
        return;
    }
    if (state_ != Offline && state_ != OnExit) {
        setState(Offline);
        return;
    }
    ShowClear();
    if (linkCalls_ > 0) {
        startWaits_ = true;
        return;
    }
    setState(WaitLink);
}

void ServerController::pbSetup_Click(const std::function<void()>& openSetup) {
    if (running() || starting_ > 0 || inSetup_ > 0 || closed_) {
        return;
    }
    const WksDialect dialect = parts_.transfer.sheets.wksDialect;
    const auto chosenPort = [this] { return std::pair(parts_.port.CommPort(), parts_.options.PortIdentity); };
    const auto port = chosenPort();
    {
        const Scope scope(inSetup_);
        openSetup();
    }
    dialectChosen_ = dialectChosen_ || parts_.transfer.sheets.wksDialect != dialect;
    if (closed_) {
        return;
    }
    if (chosenPort() != port) {
        identityChosen_ = true;
        stopWaiting();
    }
    ShowClear();
    enableButton(MainButton::StartStop, true);
    if (parts_.options.AutoStart) {
        setState(WaitLink);
    }
}

void ServerController::pbHide_Click() {
    parts_.view.minimise();
}

void ServerController::pbShutDown_Click() {
    parts_.view.close();
}

void ServerController::enableButton(MainButton button, bool enabled) {
    if (button == MainButton::StartStop) {
        startStopEnabled_ = enabled;
    }
    parts_.view.setButtonEnabled(button, enabled);
}

void ServerController::focusIfVisible(MainButton button) {
    if (parts_.view.isVisible()) {
        parts_.view.setFocus(button);
    }
}

void ServerController::minimiseIfAutoHide() {
    if (parts_.options.AutoHide) {
        parts_.view.minimise();
    }
}

}  // namespace velmora
