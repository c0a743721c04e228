// Finds out why a line does not work.
#pragma once

#include <cstdint>
#include <optional>

#include "doctor/diagnosis.h"
#include "doctor/examined_device.h"
#include "doctor/examined_line.h"
#include "doctor/line_probe.h"
#include "doctor/other_settings.h"

namespace velmora {

/// Examines one line, step by step, until a cause is found or all is well. It takes half a minute at most, a
/// few seconds when the Organiser answers, and changes nothing there.
class LineDoctor {
  public:
    /// `wanted` are the settings that the server is to use. `observer` may be none. All must outlive this
    /// object.
    LineDoctor(const ExaminedDevice& device, ExaminedLine& line, const LineSettings& wanted,
               StepObserver* observer = nullptr);

    /// Runs the steps, once. What is thrown by a line that is a StoppableLine passes through.
    Diagnosis examine();

  private:
    using Found = std::optional<Verdict>;

    void leave();
    Verdict firstCause();
    Found examineDevice();
    Found examineSettings();
    Found examineEcho();
    Found examineLink();
    std::optional<LineProbe::Time> leastAnswerTime(const Heard& heard);
    Found examineAnswers(const Heard& heard);
    Verdict examineUnframed(const Heard& heard);
    Verdict examineSilence();
    Found tryModem();

    const ExaminedDevice& device_;
    ExaminedLine& line_;
    LineSettings wanted_;
    Findings findings_;
    LineProbe probe_;
    OtherSettings others_;
    std::optional<std::uint32_t> modemLines_;
};

}  // namespace velmora
