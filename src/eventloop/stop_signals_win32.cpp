#include <windows.h>

#include <QCoreApplication>
#include <QWinEventNotifier>
#include <mutex>
#include <system_error>
#include <utility>

#include "eventloop/end_of_session_win32.h"
#include "eventloop/stop_signals.h"

namespace velmora {
namespace {

/// The event that a request sets; none while nobody watches. Outside of any object since
/// SetConsoleCtrlHandler hands its routine nothing but the request's kind; behind a lock since the routine
/// runs on a thread that the system makes for it.
struct {
    std::mutex lock;
    HANDLE event = nullptr;
} requested;

/// Whether the system ends the program once the routine has returned, without waiting for anything else.
bool endsAfterwards(DWORD request) {
    return request == CTRL_CLOSE_EVENT || request == CTRL_LOGOFF_EVENT || request == CTRL_SHUTDOWN_EVENT;
}

BOOL WINAPI noteRequest(DWORD request) {
    {
        const std::lock_guard<std::mutex> guard(requested.lock);
        if (requested.event == nullptr) {
            return FALSE;
        }
        SetEvent(requested.event);
    }
    if (endsAfterwards(request)) {
        // The main thread stops meanwhile and ends the program, and this thread with it.
        Sleep(INFINITE);
    }
    return TRUE;
}

/// Makes the system call the routine, which stays for good: the system holds its list of routines locked
/// while one of them runs, so whoever took this one off it would wait for ever once the end was requested.
void registerRoutine() {
    static const BOOL registered = SetConsoleCtrlHandler(noteRequest, TRUE);
    static_cast<void>(registered);
}

/// What a request to close the hidden window does. A program without windows of its own is asked to stop that
/// way, by taskkill for one; one that has some is closed by these, which may want to ask the user first.
std::function<void()> closeHandler(const std::function<void()>& handler) {
    const QCoreApplication* const application = QCoreApplication::instance();
    const bool hasWindows = application != nullptr && application->inherits("QGuiApplication");
    return hasWindows ? std::function<void()>([] {}) : handler;
}

[[noreturn]] void fail(const char* what) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

}  // namespace

class HeldStopSignals::Set {};

HeldStopSignals::HeldStopSignals() = default;
HeldStopSignals::~HeldStopSignals() = default;
void HeldStopSignals::keepToTheEnd() {}

/// An event that the console's requests set and that the event loop waits for, and the session's end.
class StopSignals::Watch {
  public:
    explicit Watch(std::function<void()> handler)
        : handler_(std::move(handler)), session_(handler_, closeHandler(handler_)) {
        event_ = CreateEventA(nullptr, FALSE, FALSE, nullptr);
        if (event_ == nullptr) {
            fail("CreateEvent");
        }
        notifier_.setHandle(event_);
        QObject::connect(&notifier_, &QWinEventNotifier::activated, &notifier_, [this] { handler_(); });
        notifier_.setEnabled(true);
        note(event_);
        registerRoutine();
    }
    ~Watch() {
        note(nullptr);
        notifier_.setEnabled(false);
        CloseHandle(event_);
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

  private:
    static void note(HANDLE event) {
        const std::lock_guard<std::mutex> guard(requested.lock);
        requested.event = event;
    }

    std::function<void()> handler_;
    EndOfSession session_;
    HANDLE event_ = nullptr;
    QWinEventNotifier notifier_;
};

StopSignals::StopSignals(const HeldStopSignals& /*held*/, std::function<void()> handler)
    : watch_(std::make_unique<Watch>(std::move(handler))) {}
StopSignals::~StopSignals() = default;

}  // namespace velmora
