#include "eventloop/end_of_session_win32.h"

#include <utility>

namespace velmora {

EndOfSession::EndOfSession(std::function<void()> handler) : handler_(std::move(handler)) {
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
    const auto* self = reinterpret_cast<const EndOfSession*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    // A session that was about to end and goes on is told with a wParam of 0.
    if (message == WM_ENDSESSION && wParam != 0 && self != nullptr) {
        self->handler_();
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace velmora
