// The command line of velmora-cable.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "arguments/outline.h"
#include "illness.h"

namespace velmora::tools {

struct CableArguments {
    unsigned baud = 0;  ///< speed of the line; 0: bytes arrive at once
    bool held = false;
    std::optional<Illness> illness;
    std::vector<std::string> links;  ///< paths of the links to the two devices; none, or two
};

/// Reads the arguments behind the program's name. Throws UsageError, and RequestedText for --help and
/// --version.
CableArguments readCableArguments(const std::vector<std::string>& arguments);

/// What readCableArguments takes.
ProgramOutline cableOutline();

}  // namespace velmora::tools
