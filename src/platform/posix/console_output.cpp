#include "platform/console_output.h"

namespace velmora {

// A terminal has the encoding of everything else.
ConsoleOutput::ConsoleOutput() = default;
ConsoleOutput::~ConsoleOutput() = default;

}  // namespace velmora
