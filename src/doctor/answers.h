// What a conversation with an Organiser says about the line.
#pragma once

#include <chrono>
#include <optional>

#include "doctor/diagnosis.h"
#include "doctor/heard.h"

namespace velmora {

/// The server asks again after half a second; what takes longer than this is too late too often.
inline constexpr std::chrono::milliseconds kLateAnswer{400};

/// Judges what was heard with at least one good frame in it; `answerTime` as LineProbe::measureAnswer gives
/// it. Nothing when the line is well.
std::optional<Verdict> judgeAnswers(const Heard& heard, std::optional<std::chrono::microseconds> answerTime);

}  // namespace velmora
