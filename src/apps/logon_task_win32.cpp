#include "apps/logon_task_win32.h"

#include <windows.h>
// They need windows.h before them.
#define SECURITY_WIN32
#include <security.h>

#include <array>
#include <stdexcept>

#include "apps/logon_task.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/task_scheduler.h"

namespace velmora {
namespace {

constexpr const char* kTaskName = "Velmora";
/// As long as a path with the prefix "\\?\" may be.
constexpr std::size_t kLongestPath = 32'768;

std::string userName() {
    std::array<wchar_t, 512> name{};
    ULONG length = name.size();
    if (GetUserNameExW(NameSamCompatible, name.data(), &length) == FALSE) {
        throw std::runtime_error("Windows does not tell who you are.");
    }
    return utf8FromWide(name.data());
}

std::string programPath() {
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return utf8FromWide(path);
}

std::string workingFolder() {
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
    return utf8FromWide(path);
}

}  // namespace

std::string installLogonTask(const std::vector<std::string>& arguments) {
    registerTask(kTaskName, taskDefinition({userName(), programPath(), arguments, workingFolder()}));
    return "The server starts whenever you log on. \"schtasks /Run /TN Velmora\" starts it now.\n";
}

std::string removeLogonTask() {
    if (!deleteTask(kTaskName)) {
        throw std::runtime_error("There is no task \"Velmora\".");
    }
    return "The server does not start by itself any more.\n";
}

}  // namespace velmora
