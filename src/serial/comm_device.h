// The system's communications calls, one member for each, as the plain layer uses them.
//
// The order of the steps, the names of the sources and the recording of failures are the plain layer's
// (comm_plain.h) and the same everywhere. What differs between systems is behind this interface:
// comm_posix.cpp and comm_win32.cpp implement it with the same small helpers in the same order.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "serial/mode_string.h"

namespace velmora {

class PortNames;

/// Number of a system error; 0 is success. The numbers below mean the same on every system, all others are
/// the system's own.
using SystemError = std::int32_t;

inline constexpr SystemError kSuccess = 0;
inline constexpr SystemError kNoReason = -1;             ///< a write failed without a number
inline constexpr SystemError kNoSuchPort = 2;            ///< no device of that name
inline constexpr SystemError kPortInUse = 5;             ///< held by another program or another object
inline constexpr SystemError kInvalidParameter = 87;     ///< bad mode string, or a value the device refuses
inline constexpr SystemError kTransferIncomplete = 996;  ///< an overlapped transfer is still under way
inline constexpr SystemError kTransferPending = 997;     ///< the transfer was started and is not over yet
inline constexpr SystemError kDeviceFailed = 1117;       ///< the device is gone or reports an I/O error

/// Time-outs in milliseconds, in the meaning of the Win32 structure COMMTIMEOUTS. A read interval of
/// 0xFFFFFFFF lets a read return at once with what has arrived; where nothing has, Windows waits for the
/// total time-out, other systems do not. With an interval of 0 a read waits for its bytes until the total
/// time-out, for the first of them at least.
struct CommTimeouts {
    std::uint32_t readInterval = 0xFFFFFFFF;
    std::uint32_t readTotalMultiplier = 0;
    std::uint32_t readTotalConstant = 1000;
    std::uint32_t writeTotalMultiplier = 1000;  ///< for each byte
    std::uint32_t writeTotalConstant = 0;
};

/// What a driver may have seen on the line; the values are those of Win32's CE_RXOVER to CE_BREAK.
enum LineErrorFlag : std::uint32_t {
    kQueueOverflow = 1,
    kOverrun = 2,
    kParityError = 4,
    kFramingError = 8,
    kBreakSeen = 16,
};

/// What the driver tells about the input side.
struct CommStatus {
    std::size_t inQueue = 0;       ///< bytes that wait to be read
    std::uint32_t errorFlags = 0;  ///< of LineErrorFlag, since the last call
};

/// Functions of EscapeCommFunction; the values are Win32's.
enum class CommFunction : int {
    None = 0,  ///< not a function: refused by the system
    SetRts = 3,
    ClearRts = 4,
    SetDtr = 5,
    ClearDtr = 6,
    SetBreak = 8,
    ClearBreak = 9,
};

/// Bits of modemStatus.
inline constexpr std::uint32_t kCtsOn = 0x10;
inline constexpr std::uint32_t kDsrOn = 0x20;
inline constexpr std::uint32_t kRingOn = 0x40;
inline constexpr std::uint32_t kCarrierOn = 0x80;

/// One serial device, open or not. No member throws; all but the first need an open device and give the
/// system's error for a bad handle otherwise. Destroying it closes the device.
class CommDevice {
  public:
    /// The handle of a device that is not open.
    static constexpr std::intptr_t kNoHandle = -1;

    virtual ~CommDevice() = default;

    /// Opens the port called `name` ("COM7") for this program alone. kNoSuchPort, kPortInUse, or the system's
    /// number, the one for a missing permission among them.
    virtual SystemError open(const std::string& name) = 0;
    /// Asks for queues of at least these sizes.
    virtual SystemError setupQueues(std::size_t input, std::size_t output) = 0;
    /// Aborts transfers and empties both queues.
    virtual SystemError purge() = 0;
    virtual SystemError setTimeouts(const CommTimeouts& timeouts) = 0;
    /// Reads the device's settings into the kept control block.
    virtual SystemError getState() = 0;
    /// Writes a mode string (mode_string.h) into the control block; kInvalidParameter when it cannot be.
    virtual SystemError buildState(const std::string& settings) = 0;
    /// Sets in the control block whether the DTR line is raised while the port is open.
    virtual void setDtrControl(bool enable) = 0;
    /// Gives the control block to the device; kInvalidParameter when the device refuses it.
    virtual SystemError setState() = 0;
    /// What the device has been set to, asked of the system; nothing when it does not tell. What a device
    /// takes without having it, as a pseudo-terminal does parity, it tells as it is.
    virtual std::optional<LineSettings> settingsInUse() const { return std::nullopt; }
    /// Gives the device back. Whatever is returned, it is no longer open afterwards.
    virtual SystemError close() = 0;

    /// Reads the state of the input side and clears the error flags. A line that was hung up (a pulled
    /// adapter, the other end of a pseudo-terminal closed) is an error, not an empty queue.
    virtual SystemError clearError(CommStatus& status) = 0;
    /// Reads up to `count` bytes. Unless the time-outs make a read wait, ask only for bytes that clearError
    /// has told of: what a read does when none wait differs between systems (CommTimeouts).
    virtual SystemError read(char* buffer, std::size_t count, std::size_t& transferred) = 0;
    /// Writes all bytes, waiting no longer than the time-outs allow. kNoReason when it failed and the system
    /// told no number: it counts as done as far as it got.
    virtual SystemError write(std::string_view data, std::size_t& transferred) = 0;
    /// Waits for the transfer that read or write reported as kTransferPending. Systems whose transfers are
    /// over when the call returns never report that and keep this answer.
    virtual SystemError pendingResult(std::size_t& transferred) {
        transferred = 0;
        return kInvalidParameter;
    }

    /// The modem lines that are on: kCtsOn, kDsrOn, kRingOn, kCarrierOn. Fails where there are none.
    virtual SystemError modemStatus(std::uint32_t& lines) = 0;
    /// Sets or clears a line. Fails on a device without modem lines.
    virtual SystemError escapeFunction(CommFunction function) = 0;

    /// The system's words for one of its numbers, about the port that was opened last.
    virtual std::string errorMessage(SystemError number) const = 0;
    /// The handle that the event loop can watch, kNoHandle when not open.
    virtual std::intptr_t handle() const = 0;
    /// For how long the open device holds received bytes back, where that is known and could not be changed.
    virtual std::optional<std::chrono::milliseconds> heldBack() const { return std::nullopt; }
};

/// This system's serial device. `names` must outlive it.
std::unique_ptr<CommDevice> makeCommDevice(const PortNames& names);

}  // namespace velmora
