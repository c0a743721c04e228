// The first of these has the types of the other.
// clang-format off
#include <windows.h>
#include <mmsystem.h>
// clang-format on

#include "eventloop/high_resolution_timer_win32.h"

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
    const auto pass = [this] {
        if (enabled_) {
            tick();
        }
    };
    ticks_.onTick(pass);
    if (waitable_ != nullptr) {
        notifier_ = std::make_unique<QWinEventNotifier>();
        notifier_->setHandle(waitable_);
        QObject::connect(notifier_.get(), &QWinEventNotifier::activated, notifier_.get(), pass);
    }
}

HighResolutionTimer::~HighResolutionTimer() {
    rest();
    notifier_.reset();
    if (waitable_ != nullptr) {
        CloseHandle(waitable_);
    }
}

void HighResolutionTimer::setInterval(std::chrono::milliseconds interval) {
    interval_ = interval;
    rest();
    run();
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
        LARGE_INTEGER due{};
        due.QuadPart = -interval_.count() * kHundredNanosecondsInOne;  // below 0: from now on
        SetWaitableTimer(waitable_, &due, static_cast<LONG>(interval_.count()), nullptr, nullptr, FALSE);
        notifier_->setEnabled(true);
    } else {
        timeBeginPeriod(kFinestPeriod);
        ticks_.setInterval(interval_);
        ticks_.setEnabled(true);
    }
}

void HighResolutionTimer::rest() {
    if (!running_) {
        return;
    }
    running_ = false;
    if (waitable_ != nullptr) {
        notifier_->setEnabled(false);
        CancelWaitableTimer(waitable_);
    } else {
        ticks_.setEnabled(false);
        timeEndPeriod(kFinestPeriod);
    }
    keepResolution(false);
}

}  // namespace velmora
