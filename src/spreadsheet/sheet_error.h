// Failures that the content of a sheet is to blame for.
#pragma once

#include <string>
#include <utility>

#include "base/run_time_error.h"

namespace velmora {

/// A run-time error that comes of a sheet and not of its file, with a line that says so to people:
/// "B3: =A1+( cannot be converted".
class SheetError : public RunTimeError {
  public:
    SheetError(ErrorNumber number, std::string line) : RunTimeError(number, line), line_(std::move(line)) {}
    /// The line, Windows-1252 as the sheet's texts are.
    const std::string& line() const { return line_; }

  private:
    std::string line_;
};

}  // namespace velmora
