#include "platform/console_output.h"

#include <windows.h>

#include <atomic>

namespace velmora {
namespace {

/// The code page that the console had before; 0 when there is none to give back. Outside of any object since
/// the system hands the routine below nothing but the kind of the request, on a thread of its own.
std::atomic<UINT> earlierCodePage = 0;

bool isConsole(DWORD stream) {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(stream), &mode) != FALSE;
}

void giveBack() {
    if (const UINT codePage = earlierCodePage.exchange(0)) {
        SetConsoleOutputCP(codePage);
    }
}

/// Ctrl+C and the like end the program without running anything of it but this, unless a routine that was
/// registered later takes the request upon itself.
BOOL WINAPI giveBackBeforeTheEnd(DWORD /*request*/) {
    giveBack();
    return FALSE;
}

/// Makes the system call the routine. It stays for good: the system holds its list of routines locked while
/// one of them runs, which may be for as long as the program lives.
void registerForTheEnd() {
    static const BOOL registered = SetConsoleCtrlHandler(giveBackBeforeTheEnd, TRUE);
    static_cast<void>(registered);
}

}  // namespace

// A console starts with the OEM code page of old, in which the bytes of other encodings are other letters.
std::shared_ptr<void> showOnConsole(PrintedText text) {
    if (!isConsole(STD_OUTPUT_HANDLE) && !isConsole(STD_ERROR_HANDLE)) {
        return nullptr;
    }
    const UINT wanted = text == PrintedText::Utf8 ? CP_UTF8 : GetACP();
    const UINT earlier = GetConsoleOutputCP();
    if (earlier == wanted) {
        return nullptr;
    }
    registerForTheEnd();
    earlierCodePage = earlier;
    if (SetConsoleOutputCP(wanted) == FALSE) {
        earlierCodePage = 0;
        return nullptr;
    }
    // The console may be the shell's, which goes on using it.
    return {nullptr, [](void*) { giveBack(); }};
}

}  // namespace velmora
