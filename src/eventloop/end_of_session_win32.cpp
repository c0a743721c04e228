#include "eventloop/end_of_session_win32.h"

#include <utility>

namespace velmora {

EndOfSession::EndOfSession(std::function<void()> ends, std::function<void()> close)
    : ends_(std::move(ends)),
      close_(std::move(close)),
      window_(kWindowClass, [this](UINT message, WPARAM what) { return take(message, what); }) {}

bool EndOfSession::take(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_ENDSESSION:
            // A session that was about to end and goes on is told with a wParam of 0.
            if (wParam != 0) {
                ends_();
            }
            return true;
        case WM_CLOSE:
            // What the system does by itself is to destroy the window, which would then hear of nothing.
            close_();
            return true;
        default:
            return false;
    }
}

}  // namespace velmora
