#include <io.h>
#include <windows.h>
// Needs windows.h before it.
#include <shellapi.h>

#include <functional>
#include <memory>

#include "apps/console.h"
#include "apps/narrow_argument_win32.h"

namespace velmora {
namespace {

std::string utf8Of(const wchar_t* text) {
    // The length that is told counts the zero behind the text.
    const int length = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (length <= 0) {
        return {};
    }
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), length, nullptr, nullptr);
    bytes.pop_back();
    return bytes;
}

/// The words behind the program's name in another form; those of `main` when the system does not tell them.
std::vector<std::string> argumentsAs(const std::function<std::string(const wchar_t*)>& form, int argc,
                                     char** argv) {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> wide(CommandLineToArgvW(GetCommandLineW(), &count),
                                                             LocalFree);
    if (!wide) {
        return {argv + 1, argv + argc};
    }
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(form(wide.get()[i]));
    }
    return arguments;
}

}  // namespace

std::vector<std::string> utf8Arguments(int argc, char** argv) {
    return argumentsAs(utf8Of, argc, argv);
}

std::vector<std::string> systemArguments(int argc, char** argv) {
    return argumentsAs(narrowArgument, argc, argv);
}

void useStartersConsole() {
    const bool told = GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) != FILE_TYPE_UNKNOWN ||
                      GetFileType(GetStdHandle(STD_ERROR_HANDLE)) != FILE_TYPE_UNKNOWN;
    if (!told && AttachConsole(ATTACH_PARENT_PROCESS) != FALSE) {
        std::freopen("CONOUT$", "w", stdout);
        std::freopen("CONOUT$", "w", stderr);
    }
}

// No file is ever taken for a standard stream.
void openStandardStreams() {}

bool isTerminal(std::FILE* stream) {
    // The C library also takes the null device for a terminal; only a console has a mode.
    DWORD mode = 0;
    return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream))), &mode) != FALSE;
}

}  // namespace velmora
