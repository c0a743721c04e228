// What happens in an episode: random, but all of it known beforehand, so that parts can be left out.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "faults.h"
#include "world.h"

namespace velmora::simulation {

enum class Action : std::uint8_t {
    SaveRecords,
    SaveProcedure,
    SaveBlock,
    WriteBytes,
    WriteLines,
    AppendRecords,
    AppendLines,
    OverwriteBytes,
    SaveSheet,
    Load,
    LoadMissing,
    CreateExisting,
    ListNames,
    FetchBoot,
    AskTime,
    AskFormats,
    AskUnknown,
    Exit,
    Shutdown,
    OtherProgramWrites,
};
constexpr std::size_t kActions = 20;

const char* actionName(Action action);
/// Whether a file or a sheet goes over the line.
bool isTransfer(Action action);

/// One step: something that the Organiser or another program does, and what goes wrong meanwhile.
struct Step {
    Action action = Action::Load;
    std::uint64_t seed = 0;  ///< of names, contents and settings
    std::vector<Fault> faults;
};

struct Plan {
    std::uint64_t seed = 0;
    LineForm line;
    bool crowded = false;  ///< the folder has 10,000 files of other programs
    std::vector<Step> steps;

    /// The plan of an episode.
    static Plan ofSeed(std::uint64_t seed);
    std::size_t faults() const;
};

/// The plan in words.
std::string describe(const Plan& plan);

}  // namespace velmora::simulation
