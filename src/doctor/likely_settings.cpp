#include "doctor/likely_settings.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>

#include "link/frames.h"
#include "serial/bit_sampling.h"

namespace velmora {
namespace {

/// Fewer bytes than this, or fewer different ones, fit to too many things.
constexpr std::size_t kShortestPattern = 4;
constexpr std::size_t kFewestValues = 2;
/// A pattern that is there so often is there by no accident, and so is one that explains half of a little.
constexpr std::size_t kOftenEnough = 2;
constexpr std::size_t kHalf = 2;

std::size_t coveredBytes(std::string_view heard, const std::string& pattern) {
    std::size_t covered = 0;
    for (std::size_t at = heard.find(pattern); at != heard.npos;
         at = heard.find(pattern, at + pattern.size())) {
        covered += pattern.size();
    }
    return covered;
}

bool tellsMuch(const std::string& pattern) {
    return pattern.size() >= kShortestPattern &&
           std::set<char>(pattern.begin(), pattern.end()).size() >= kFewestValues;
}

}  // namespace

std::array<LineSettings, 6> triedForms(std::uint32_t rate) {
    return {{{rate, Parity::Even, 7, StopBits::One},
             {rate, Parity::Odd, 7, StopBits::One},
             {rate, Parity::Even, 8, StopBits::One},
             {rate, Parity::Odd, 8, StopBits::One},
             {rate, Parity::Space, 7, StopBits::One},
             {rate, Parity::Mark, 7, StopBits::One}}};
}

std::optional<LineSettings> likelySettings(const Crc& crc, std::string_view heard, const LineSettings& ours) {
    const std::array<std::string, 2> frames = {buildFrame(crc, FrameType::Connect, 0, {}),
                                               buildFrame(crc, FrameType::Ack, 0, {})};
    std::optional<LineSettings> likely;
    std::size_t most = 0;
    const auto consider = [&](const LineSettings& settings) {
        std::size_t covered = 0;
        bool enough = false;
        for (const std::string& frame : frames) {
            const std::string pattern = sampledValues(frame, settings, ours);
            if (pattern != frame && tellsMuch(pattern)) {
                const std::size_t found = coveredBytes(heard, pattern);
                enough = enough || found >= kOftenEnough * pattern.size() || found * kHalf >= heard.size();
                covered += found;
            }
        }
        if (covered > most && enough) {
            most = covered;
            likely = settings;
        }
    };
    for (const std::uint32_t rate : kTriedRates) {
        consider(LineSettings{rate});
        for (const LineSettings& form : triedForms(rate)) {
            consider(form);
        }
    }
    return likely;
}

}  // namespace velmora
