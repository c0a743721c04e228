// The end of the Windows session (logging off, shutting down), and requests to close, for a program that may
// have no window.
#pragma once

#include <windows.h>

#include <functional>

#include "eventloop/hidden_window_win32.h"

namespace velmora {

/// While it lives, the end of the session and a request to close run handlers on the thread that made it,
/// whose messages must be dispatched. Programs that load user32.dll, as all with the toolkit do, are told of
/// it by messages to their top-level windows only (WM_ENDSESSION), so this is such a window, which is never
/// shown. Where the system makes no windows there is no session that ends, and it does nothing.
class EndOfSession {
  public:
    /// The class of the window.
    static constexpr const char* kWindowClass = "VelmoraEndOfSession";

    /// The program may be ended as soon as `ends` returns. `close` runs when the window is asked to close, as
    /// all top-level windows of a program are by somebody who wants it to end; the window stays.
    EndOfSession(std::function<void()> ends, std::function<void()> close);

    /// Whether there is a window that the requests come to.
    bool hears() const { return window_.handle() != nullptr; }

  private:
    bool take(UINT message, WPARAM wParam);

    std::function<void()> ends_;
    std::function<void()> close_;
    HiddenWindow window_;
};

}  // namespace velmora
