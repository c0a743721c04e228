#include "eventloop/end_of_session_win32.h"

#include <utility>

namespace velmora {

EndOfSession::EndOfSession(std::function<void()> ends, std::function<void()> close)
    : ends_(std::move(ends)), close_(std::move(close)) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = take;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = kWindowClass;
    RegisterClassA(&windowClass);
    // Not a message-only window: those are not told of what all windows are told of.
    window_ = CreateWindowA(kWindowClass, "Velmora", WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr,
                            windowClass.hInstance, nullptr);
    if (window_ != nullptr) {
        SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
}

EndOfSession::~EndOfSession() {
    if (window_ != nullptr) {
        DestroyWindow(window_);
    }
    UnregisterClassA(kWindowClass, GetModuleHandleA(nullptr));
}

LRESULT CALLBACK EndOfSession::take(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<EndOfSession*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self != nullptr) {
        switch (message) {
            case WM_ENDSESSION:
                // A session that was about to end and goes on is told with a wParam of 0.
                if (wParam != 0) {
                    self->ends_();
                }
                return 0;
            case WM_CLOSE:
                // What the system does by itself is to destroy the window, which would then hear of nothing.
                self->close_();
                return 0;
            case WM_NCDESTROY:
                self->window_ = nullptr;
                SetWindowLongPtrA(window, GWLP_USERDATA, 0);
                break;
            default:
                break;
        }
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace velmora
