// One plan carried out from its beginning to its end, or to the first promise that does not hold.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "plan.h"

namespace velmora::simulation {

/// What came of an episode.
struct EpisodeResult {
    std::optional<std::string> violation;  ///< the promise that was broken and the step in which
    std::uint64_t transfers = 0;           ///< files and sheets sent or asked for
    std::uint64_t completed = 0;           ///< of which the Organiser was told the good end
    FaultCounts faults{};
    std::size_t heap = 0;        ///< the most bytes that a step left held, beside those of the beginning
    std::uint64_t checkSum = 0;  ///< of the journal
    std::string journal;         ///< its text, if it is kept
};

EpisodeResult runEpisode(const Plan& plan, bool keepsJournal = false);

}  // namespace velmora::simulation
