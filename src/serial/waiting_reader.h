// Waiting for bytes from an open serial device.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "serial/comm_device.h"

namespace velmora {

/// What a wait for bytes gave.
struct WaitedBytes {
    SystemError error = kSuccess;
    std::string bytes;             ///< as many as were there; empty when none came in time
    std::uint32_t errorFlags = 0;  ///< what the driver saw on the line meanwhile, as in CommStatus
};

/// Reads from a device with the time-outs of its own reads, so that a byte is there as soon as it comes. The
/// device is for this reader alone while it lasts.
class WaitingReader {
  public:
    using Time = std::chrono::microseconds;

    /// `device` must outlive this object. `timeouts` are those that it was opened with, whose readInterval is
    /// 0. `now` gives a time that only grows. `breathe` runs between two waits, which take no longer than
    /// `longestWait`: not every driver ends a wait when its device goes, but each tells of it when it is
    /// asked.
    WaitingReader(CommDevice& device, const CommTimeouts& timeouts, std::function<Time()> now,
                  Time longestWait, std::function<void()> breathe = {});

    /// Waits for bytes until `deadline`, and returns as soon as some are there. A deadline in the past only
    /// takes what waits.
    WaitedBytes read(Time deadline);

  private:
    SystemError takeWaiting(WaitedBytes& result);
    SystemError waitForOne(Time atMost, WaitedBytes& result);
    SystemError readUntil(Time deadline, WaitedBytes& result);

    CommDevice& device_;
    CommTimeouts timeouts_;
    std::function<Time()> now_;
    Time longestWait_;
    std::function<void()> breathe_;
};

}  // namespace velmora
