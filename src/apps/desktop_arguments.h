// The command line of the desktop server.
#pragma once

#include <string>
#include <vector>

#include "arguments/outline.h"

namespace velmora {

/// Throws RequestedText when the arguments behind the program's name ask for help or for the version, which
/// need no display. Nothing else is looked at: what the toolkit takes for itself, only the toolkit knows.
void answerWithoutDisplay(const std::vector<std::string>& arguments);

/// The command line as start-up wants it, from the arguments that the toolkit has left: empty, or the debug
/// switch when that is all. UsageError for anything else.
std::string desktopCommandLine(const std::vector<std::string>& arguments);

/// What both of them take.
ProgramOutline desktopOutline();

}  // namespace velmora
