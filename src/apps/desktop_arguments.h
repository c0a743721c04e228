// The command line of the desktop server.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "arguments/outline.h"

namespace velmora {

/// Throws RequestedText when the arguments behind the program's name ask for help or for the version, which
/// need no display. Nothing else is looked at: what the toolkit takes for itself, only the toolkit knows.
void answerWithoutDisplay(const std::vector<std::string>& arguments);

/// What a command line says.
struct DesktopArguments {
    std::string commandLine = {};              ///< as start-up wants it: the debug switch when that is all
    std::optional<std::string> config = {};    ///< the configuration file
    std::optional<std::string> profile = {};   ///< whose settings and window place they are
    std::optional<std::string> language = {};  ///< of the windows, a code; without it the desktop's
};

/// Reads the arguments that the toolkit has left. UsageError for what makes no sense.
DesktopArguments readDesktopArguments(const std::vector<std::string>& arguments);

/// What both of them take.
ProgramOutline desktopOutline();

}  // namespace velmora
