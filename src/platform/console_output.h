// What the command-line programs print on a console.
#pragma once

#include <cstdio>

namespace velmora {

/// Whether somebody watches the stream; false for files, pipes and the null device.
bool isTerminal(std::FILE* stream);

/// While it lives, a console shows the program's narrow texts with the right letters. Output to files and
/// pipes is the same bytes with and without it. One for a program, on main()'s stack.
class ConsoleOutput {
  public:
    ConsoleOutput();
    ~ConsoleOutput();
    ConsoleOutput(const ConsoleOutput&) = delete;
    ConsoleOutput& operator=(const ConsoleOutput&) = delete;

  private:
    unsigned earlierCodePage_ = 0;  ///< what the console gets back; 0 when nothing was changed
};

}  // namespace velmora
