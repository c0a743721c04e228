#include "platform/console_output.h"

#include <unistd.h>

namespace velmora {

bool isTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) != 0;
}

// A terminal has the encoding of everything else.
ConsoleOutput::ConsoleOutput() = default;
ConsoleOutput::~ConsoleOutput() = default;

}  // namespace velmora
