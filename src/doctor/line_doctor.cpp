#include "doctor/line_doctor.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

#include "doctor/answers.h"
#include "doctor/device_findings.h"
#include "doctor/echo_test.h"
#include "doctor/stoppable_line.h"
#include "doctor/unframed.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr LineProbe::Time kModemTime = 700ms;
/// How sure it is what silence means: a handheld on which nobody has started a transfer is silent, too.
constexpr int kGuessedFromSilence = 60;

}  // namespace

LineDoctor::LineDoctor(const ExaminedDevice& device, ExaminedLine& line, const LineSettings& wanted,
                       StepObserver* observer)
    : device_(device),
      line_(line),
      wanted_(wanted),
      findings_(observer),
      probe_(line),
      others_(probe_, wanted_, findings_) {}

Diagnosis LineDoctor::examine() {
    Diagnosis diagnosis;
    try {
        diagnosis.verdict = firstCause();
    } catch (const LineLost& lost) {
        findings_.add({DoctorStep::Device, StepStatus::Fault, lost.what()});
        diagnosis.verdict = {Cause::DeviceFailed, 90, lost.what()};
    } catch (const ExaminationStopped&) {
        leave();
        throw;
    }
    diagnosis.findings = findings_.take();
    return diagnosis;
}

/// Takes down what link there may be, so that the Organiser does not wait for us.
void LineDoctor::leave() {
    try {
        probe_.hangUp();
    } catch (const LineLost&) {
        return;  // nobody waits
    }
}

Verdict LineDoctor::firstCause() {
    for (const auto step : {&LineDoctor::examineDevice, &LineDoctor::examineSettings,
                            &LineDoctor::examineEcho, &LineDoctor::examineLink}) {
        if (Found found = (this->*step)()) {
            return *std::move(found);
        }
    }
    return {};
}

LineDoctor::Found LineDoctor::examineDevice() {
    const SystemError error = line_.open(wanted_);
    if (error != kSuccess) {
        Verdict verdict = judgeOpening(device_, error);
        findings_.add({DoctorStep::Device, StepStatus::Fault, verdict.detail});
        return verdict;
    }
    findings_.add({DoctorStep::Device, StepStatus::Well, device_.name + " is there and may be opened."});
    findings_.add(adapterFinding(device_, wanted_));
    return std::nullopt;
}

LineDoctor::Found LineDoctor::examineSettings() {
    const bool taken = probe_.use(wanted_);
    const std::optional<LineSettings> got = line_.settingsInUse();
    if (!taken || (got && *got != wanted_)) {
        const std::string text = "The device does not take " + settingsInWords(wanted_) +
                                 (taken ? "; it tells of " + settingsInWords(*got) : "") + ".";
        findings_.add({DoctorStep::Settings, StepStatus::Fault, text});
        return Verdict{Cause::SettingsRefused, 90, text};
    }
    findings_.add({DoctorStep::Settings, got ? StepStatus::Well : StepStatus::Unknown,
                   got ? "The device is set to " + settingsInWords(*got) + "."
                       : "The device does not tell what it is set to."});
    modemLines_ = line_.modemLines();
    findings_.add(modemLinesFinding(modemLines_));
    return std::nullopt;
}

LineDoctor::Found LineDoctor::examineEcho() {
    if (!echoes(probe_)) {
        findings_.add({DoctorStep::Echo, StepStatus::Well, "What is sent does not come back."});
        return std::nullopt;
    }
    findings_.add({DoctorStep::Echo, StepStatus::Fault, "What is sent comes back."});
    if (Found modem = tryModem()) {
        return modem;
    }
    const LoopbackResult result = tryLoopback(probe_);
    const std::string text = "Every byte value came back at " + std::to_string(result.whole.size()) + " of " +
                             std::to_string(result.whole.size() + result.other.size()) + " rates.";
    const bool joined = result.other.empty();
    findings_.add({DoctorStep::Echo, joined ? StepStatus::Noted : StepStatus::Fault, text});
    return Verdict{joined ? Cause::Loopback : Cause::Echo, joined ? 95 : 85, text};
}

LineDoctor::Found LineDoctor::tryModem() {
    probe_.use(wanted_);
    const bool answers = probe_.reply("AT\r", kModemTime).bytes.find("OK") != std::string::npos;
    findings_.add({DoctorStep::Modem, answers ? StepStatus::Fault : StepStatus::Well,
                   answers ? "Something answers AT with OK." : "Nothing answers AT."});
    return answers ? Found(Verdict{Cause::Modem, 95, {}}) : std::nullopt;
}

LineDoctor::Found LineDoctor::examineLink() {
    const Heard heard = probe_.converse({});
    if (heard.goodFrames > 0) {
        return examineAnswers(heard);
    }
    return heard.bytes.empty() ? examineSilence() : examineUnframed(heard);
}

/// How long an answer takes, where there was any; measured again while it comes late, since the computer may
/// have been busy.
std::optional<LineProbe::Time> LineDoctor::leastAnswerTime(const Heard& heard) {
    constexpr int kMostTimes = 3;
    std::optional<LineProbe::Time> least;
    for (int times = 0; heard.answered > 0 && times < kMostTimes && (!least || *least > kLateAnswer);
         ++times) {
        if (const auto time = probe_.measureAnswer()) {
            least = std::min(*time, least.value_or(*time));
        }
    }
    return least;
}

LineDoctor::Found LineDoctor::examineAnswers(const Heard& heard) {
    findings_.add({DoctorStep::Listening, StepStatus::Well, "The Organiser is heard."});
    Found found = judgeAnswers(heard, leastAnswerTime(heard));
    if (found && found->cause == Cause::AnswersLost) {
        // A busy computer may have missed one; an Organiser that gives up meanwhile tells no more.
        const Heard again = probe_.converse({});
        if (again.answered > 0) {
            found = judgeAnswers(again, leastAnswerTime(again));
        }
    }
    probe_.hangUp();
    if (found && found->cause == Cause::HandheldDeaf) {
        // A handheld with another parity drops what it hears.
        if (Found form = others_.tryForms()) {
            return form;
        }
    }
    findings_.add({DoctorStep::Link, found ? StepStatus::Fault : StepStatus::Well,
                   found ? found->detail
                         : "The link comes up: " + std::to_string(heard.answered) + " of " +
                               std::to_string(heard.requests) + " requests were answered."});
    return found;
}

Verdict LineDoctor::examineUnframed(const Heard& heard) {
    const Unframed likely = judgeUnframed(probe_.crc(), heard.bytes, heard.settings);
    findings_.add({DoctorStep::Listening, StepStatus::Fault,
                   std::to_string(heard.bytes.size()) + " bytes came that make no frame."});
    if (likely.settings) {
        return others_.confirm(likely);
    }
    if (likely.cause == Cause::OtherProtocol) {
        // It could not be read at another rate than its own.
        return {likely.cause, likely.confidence, {}};
    }
    // A slower sender's bits are nulls here, and of a faster one's bytes few are left.
    const auto order = likely.cause == Cause::LineStuck ? OtherSettings::Rates::SlowerFirst
                                                        : OtherSettings::Rates::FasterFirst;
    if (Found rate = others_.tryRates(order)) {
        return *std::move(rate);
    }
    return {likely.cause, likely.confidence, {}};
}

Verdict LineDoctor::examineSilence() {
    findings_.add({DoctorStep::Listening, StepStatus::Fault, "Nothing comes."});
    if (Found rate = others_.tryRates(OtherSettings::Rates::Usual)) {
        return *std::move(rate);
    }
    if (Found modem = tryModem()) {
        return *std::move(modem);
    }
    if (isCopy(device_.identity)) {
        return {Cause::AdapterCopy, kGuessedFromSilence, {}};
    }
    const bool unplugged = modemLines_ && *modemLines_ == 0;
    return {unplugged ? Cause::NotConnected : Cause::Silence, kGuessedFromSilence, {}};
}

}  // namespace velmora
