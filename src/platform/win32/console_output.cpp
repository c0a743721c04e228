#include "platform/console_output.h"

#include <io.h>
#include <windows.h>

namespace velmora {

// The run-time library's own question (_isatty) takes the null device for a terminal.
bool isTerminal(std::FILE* stream) {
    DWORD mode = 0;
    return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream))), &mode) != FALSE;
}

// A console starts with the OEM code page of old, in which the bytes of the ANSI code page are other letters.
ConsoleOutput::ConsoleOutput() {
    if (!isTerminal(stdout) && !isTerminal(stderr)) {
        return;
    }
    const UINT earlier = GetConsoleOutputCP();
    if (earlier != GetACP() && SetConsoleOutputCP(GetACP()) != FALSE) {
        earlierCodePage_ = earlier;
    }
}

// The console may be the shell's, which goes on using it.
ConsoleOutput::~ConsoleOutput() {
    if (earlierCodePage_ != 0) {
        SetConsoleOutputCP(earlierCodePage_);
    }
}

}  // namespace velmora
