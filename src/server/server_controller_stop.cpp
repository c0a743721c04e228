// Stop requests of the Organiser and the user, and the end of the program.
#include <utility>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "server/caption.h"
#include "server/controller_scope.h"
#include "server/server_controller.h"

namespace velmora {

// The window's reaction comes before the decision: the Organiser's user may want to see the question.
bool ServerController::stopRequestPasses(std::int32_t next) {
    const ServerOptions& options = parts_.options;
    const bool exit = next == OnExit;
    const Question question = exit ? Question::OnExit : Question::OnShutdown;
    if (options.AskUser && asking_[static_cast<std::size_t>(question)]) {
        return false;
    }
    if (options.RestoreWin && !options.HideWin) {
        parts_.view.restore();
    } else if (options.HideWin && !options.RestoreWin) {
        parts_.view.minimise();
    }
    if (!options.AskUser) {
        return exit ? options.StopServer : options.AllowShutdown;
    }
    return ask(question, BoxIcon::Question,
               exit ? parts_.strings.OnExitAskText : parts_.strings.OnShutdownAskText, true);
}

bool ServerController::stopServer(std::int32_t next) {
    const bool transfer = state_ >= Connect && state_ != LinkFailed;
    const std::int32_t old = state_;
    if (transfer && next != OnExit && (!interruptionPasses() || !stillWanted(old, next))) {
        return false;
    }
    if (running()) {
        stopLink();
    }
    enableButton(MainButton::Setup, true);
    focusIfVisible(MainButton::StartStop);
    parts_.view.setButtonCaption(MainButton::StartStop, "Start");
    return true;
}

// Whether a change that asked must still be carried out.
bool ServerController::stillWanted(std::int32_t old, std::int32_t next) const {
    const bool endsAlready = state_ == Shutdown && old != Shutdown;
    if (closed_ || endsAlready) {
        return false;
    }
    const bool stoppedMeanwhile = old >= WaitLink && !running();
    return !stoppedMeanwhile || next == Shutdown;
}

void ServerController::stopLink() {
    if (stopping_ > 0) {
        return;
    }
    const Scope scope(stopping_);
    startWaits_ = false;
    link_->PLP_Stop();
}

bool ServerController::ask(Question question, BoxIcon icon, const std::string& text, bool foreground) {
    bool& onScreen = asking_[static_cast<std::size_t>(question)];
    if (onScreen) {
        return false;
    }
    onScreen = true;
    pacePoll();
    // For the Organiser's requests the box's own default stands; what interrupts a transfer must be chosen.
    const bool defaultYes = question != Question::UserInterrupt;
    const bool yes = parts_.box.askYesNo(icon, kProgramName, text, defaultYes, foreground);
    onScreen = false;
    pacePoll();
    return yes;
}

// Without a running server there is nothing left to interrupt, whatever became of the question.
bool ServerController::interruptionPasses() {
    return ask(Question::UserInterrupt, BoxIcon::Exclamation, parts_.strings.UserInterrupt, false) ||
           !running();
}

// The question about SHUTDOWN stands: the program can still end.
void ServerController::withdrawMootQuestions() {
    if (asking_[static_cast<std::size_t>(Question::UserInterrupt)]) {
        parts_.box.withdraw(parts_.strings.UserInterrupt);
    }
    if (asking_[static_cast<std::size_t>(Question::OnExit)]) {
        parts_.box.withdraw(parts_.strings.OnExitAskText);
    }
}

bool ServerController::queryUnload(CloseReason reason) {
    if (closed_) {
        return true;
    }
    switch (reason) {
        case CloseReason::User:
        case CloseReason::Program:
            if (!closeOrderly()) {
                return false;
            }
            break;
        case CloseReason::Terminated:
            if (running() || starting_ > 0) {
                stopLink();
            }
            break;
        case CloseReason::SystemShutdown:
        case CloseReason::TaskManager:
            break;
    }
    closed_ = true;
    stopWaiting();
    if (sleepWatch_ != nullptr) {
        sleepWatch_->serverIs(Offline);
    }
    for (Timer* timer : {&parts_.ComTimer, &parts_.PLPtimer, &parts_.DisplayTimer}) {
        timer->setEnabled(false);
    }
    if (closing_.closeDebugWindow) {
        closing_.closeDebugWindow();
    }
    return true;
}

bool ServerController::closeOrderly() {
    if (state_ > WaitLink && !interruptionPasses()) {
        return false;
    }
    if (closed_) {
        return true;
    }
    if (running() || starting_ > 0) {
        stopLink();
    }
    const bool portChosen = state_ != NoPort;
    closed_ = true;
    if (closing_.settings != nullptr) {
        saveSettings(portChosen);
    }
    if (closing_.saveWindowPos) {
        closing_.saveWindowPos();
    }
    return true;
}

void ServerController::saveSettings(bool portChosen) {
    const std::string section = "Settings";
    const auto put = [&](const char* key, const std::string& value) {
        closing_.settings->put(section, key, value);
    };
    try {
        put("DataFileType", std::to_string(parts_.transfer.DataFileType));
        put("AutoStart", parts_.options.AutoStart ? "True" : "False");
        if (dialectChosen_) {
            put("WksDialect", std::to_string(static_cast<int>(parts_.transfer.sheets.wksDialect)));
        }
        if (parts_.options.AutoSave && portChosen) {
            put("Port", std::to_string(parts_.port.CommPort()));
            if (identityChosen_) {
                put("PortIdentity", parts_.options.PortIdentity);
            }
            put("Baud", plainText(numericValue(parts_.port.Settings())));
        }
    } catch (const RunTimeError& error) {
        parts_.box.inform(BoxIcon::Exclamation, kProgramName,
                          std::string("The settings could not be saved: ") + error.what());
    }
}

}  // namespace velmora
