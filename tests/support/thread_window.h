// The windows of the test's own thread.
#pragma once

#include <windows.h>

#include <array>
#include <string>

namespace velmora::test {

/// The window of a class that this thread has made, null without one; other programs that run may have
/// windows of the same class.
inline HWND threadWindow(const char* windowClass) {
    struct Search {
        std::string windowClass;
        HWND found = nullptr;
    } search{windowClass};
    const auto keepIfWanted = [](HWND window, LPARAM parameter) -> BOOL {
        auto* const wanted = reinterpret_cast<Search*>(parameter);
        std::array<char, 64> name{};
        GetClassNameA(window, name.data(), static_cast<int>(name.size()));
        if (wanted->windowClass != name.data()) {
            return TRUE;
        }
        wanted->found = window;
        return FALSE;
    };
    EnumThreadWindows(GetCurrentThreadId(), keepIfWanted, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace velmora::test
