// The serial device on POSIX systems.
#pragma once

#include <termios.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "serial/comm_device.h"
#include "serial/low_latency_posix.h"

namespace velmora {

/// A terminal device in raw mode: eight-bit clean, no flow control, DTR dropped when
/// the program ends. It is locked for as long as it is open (flock and TIOCEXCL, as other serial programs do)
/// and gets its former settings back when it is closed. Where the driver can, it hands received bytes over at
/// once meanwhile. A pseudo-terminal is as good as a real port.
///
/// Beside the numbers that comm_device.h names, errors are errno values.
class PosixCommDevice : public CommDevice {
  public:
    /// `names` says which device a port name stands for and must outlive this object.
    explicit PosixCommDevice(const PortNames& names) : names_(names) {}
    ~PosixCommDevice() override { PosixCommDevice::close(); }
    PosixCommDevice(const PosixCommDevice&) = delete;
    PosixCommDevice& operator=(const PosixCommDevice&) = delete;

    SystemError open(const std::string& name) override;
    /// The driver's queues have a fixed size, well above what is asked for.
    SystemError setupQueues(std::size_t input, std::size_t output) override;
    SystemError purge() override;
    /// A write fails when the line takes no byte for as long as one byte may take, plus the constant. Reads
    /// never wait, so their time-outs do not matter.
    SystemError setTimeouts(const CommTimeouts& timeouts) override;
    SystemError getState() override;
    SystemError buildState(const std::string& settings) override;
    void setDtrControl(bool enable) override { dtrControl_ = enable; }
    SystemError setState() override;
    std::optional<LineSettings> settingsInUse() const override;
    SystemError close() override;

    SystemError clearError(CommStatus& status) override;
    SystemError read(char* buffer, std::size_t count, std::size_t& transferred) override;
    SystemError write(std::string_view data, std::size_t& transferred) override;

    SystemError modemStatus(std::uint32_t& lines) override;
    SystemError escapeFunction(CommFunction function) override;

    std::string errorMessage(SystemError number) const override;
    std::intptr_t handle() const override { return fd_; }
    std::optional<std::chrono::milliseconds> heldBack() const override;

  private:
    SystemError acquire();
    SystemError waitWritable(std::chrono::milliseconds atMost) const;
    bool hungUp() const;
    std::uint32_t newErrorFlags();
    SystemError setModemLine(int line, bool on) const;
    void drain() const;

    /// Line errors as the driver has counted them since it was loaded.
    struct ErrorCounts {
        int queueOverflow = 0;
        int overrun = 0;
        int parity = 0;
        int framing = 0;
        int breaks = 0;
    };
    std::optional<ErrorCounts> readErrorCounts() const;

    /// Makes calls about the driver's settings, for LowLatency.
    LowLatency::Control driverSettings() const;

    const PortNames& names_;
    LowLatency lowLatency_;
    std::string path_;
    int fd_ = -1;
    termios saved_{};                                 ///< what the device had before
    termios block_{};                                 ///< the control block
    std::optional<std::uint32_t> savedUnlistedRate_;  ///< beside saved_, which has no place for such a rate
    std::optional<std::uint32_t> unlistedRate_;       ///< beside block_
    std::optional<bool> dtrControl_;                  ///< nothing: setState leaves DTR as it is
    std::chrono::milliseconds readWait_{0};
    std::chrono::milliseconds writeStall_{1000};
    bool stalled_ = false;                    ///< the last write ended since the line took nothing
    std::optional<ErrorCounts> errorCounts_;  ///< nothing: the port does not count
};

}  // namespace velmora
