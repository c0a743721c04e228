// The line that the doctor examines.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "serial/comm_device.h"
#include "serial/mode_string.h"

namespace velmora {

/// The device went away or takes no bytes. The text is one sentence for the user.
class LineLost : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Bytes, and the line errors that the driver saw meanwhile (CommStatus::errorFlags).
struct LineInput {
    std::string bytes;
    std::uint32_t errorFlags = 0;
};

/// Bytes out, bytes in, settings, and the time that goes by meanwhile. Programs use a device, tests a line
/// under a clock of their own. After open, all members but `now` may throw LineLost.
class ExaminedLine {
  public:
    using Time = std::chrono::microseconds;

    virtual ~ExaminedLine() = default;

    /// Opens the device with DTR raised. What went wrong is told by the number that the plain layer keeps.
    virtual SystemError open(const LineSettings& settings) = 0;
    /// Sets the open device otherwise, and drops what waits. False when it does not take the settings.
    virtual bool use(const LineSettings& settings) = 0;
    /// What the device tells that it is set to; nothing when it does not tell.
    virtual std::optional<LineSettings> settingsInUse() = 0;
    /// The modem lines that are on, as CommDevice has them; nothing where there are none.
    virtual std::optional<std::uint32_t> modemLines() = 0;
    virtual void write(std::string_view bytes) = 0;
    /// Waits for bytes until now() reaches `deadline` and returns as soon as some are there.
    virtual LineInput read(Time deadline) = 0;
    /// A time that only grows, from an arbitrary zero.
    virtual Time now() const = 0;
};

}  // namespace velmora
