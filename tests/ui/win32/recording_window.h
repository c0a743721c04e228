// A window that keeps the messages it is sent.
#pragma once

#include <shlobj.h>
#include <windows.h>

#include <string>
#include <vector>

#include "ui/win32/item_lists.h"

namespace velmora::test {

/// Stands for the shell's dialog. It is a message-only window, which needs no display.
class RecordingWindow {
  public:
    struct Message {
        UINT code;
        WPARAM wParam;
        /// The text behind lParam, the path of the item list behind it, or lParam itself in digits.
        std::string detail;
        bool operator==(const Message&) const = default;
    };

    RecordingWindow() {
        WNDCLASSA kind{};
        kind.lpfnWndProc = procedure;
        kind.hInstance = GetModuleHandleA(nullptr);
        kind.lpszClassName = "VelmoraRecordingWindow";
        RegisterClassA(&kind);
        handle_ = CreateWindowExA(0, kind.lpszClassName, "", WS_POPUP, 10, 20, 301, 200, HWND_MESSAGE,
                                  nullptr, kind.hInstance, this);
    }
    ~RecordingWindow() { DestroyWindow(handle_); }
    RecordingWindow(const RecordingWindow&) = delete;
    RecordingWindow& operator=(const RecordingWindow&) = delete;

    HWND handle() const { return handle_; }
    const std::vector<Message>& messages() const { return messages_; }
    /// The flags of the last SetWindowPos.
    UINT positionFlags() const { return positionFlags_; }
    std::string caption() const {
        char text[100];
        GetWindowTextA(handle_, text, sizeof text);
        return text;
    }
    RECT frame() const {
        RECT frame{};
        GetWindowRect(handle_, &frame);
        return frame;
    }

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT code, WPARAM wParam, LPARAM lParam) {
        if (code == WM_NCCREATE) {
            const auto* creation = reinterpret_cast<CREATESTRUCTA*>(lParam);
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
        }
        auto* self = reinterpret_cast<RecordingWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        if (self != nullptr) {
            self->record(code, wParam, lParam);
        }
        return DefWindowProcA(window, code, wParam, lParam);
    }

    void record(UINT code, WPARAM wParam, LPARAM lParam) {
        if (code == WM_WINDOWPOSCHANGING) {
            positionFlags_ = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
        } else if (code == BFFM_SETSTATUSTEXTA || (code == BFFM_SETSELECTIONA && wParam == TRUE)) {
            messages_.push_back({code, wParam, reinterpret_cast<const char*>(lParam)});
        } else if (code == BFFM_SETSELECTIONA) {
            const auto path = pathOfItem(reinterpret_cast<PCIDLIST_ABSOLUTE>(lParam));
            messages_.push_back({code, wParam, path.value_or("?")});
        } else if (code >= WM_USER || code == WM_COMMAND) {
            messages_.push_back({code, wParam, std::to_string(lParam)});
        }
    }

    HWND handle_ = nullptr;
    std::vector<Message> messages_;
    UINT positionFlags_ = 0;
};

}  // namespace velmora::test
