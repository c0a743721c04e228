#include "platform/console_output.h"

#include <windows.h>

namespace velmora {
namespace {

bool isConsole(DWORD stream) {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(stream), &mode) != FALSE;
}

}  // namespace

// A console starts with the OEM code page of old, in which the bytes of other encodings are other letters.
std::shared_ptr<void> showOnConsole(PrintedText text) {
    if (!isConsole(STD_OUTPUT_HANDLE) && !isConsole(STD_ERROR_HANDLE)) {
        return nullptr;
    }
    const UINT wanted = text == PrintedText::Utf8 ? CP_UTF8 : GetACP();
    const UINT earlier = GetConsoleOutputCP();
    if (earlier == wanted || SetConsoleOutputCP(wanted) == FALSE) {
        return nullptr;
    }
    // The console may be the shell's, which goes on using it.
    return {nullptr, [earlier](void*) { SetConsoleOutputCP(earlier); }};
}

}  // namespace velmora
