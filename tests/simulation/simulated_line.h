// The cable between Organiser and server: bytes leave at their wire time, and what is to go wrong does.
#pragma once

#include <array>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "faults.h"
#include "journal.h"
#include "line_watch.h"
#include "link/crc.h"
#include "random.h"
#include "virtual_time.h"

namespace velmora::simulation {

/// Two directions of bytes, each in order. All that it is given must outlive it.
class SimulatedLine {
  public:
    SimulatedLine(const VirtualTime& time, FaultsOfStep& faults, Journal& journal, Random random);

    /// So many bits a second; a byte takes ten.
    void setRate(unsigned baud);
    /// Bytes are on their way from here to there this much longer than they take.
    void setDelay(Time delay) { delay_ = delay; }
    /// A cut cable loses what is on its way and what is sent.
    void setConnected(bool connected);

    /// One frame goes out.
    void send(Direction direction, std::string_view frame);
    /// Bytes that have arrived and wait.
    std::size_t waiting(Direction direction) const;
    /// Up to `most` of them.
    std::string take(Direction direction, std::size_t most);
    /// When the last byte of what is being sent first arrives; nothing when nothing is on its way.
    std::optional<Time> nextArrival(Direction direction) const;
    /// Whether nothing is on its way that has not arrived.
    bool silent() const;
    /// Forgets what waits and what is on its way.
    void discard(Direction direction) { queues_[index(direction)].clear(); }

  private:
    /// Bytes that follow each other without a gap.
    struct Stretch {
        Time begin;  ///< when the first byte leaves
        std::string bytes;
        std::size_t taken = 0;
    };
    static std::size_t index(Direction direction) { return static_cast<std::size_t>(direction); }

    std::size_t arrived(const Stretch& stretch) const;
    Time end(const Stretch& stretch) const;
    void transmit(Direction direction, std::string bytes);
    std::string damaged(std::string_view frame, std::uint32_t bit) const;
    bool readsAsAnother(std::string_view damagedFrame, std::string_view frame) const;

    const VirtualTime& time_;
    FaultsOfStep& faults_;
    Journal& journal_;
    Random random_;
    Crc crc_;
    LineWatch watch_;
    std::chrono::nanoseconds byteTime_{1'041'667};
    Time delay_{0};
    bool connected_ = true;
    std::array<std::deque<Stretch>, 2> queues_;
    std::array<Time, 2> idleFrom_{};
};

}  // namespace velmora::simulation
