// The end of the Windows session (logging off, shutting down) for a program that may have no window.
#pragma once

#include <windows.h>

#include <functional>

namespace velmora {

/// While it lives, the end of the session runs a handler on the thread that made it, whose messages must be
/// dispatched. Programs that load user32.dll, as all with the toolkit do, are told of it by messages to their
/// top-level windows only (WM_ENDSESSION), so this is such a window, which is never shown. Where the system
/// makes no windows there is no session that ends, and it does nothing.
class EndOfSession {
  public:
    /// The class of the window.
    static constexpr const char* kWindowClass = "VelmoraEndOfSession";

    /// The program may be ended as soon as `handler` returns.
    explicit EndOfSession(std::function<void()> handler);
    ~EndOfSession();
    EndOfSession(const EndOfSession&) = delete;
    EndOfSession& operator=(const EndOfSession&) = delete;

  private:
    static LRESULT CALLBACK take(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::function<void()> handler_;
    HWND window_ = nullptr;
};

}  // namespace velmora
