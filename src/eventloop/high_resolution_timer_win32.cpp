// The first of these has the types of the other.
// clang-format off
#include <windows.h>
#include <mmsystem.h>
// clang-format on

#include "eventloop/high_resolution_timer_win32.h"

#include <QAbstractEventDispatcher>
#include <chrono>

namespace velmora {
namespace {

#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
constexpr DWORD CREATE_WAITABLE_TIMER_HIGH_RESOLUTION = 2;
#endif

constexpr UINT kFinestPeriod = 1;                      // milliseconds
constexpr LONGLONG kHundredNanosecondsInOne = 10'000;  // milliseconds

/// The system's structure for ProcessPowerThrottling, which not every header has.
struct PowerThrottling {
    ULONG version = 1;
    ULONG controlMask = 0;  // which of the properties the program decides
    ULONG stateMask = 0;    // those of them that are on
};
constexpr int kProcessPowerThrottling = 4;
constexpr ULONG kIgnoreTimerResolution = 4;

/// Whether the program decides that its timers keep their resolution, or the system. Systems without the
/// call, or without the property, never take it away.
void keepResolution(bool keep) {
    using SetInformation = BOOL(WINAPI*)(HANDLE, int, void*, DWORD);
    const HMODULE kernel = GetModuleHandleA("kernel32.dll");
    const auto set = reinterpret_cast<SetInformation>(
        reinterpret_cast<void*>(GetProcAddress(kernel, "SetProcessInformation")));
    if (set != nullptr) {
        PowerThrottling throttling;
        throttling.controlMask = keep ? kIgnoreTimerResolution : 0;
        set(GetCurrentProcess(), kProcessPowerThrottling, &throttling, sizeof throttling);
    }
}

}  // namespace

HighResolutionTimer::HighResolutionTimer(Source source) {
    if (source == Source::Best) {
        waitable_ =
            CreateWaitableTimerExW(nullptr, nullptr, CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, TIMER_ALL_ACCESS);
    }
    ticks_.onTick([this] { tick(); });
}

HighResolutionTimer::~HighResolutionTimer() {
    rest();
    if (waitable_ != nullptr) {
        CloseHandle(waitable_);
    }
}

void HighResolutionTimer::setInterval(std::chrono::milliseconds interval) {
    interval_ = interval;
    if (running_ && waitable_ != nullptr && interval_.count() > 0) {
        arm();
    } else {
        rest();
        run();
    }
}

void HighResolutionTimer::setEnabled(bool enabled) {
    if (enabled != enabled_) {
        enabled_ = enabled;
        rest();
        run();
    }
}

void HighResolutionTimer::run() {
    if (!enabled_ || interval_.count() <= 0) {
        return;
    }
    running_ = true;
    keepResolution(true);
    if (waitable_ != nullptr) {
        arm();
        loop_ = QObject::connect(QAbstractEventDispatcher::instance(),
                                 &QAbstractEventDispatcher::aboutToBlock, [this] { waitForTicks(); });
    } else {
        timeBeginPeriod(kFinestPeriod);
        ticks_.setInterval(interval_);
        ticks_.setEnabled(true);
    }
}

/// Starts the count-down of the waitable timer.
void HighResolutionTimer::arm() {
    LARGE_INTEGER due{};
    due.QuadPart = -interval_.count() * kHundredNanosecondsInOne;  // below 0: from now on
    SetWaitableTimer(waitable_, &due, static_cast<LONG>(interval_.count()), nullptr, nullptr, FALSE);
}

void HighResolutionTimer::rest() {
    if (!running_) {
        return;
    }
    running_ = false;
    if (waitable_ != nullptr) {
        QObject::disconnect(loop_);
        CancelWaitableTimer(waitable_);
    } else {
        ticks_.setEnabled(false);
        timeEndPeriod(kFinestPeriod);
    }
    keepResolution(false);
}

void HighResolutionTimer::waitForTicks() {
    while (running_) {
        const DWORD came = MsgWaitForMultipleObjectsEx(1, &waitable_, INFINITE, QS_ALLINPUT,
                                                       MWMO_ALERTABLE | MWMO_INPUTAVAILABLE);
        if (came != WAIT_OBJECT_0) {
            return;
        }
        const auto begin = std::chrono::steady_clock::now();
        tick();
        if (std::chrono::steady_clock::now() - begin >= interval_) {
            // The next tick is due already and would be found before any message.
            QAbstractEventDispatcher::instance()->wakeUp();
            return;
        }
    }
}

}  // namespace velmora
