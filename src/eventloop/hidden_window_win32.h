// A window for messages that the system sends to windows only.
#pragma once

#include <windows.h>

#include <functional>

namespace velmora {

/// A top-level window that is never shown; the event loop dispatches its messages. Not a message-only window:
/// those are not told of what all windows are told of. Where the system makes no windows there is none.
class HiddenWindow {
  public:
    /// Takes a message; true when nothing more is to be done about it.
    using Take = std::function<bool(UINT message, WPARAM wParam)>;

    /// `windowClass`: one for each window that lives at a time.
    HiddenWindow(const char* windowClass, Take take);
    ~HiddenWindow();
    HiddenWindow(const HiddenWindow&) = delete;
    HiddenWindow& operator=(const HiddenWindow&) = delete;

    /// Null where there is none, as well once the system has destroyed it.
    HWND handle() const { return window_; }

  private:
    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    const char* windowClass_;
    Take take_;
    HWND window_ = nullptr;
};

}  // namespace velmora
