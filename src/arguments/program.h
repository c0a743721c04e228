// What all programs on the command line have in common around their work.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

namespace velmora {

constexpr int kStatusDone = 0;
constexpr int kStatusFailed = 1;
constexpr int kStatusWrongUsage = 2;

/// Does a program's work, which begins with reading its command line, and returns the exit status: the work's
/// own; kStatusDone for a RequestedText, which goes to `out`; kStatusWrongUsage for a UsageError;
/// kStatusFailed for any other exception, and when the work succeeded but `out` could not be written. What
/// went wrong is one line on `err` behind the program's name.
int runProgram(const std::string& name, std::ostream& out, std::ostream& err,
               const std::function<int()>& work);

}  // namespace velmora
