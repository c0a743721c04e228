// The main window's title.
#pragma once

#include <string>

#include "services/strings.h"

namespace velmora {

/// The program's name as it stands in titles of windows and boxes.
inline constexpr const char* kProgramName = "Velmora";

/// The title while the window is minimised: "Velmora - " and both lines of the state's display text, trimmed,
/// with a blank between them. An empty line leaves its blank.
std::string minimisedCaption(const DisplayText& text);

}  // namespace velmora
