// The program velmora-files: the server's conversions on files, without an Organiser at hand.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "arguments/program.h"
#include "base/files.h"
#include "base/path_rules.h"

namespace velmora {

/// Status when something was left out or changed on the way and --strict was given.
constexpr int kStatusLeftOut = 3;

/// Runs the program. `arguments`: the command line without the program's name. Reads and writes files only
/// through `files`; "-" is `in` or `out`. One clear line goes to `err` for each failure and for
/// all that is left out. Returns kStatusDone, kStatusFailed when a file failed or is damaged,
/// kStatusWrongUsage or kStatusLeftOut.
int runFilesTool(const std::vector<std::string>& arguments, Files& files, const PathRules& rules,
                 std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora
