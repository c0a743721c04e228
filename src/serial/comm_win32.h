// The serial device on Windows.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "serial/comm_device.h"

namespace velmora {

/// A communications device, one Win32 function for each member. The device is opened for this program alone
/// and not for overlapped operation, so a transfer is over when its call returns; the overlapped record that
/// goes with every transfer serves drivers that answer "pending" all the same.
///
/// Errors are GetLastError's numbers with the exceptions of comm_errors_win32.h: those of openFailure for
/// open; those of transferFailure for clearError, read, pendingResult, modemStatus and escapeFunction, and of
/// writeFailure for write; those of failure for all others.
class Win32CommDevice : public CommDevice {
  public:
    /// `names` says which device a port name stands for and must outlive this object.
    explicit Win32CommDevice(const PortNames& names) : names_(names) {}
    ~Win32CommDevice() override { Win32CommDevice::close(); }
    Win32CommDevice(const Win32CommDevice&) = delete;
    Win32CommDevice& operator=(const Win32CommDevice&) = delete;

    /// CreateFileA.
    SystemError open(const std::string& name) override;
    /// SetupComm.
    SystemError setupQueues(std::size_t input, std::size_t output) override;
    /// PurgeComm.
    SystemError purge() override;
    /// SetCommTimeouts.
    SystemError setTimeouts(const CommTimeouts& timeouts) override;
    /// GetCommState; what the port had before the first one is given back when it is closed.
    SystemError getState() override;
    /// BuildCommDCBA, which leaves DTR and RTS enabled and flow control off.
    SystemError buildState(const std::string& settings) override;
    void setDtrControl(bool enable) override;
    /// SetCommState.
    SystemError setState() override;
    /// GetCommState.
    std::optional<LineSettings> settingsInUse() const override;
    /// SetCommState with what the port had before, CloseHandle.
    SystemError close() override;

    /// ClearCommError.
    SystemError clearError(CommStatus& status) override;
    /// ReadFile. With the usual time-outs it takes what is there without waiting for `count` bytes, and waits
    /// up to the read's constant time-out when nothing is.
    SystemError read(char* buffer, std::size_t count, std::size_t& transferred) override;
    /// WriteFile. A write that the time-outs ended early is no failure; `transferred` tells.
    SystemError write(std::string_view data, std::size_t& transferred) override;
    /// GetOverlappedResult, waiting.
    SystemError pendingResult(std::size_t& transferred) override;

    /// GetCommModemStatus.
    SystemError modemStatus(std::uint32_t& lines) override;
    /// EscapeCommFunction.
    SystemError escapeFunction(CommFunction function) override;

    std::string errorMessage(SystemError number) const override;
    std::intptr_t handle() const override { return reinterpret_cast<std::intptr_t>(handle_); }

    /// The kept control block.
    const DCB& controlBlock() const { return block_; }

  private:
    const PortNames& names_;
    HANDLE handle_ = INVALID_HANDLE_VALUE;
    DCB block_{};
    std::optional<DCB> saved_;  ///< what the port had before
    OVERLAPPED overlapped_{};
};

}  // namespace velmora
