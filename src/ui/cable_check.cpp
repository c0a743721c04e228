#include "ui/cable_check.h"

#include <algorithm>

#include "arguments/version.h"
#include "doctor/doctor_report.h"
#include "doctor/stoppable_line.h"

namespace velmora {

void CableCheck::run() {
    steps_.clear();
    stopWanted_ = false;
    state_ = State::Running;
    changed_();
    try {
        verdict_ = examine_(*this, [this] { return stopWanted_; }).verdict;
        state_ = State::Done;
    } catch (const ExaminationStopped&) {
        state_ = State::Stopped;
    }
    changed_();
}

void CableCheck::found(const StepFinding& finding) {
    steps_.push_back(finding);
    changed_();
}

std::string CableCheck::result() const {
    switch (state_) {
        case State::Waiting:
        case State::Running:
            return {};
        case State::Stopped:
            return "The check was stopped.";
        case State::Done:
            break;
    }
    return findingWithDetail(verdict_);
}

std::string CableCheck::advice() const {
    const bool helps = state_ == State::Done && verdict_.cause != Cause::None;
    return helps ? std::string(wordsOf(verdict_.cause).advice) : std::string();
}

std::string CableCheck::line() const {
    if (state_ != State::Done) {
        return {};
    }
    const auto adapter = std::ranges::find(steps_, DoctorStep::Adapter, &StepFinding::step);
    return "Cable check: " + std::string(wordsOf(verdict_.cause).name) + ", " +
           std::to_string(verdict_.confidence) + " % sure. " + result() + " Port: " + port_ + "." +
           (adapter != steps_.end() ? " Adapter: " + adapter->text : "") + " Velmora " + fullVersion() + ".";
}

}  // namespace velmora
