// A cable made of two pseudo-terminals.
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "serial/mode_string.h"

namespace velmora::tools {

/// One end of the cable: a pseudo-terminal whose device a program opens as its serial port. The end keeps
/// the device open itself, so that programs may come and go without hanging up the line.
class CableEnd {
  public:
    /// Makes the pseudo-terminal in raw mode; throws std::system_error.
    CableEnd();
    ~CableEnd();
    CableEnd(const CableEnd&) = delete;
    CableEnd& operator=(const CableEnd&) = delete;

    /// Marks the device as in the exclusive use of this program: only a privileged one can still open it.
    void hold();

    /// What the program that has the device open has set it to. A pseudo-terminal keeps the rate, but no
    /// parity.
    LineSettings settings() const;

    int master() const { return master_; }
    const std::string& device() const { return device_; }

  private:
    int master_ = -1;
    int slave_ = -1;
    std::string device_;
};

/// Carries bytes from one end to the other, at the speed of a line of `baud` (10 bits a byte; 0: at once).
/// What an end does not take is lost once more than a real buffer's worth waits.
class CableDirection {
  public:
    using Time = std::chrono::steady_clock::time_point;

    /// What becomes of a run of bytes on the way.
    using Change = std::function<std::string(std::string_view bytes)>;

    /// `change` may be none: then bytes arrive as they are.
    CableDirection(CableEnd& from, CableEnd& to, unsigned baud, Change change = {});

    /// Takes what has been written at the one end. Returns false when that end is gone.
    bool receive(Time now);
    /// Puts bytes on the line behind those that are under way.
    void put(std::string bytes, Time now);
    /// Hands over what has arrived by now.
    void deliver(Time now);
    /// When the next byte arrives; Time::max() when none is under way.
    Time nextArrival() const;
    int source() const { return from_.master(); }
    /// Bytes carried so far.
    std::size_t carried() const { return carried_; }
    /// When the last of the bytes carried so far arrived, once: nothing while some are under way, and until
    /// more have arrived than at the last call.
    std::optional<Time> takeArrival();

  private:
    struct Burst {
        std::string bytes;
        std::size_t done = 0;
        Time start;  // when its first bit left
    };
    CableEnd& from_;
    CableEnd& to_;
    Change change_;
    std::chrono::nanoseconds byteTime_;
    Time lineFree_{};  // when the last byte taken has left the line
    std::deque<Burst> bursts_;
    std::size_t waiting_ = 0;  // bytes in bursts_ that are not yet done
    std::size_t carried_ = 0;
    std::optional<Time> arrival_;  // of the last byte, until it is taken
    bool blocked_ = false;         // the other end took nothing; try again at retry_
    Time retry_{};
};

}  // namespace velmora::tools
