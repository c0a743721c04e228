// What the computer's sleep means for a server.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "base/computer_sleep.h"
#include "base/timer.h"

namespace velmora {

/// What a server does about the computer's sleep, which no port can be trusted to survive.
struct SleepActions {
    std::function<void()> sleeps;  ///< the port goes, as if its adapter were pulled
    std::function<void()> wakes;   ///< it is back, as if the adapter were plugged in
};

/// Keeps the computer awake while a file moves, and takes its sleep for a pull of the port and its waking for
/// a plug.
class SleepWatch {
  public:
    /// A file moves while the Organiser has one open and is heard at least so often. An Organiser that was
    /// switched off with a file open leaves the link up: the computer may sleep then.
    static constexpr std::chrono::milliseconds kSilence{60'000};

    /// `sleep` and `timer` must outlive it; the timer is for it alone.
    SleepWatch(ComputerSleep& sleep, Timer& timer, SleepActions actions);
    ~SleepWatch();
    SleepWatch(const SleepWatch&) = delete;
    SleepWatch& operator=(const SleepWatch&) = delete;

    /// The server is in this ServerState now.
    void serverIs(std::int32_t state);
    /// Bytes have come.
    void heard();

  private:
    void tick();
    void keepAwake(bool wanted);

    ComputerSleep& sleep_;
    Timer& timer_;
    bool fileOpen_ = false;
    bool heard_ = false;  // since the last tick
    bool kept_ = false;   // the computer is asked to stay awake
};

}  // namespace velmora
