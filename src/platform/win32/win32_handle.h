// A Win32 handle with an owner.
#pragma once

#include <windows.h>

#include <utility>

namespace velmora {

/// A handle of CreateFileA that is closed unless it is handed on.
class Win32Handle {
  public:
    explicit Win32Handle(HANDLE handle) : handle_(handle) {}
    Win32Handle(const Win32Handle&) = delete;
    Win32Handle& operator=(const Win32Handle&) = delete;
    ~Win32Handle() {
        if (isValid()) {
            CloseHandle(handle_);
        }
    }

    bool isValid() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }
    HANDLE handOn() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

  private:
    HANDLE handle_;
};

}  // namespace velmora
