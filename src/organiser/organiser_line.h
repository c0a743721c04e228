// The line between the virtual Organiser and the server, as the link sees it.
#pragma once

#include <chrono>
#include <stdexcept>
#include <string>
#include <string_view>

namespace velmora {

/// The line cannot be opened or is gone. The text is one sentence for the user.
class LineError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Bytes out, bytes in, and the time that goes by meanwhile. The programs use a device, tests a scripted
/// server under a clock of their own.
class OrganiserLine {
  public:
    using Time = std::chrono::microseconds;

    virtual ~OrganiserLine() = default;

    /// Sends all bytes. The link hands over exactly one frame a call. Throws LineError when the line is gone.
    virtual void write(std::string_view bytes) = 0;
    /// Waits for bytes until now() reaches `deadline` and returns them as soon as some are there; empty when
    /// none came. A deadline in the past only takes what waits. Throws LineError when the line is gone.
    virtual std::string read(Time deadline) = 0;
    /// A time that only grows, from an arbitrary zero.
    virtual Time now() const = 0;
};

}  // namespace velmora
