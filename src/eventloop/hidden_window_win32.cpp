#include "eventloop/hidden_window_win32.h"

#include <utility>

namespace velmora {

HiddenWindow::HiddenWindow(const char* windowClass, Take take)
    : windowClass_(windowClass), take_(std::move(take)) {
    WNDCLASSA description{};
    description.lpfnWndProc = receive;
    description.hInstance = GetModuleHandleA(nullptr);
    description.lpszClassName = windowClass_;
    RegisterClassA(&description);
    window_ = CreateWindowA(windowClass_, "Velmora", WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr,
                            description.hInstance, nullptr);
    if (window_ != nullptr) {
        SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
}

HiddenWindow::~HiddenWindow() {
    if (window_ != nullptr) {
        DestroyWindow(window_);
    }
    UnregisterClassA(windowClass_, GetModuleHandleA(nullptr));
}

LRESULT CALLBACK HiddenWindow::receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<HiddenWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self != nullptr && message == WM_NCDESTROY) {
        self->window_ = nullptr;
        SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    } else if (self != nullptr && self->take_(message, wParam)) {
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace velmora
