#include "platform/console_output.h"

#include <windows.h>

namespace velmora {
namespace {

bool isConsole(DWORD stream) {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(stream), &mode) != FALSE;
}

}  // namespace

// A console starts with the OEM code page of old, in which the bytes of the ANSI code page are other letters.
ConsoleOutput::ConsoleOutput() {
    if (!isConsole(STD_OUTPUT_HANDLE) && !isConsole(STD_ERROR_HANDLE)) {
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
