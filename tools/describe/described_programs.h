// The programs that are installed, by name.
#pragma once

#include <string>
#include <vector>

#include "arguments/outline.h"

namespace velmora::describe {

/// All of them.
std::vector<ProgramOutline> describedPrograms();

/// The one of that name; throws UsageError when there is none.
ProgramOutline describedProgram(const std::string& name);

}  // namespace velmora::describe
