// What an examination of a line has found.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "doctor/cause.h"

namespace velmora {

/// The steps of an examination, in their order.
enum class DoctorStep : std::uint8_t {
    Device,
    Adapter,
    Settings,
    ModemLines,
    Echo,
    Listening,
    OtherRates,
    OtherForms,
    Modem,
    Link,
};

/// How a step went.
enum class StepStatus : std::uint8_t {
    Well,
    Noted,    ///< worth knowing, and no fault
    Fault,    ///< this is what is wrong, or part of it
    Unknown,  ///< the system or the device does not tell
};

struct StepFinding {
    DoctorStep step{};
    StepStatus status{};
    std::string text;  ///< one sentence in the system's encoding
};

/// A cause with how sure it is: 0 to 100.
struct Verdict {
    Cause cause = Cause::None;
    int confidence = 100;
    std::string detail;  ///< what this line shows, one sentence; empty when the cause's own words say all
};

struct Diagnosis {
    Verdict verdict;
    std::vector<StepFinding> findings;
};

/// Hears of each step's finding as soon as it is there.
class StepObserver {
  public:
    virtual ~StepObserver() = default;
    virtual void found(const StepFinding& finding) = 0;
};

/// The findings of an examination under way.
class Findings {
  public:
    /// `observer` may be none; it must outlive this object.
    explicit Findings(StepObserver* observer) : observer_(observer) {}

    void add(StepFinding finding);
    std::vector<StepFinding> take() { return std::move(all_); }

  private:
    StepObserver* observer_;
    std::vector<StepFinding> all_;
};

/// The fixed names for programs: "modem-lines", "fault".
std::string_view nameOf(DoctorStep step);
std::string_view nameOf(StepStatus status);

}  // namespace velmora
