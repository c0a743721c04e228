// Why a line does not work, as far as the doctor tells causes apart.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace velmora {

enum class Cause : std::uint8_t {
    None,
    DeviceMissing,
    NoPermission,
    DeviceBusy,
    SettingsRefused,
    DeviceFailed,
    AdapterCopy,
    Loopback,
    Echo,
    Modem,
    WrongRate,
    WrongParity,
    OtherProtocol,
    LineStuck,
    LooseContact,
    Noise,
    AnswersLost,
    SlowAnswers,
    HandheldDeaf,
    NotConnected,
    Silence,
};

/// A cause in words. Docs and scripts rely on the names.
struct CauseWords {
    Cause cause;
    std::string_view name;     ///< short and fixed: "wrong-rate"
    std::string_view finding;  ///< what the owner has before him, one sentence
    std::string_view advice;   ///< what helps, one sentence
};

/// All causes, in the order of the enumeration.
std::span<const CauseWords> causes();

/// The words of one cause.
const CauseWords& wordsOf(Cause cause);

}  // namespace velmora
