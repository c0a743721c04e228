// What the command-line programs print on a console.
#pragma once

namespace velmora {

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
