#include "doctor/answers.h"

#include <cstddef>
#include <string>

#include "serial/comm_device.h"

namespace velmora {
namespace {

/// What a spark of the plug may leave among the frames.
constexpr std::size_t kMostStray = 3;
/// The longest frame that is cut in two when the port is opened.
constexpr std::size_t kMostLeading = 64;
/// So many nulls among the stray bytes are more than those of the frames that they were.
constexpr std::size_t kNullsAmongStray = 8;
/// From so many link requests on, a handheld that heard them had answered one.
constexpr std::size_t kCallsOfADeafOne = 3;

std::string share(std::size_t part, std::size_t whole, const char* what) {
    return std::to_string(part) + " of " + std::to_string(whole) + " " + what;
}

std::optional<Verdict> judgeDamage(const Heard& heard) {
    const std::size_t frames = heard.goodFrames + heard.damagedFrames;
    if (heard.damagedFrames == 0 && heard.strayBytes() <= kMostStray && heard.leadingBytes <= kMostLeading) {
        return std::nullopt;
    }
    const std::string detail = share(heard.damagedFrames, frames, "frames arrived damaged, and ") +
                               std::to_string(heard.strayBytes()) + " bytes made none.";
    const bool breaks =
        (heard.errorFlags & kBreakSeen) != 0 || heard.strayNulls() * kNullsAmongStray > heard.strayBytes();
    return Verdict{breaks ? Cause::LooseContact : Cause::Noise, 80, detail};
}

}  // namespace

std::optional<Verdict> judgeAnswers(const Heard& heard, std::optional<std::chrono::microseconds> answerTime) {
    if (auto damage = judgeDamage(heard)) {
        return damage;
    }
    if ((heard.errorFlags & (kParityError | kFramingError | kBreakSeen)) != 0) {
        return Verdict{Cause::WrongParity, 85, "The frames are good, but bits come where stop bits belong."};
    }
    if (heard.answered == 0) {
        return Verdict{Cause::HandheldDeaf, heard.calls >= kCallsOfADeafOne ? 85 : 60,
                       "It called " + std::to_string(heard.calls) + " times and answered none of " +
                           std::to_string(heard.requests) + " requests."};
    }
    if (answerTime && *answerTime > kLateAnswer) {
        return Verdict{Cause::SlowAnswers, 80,
                       "An answer took " +
                           std::to_string(std::chrono::ceil<std::chrono::milliseconds>(*answerTime).count()) +
                           " ms."};
    }
    if (heard.missed > 0) {
        return Verdict{Cause::AnswersLost, 75,
                       share(heard.missed, heard.requests, "requests were not answered.")};
    }
    return std::nullopt;
}

}  // namespace velmora
