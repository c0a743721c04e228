// The check of a cable without its window: the doctor's steps as they are done, and what they come to.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "doctor/diagnosis.h"

namespace velmora {

/// One port under examination. Texts are in the system's encoding.
class CableCheck : public StepObserver {
  public:
    enum class State : std::uint8_t { Waiting, Running, Done, Stopped };

    /// Examines the port and tells of each step; events run in it. It throws ExaminationStopped soon after
    /// `stopWanted` holds.
    using Examine = std::function<Diagnosis(StepObserver& observer, const std::function<bool()>& stopWanted)>;

    /// `port` is the device as messages call it. `changed` is called after each change.
    CableCheck(std::string port, Examine examine, std::function<void()> changed)
        : port_(std::move(port)), examine_(std::move(examine)), changed_(std::move(changed)) {}

    /// Examines from the first step on, and returns when that is over.
    void run();
    /// Makes `run` return soon.
    void stop() { stopWanted_ = true; }

    State state() const { return state_; }
    /// The steps that are done, in their order.
    const std::vector<StepFinding>& steps() const { return steps_; }
    /// What the check has come to, one or two sentences; empty until it is over.
    std::string result() const;
    /// What helps, one sentence; empty when there is nothing to do.
    std::string advice() const;
    /// All in one line for whoever is asked for help: cause, how sure it is, port, adapter, version. Empty
    /// unless the check was done.
    std::string line() const;

    void found(const StepFinding& finding) override;

  private:
    std::string port_;
    Examine examine_;
    std::function<void()> changed_;
    State state_ = State::Waiting;
    bool stopWanted_ = false;
    std::vector<StepFinding> steps_;
    Verdict verdict_;
};

}  // namespace velmora
