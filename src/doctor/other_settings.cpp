#include "doctor/other_settings.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "doctor/likely_settings.h"

namespace velmora {
namespace {

/// How long is listened with each of the settings.
constexpr ConversationLimits kGlance{2, 1};
/// Frames take long at rates below it.
constexpr std::uint32_t kSlowestUsual = 300;
constexpr int kSeen = 95;

}  // namespace

/// Listens for a while with the settings in use.
Heard OtherSettings::glance() {
    Heard heard = probe_.converse(kGlance);
    if (heard.goodFrames > 0) {
        probe_.hangUp();
    }
    return heard;
}

Verdict OtherSettings::found(DoctorStep step, Cause cause, int confidence, const LineSettings& settings) {
    const std::string text = "The Organiser uses " + settingsInWords(settings) + ", and the server " +
                             settingsInWords(wanted_) + ".";
    findings_.add({step, StepStatus::Fault, text});
    return {cause, confidence, text};
}

Verdict OtherSettings::confirm(const Unframed& likely) {
    const DoctorStep step =
        likely.cause == Cause::WrongRate ? DoctorStep::OtherRates : DoctorStep::OtherForms;
    const bool seen = probe_.use(*likely.settings) && glance().goodFrames > 0;
    return found(step, likely.cause, seen ? kSeen : likely.confidence, *likely.settings);
}

std::vector<std::uint32_t> OtherSettings::inTurn(Rates rates) const {
    std::vector<std::uint32_t> turn(kTriedRates.begin(), kTriedRates.end());
    std::erase_if(turn, [&](std::uint32_t rate) {
        return rate == wanted_.baud || (rates == Rates::Usual && rate < kSlowestUsual);
    });
    if (rates != Rates::Usual) {
        std::stable_partition(turn.begin(), turn.end(), [&](std::uint32_t rate) {
            return (rates == Rates::SlowerFirst) == (rate < wanted_.baud);
        });
    }
    return turn;
}

OtherSettings::Found OtherSettings::tryRates(Rates rates) {
    for (const std::uint32_t rate : inTurn(rates)) {
        if (probe_.use(LineSettings{rate}) && glance().goodFrames > 0) {
            return found(DoctorStep::OtherRates, Cause::WrongRate, kSeen, LineSettings{rate});
        }
    }
    findings_.add({DoctorStep::OtherRates, StepStatus::Well, "No frames come at other rates either."});
    return std::nullopt;
}

OtherSettings::Found OtherSettings::tryForms() {
    bool tried = false;
    for (const LineSettings& form : triedForms(wanted_.baud)) {
        // A device without parity takes it and keeps none; what it hears then says nothing of the form.
        if (!probe_.use(form) || probe_.settingsInUse() != form) {
            continue;
        }
        tried = true;
        if (glance().answered > 0) {
            return found(DoctorStep::OtherForms, Cause::WrongParity, kSeen, form);
        }
    }
    findings_.add({DoctorStep::OtherForms, tried ? StepStatus::Well : StepStatus::Unknown,
                   tried ? "Other parities do not help." : "The device has no parity to be tried."});
    return std::nullopt;
}

}  // namespace velmora
