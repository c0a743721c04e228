// The newest part of a recording, in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

#include "capture/capture.h"

namespace velmora {

/// Keeps the packets that came last, as many as fit, so that they can be saved once something has gone wrong.
class CaptureRing : public CaptureTarget {
  public:
    /// What packets are allowed to hold, of bytes and comments together with what each takes beside them.
    static constexpr std::size_t kCapacity = 4 * 1024 * 1024;

    explicit CaptureRing(std::size_t capacity = kCapacity) : capacity_(capacity) {}

    void addPort(const CapturedPort& port) override;
    void addPacket(const CapturedPacket& packet) override;

    /// What is kept, with the ports that it is of.
    Capture capture() const;

  private:
    void dropOldest();

    std::size_t capacity_;
    std::size_t held_ = 0;
    std::size_t firstPort_ = 0;  // number of the first port that is kept, of all that were opened
    std::deque<CapturedPort> ports_;
    std::deque<CapturedPacket> packets_;  // `port` counts all that were opened
};

}  // namespace velmora
