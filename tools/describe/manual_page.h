// Manual pages.
#pragma once

#include <string>
#include <vector>

#include "arguments/outline.h"

namespace velmora::describe {

/// The manual page of a program, section 1, in the man macros of troff; `others` are pages to see too, such
/// as "Velmora.ini(5)".
std::string manualPage(const ProgramOutline& program, const std::vector<std::string>& others);

}  // namespace velmora::describe
