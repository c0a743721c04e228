// Requests of the console (Ctrl+C, the closing of its window) made from inside a test.
#pragma once

#include <windows.h>

#include <atomic>

namespace velmora::test {

/// One request, on a thread of its own as the system makes it: by the system's own function for such threads,
/// which calls the routines of SetConsoleCtrlHandler. The usual function, GenerateConsoleCtrlEvent, needs a
/// console, would reach every program on it and has no request to close.
///
/// A request that no routine answers would end the program, and with success as far as others can tell. The
/// tests' own routine keeps it from that while a request lives; it must be there before any other is.
class ConsoleRequest {
  public:
    /// Whether this system lets itself be asked.
    static bool canBeMade() { return function() != nullptr; }

    /// Registers the tests' own routine; for SetUpTestSuite.
    static void keepTheProgram() {
        // Once, also when the tests are repeated: routines that are registered later come before it.
        static const BOOL registered = SetConsoleCtrlHandler(answerWhileOneLives, TRUE);
        static_cast<void>(registered);
    }

    explicit ConsoleRequest(DWORD kind) {
        ++living_;
        thread_ = CreateThread(nullptr, 0, function(), reinterpret_cast<void*>(static_cast<DWORD_PTR>(kind)),
                               0, nullptr);
    }
    ~ConsoleRequest() {
        CloseHandle(thread_);
        --living_;
    }
    ConsoleRequest(const ConsoleRequest&) = delete;
    ConsoleRequest& operator=(const ConsoleRequest&) = delete;

    /// Waits until the routines have returned; false when they do not within ten seconds.
    bool isAnswered() const { return WaitForSingleObject(thread_, 10'000) == WAIT_OBJECT_0; }
    /// Whether a routine has not returned by now.
    bool waits() const { return WaitForSingleObject(thread_, 0) == WAIT_TIMEOUT; }

  private:
    static LPTHREAD_START_ROUTINE function() {
        for (const char* const library : {"kernelbase.dll", "kernel32.dll"}) {
            if (const HMODULE module = GetModuleHandleA(library)) {
                if (const FARPROC found = GetProcAddress(module, "CtrlRoutine")) {
                    return reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(found));
                }
            }
        }
        return nullptr;
    }

    static BOOL WINAPI answerWhileOneLives(DWORD /*kind*/) { return living_ > 0 ? TRUE : FALSE; }

    static inline std::atomic<int> living_ = 0;
    HANDLE thread_ = nullptr;
};

}  // namespace velmora::test
