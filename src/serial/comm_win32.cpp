#include "serial/comm_win32.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "serial/comm_errors_win32.h"
#include "serial/device_path_win32.h"
#include "serial/port_names.h"
#include "serial/system_text.h"

namespace velmora {

namespace {

SystemError result(BOOL succeeded) {
    return succeeded != FALSE ? kSuccess : failure(GetLastError());
}

SystemError transferResult(BOOL succeeded) {
    return succeeded != FALSE ? kSuccess : transferFailure(GetLastError());
}

DWORD sizeOf(std::size_t bytes) {
    constexpr std::size_t most = std::numeric_limits<DWORD>::max();
    return static_cast<DWORD>(std::min(bytes, most));
}

Parity parityOf(BYTE value) {
    switch (value) {
        case ODDPARITY:
            return Parity::Odd;
        case EVENPARITY:
            return Parity::Even;
        case MARKPARITY:
            return Parity::Mark;
        case SPACEPARITY:
            return Parity::Space;
        default:
            return Parity::None;
    }
}

StopBits stopBitsOf(BYTE value) {
    switch (value) {
        case ONE5STOPBITS:
            return StopBits::OneAndHalf;
        case TWOSTOPBITS:
            return StopBits::Two;
        default:
            return StopBits::One;
    }
}

}  // namespace

std::unique_ptr<CommDevice> makeCommDevice(const PortNames& names) {
    return std::make_unique<Win32CommDevice>(names);
}

SystemError Win32CommDevice::open(const std::string& name) {
    close();
    const std::optional<std::string> device = names_.device(name);
    if (!device) {
        return kNoSuchPort;
    }
    handle_ = CreateFileA(devicePath(*device).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    return handle_ == INVALID_HANDLE_VALUE ? openFailure(GetLastError()) : kSuccess;
}

SystemError Win32CommDevice::setupQueues(std::size_t input, std::size_t output) {
    return result(SetupComm(handle_, sizeOf(input), sizeOf(output)));
}

SystemError Win32CommDevice::purge() {
    return result(PurgeComm(handle_, PURGE_TXABORT | PURGE_RXABORT | PURGE_TXCLEAR | PURGE_RXCLEAR));
}

SystemError Win32CommDevice::setTimeouts(const CommTimeouts& timeouts) {
    COMMTIMEOUTS values{};
    values.ReadIntervalTimeout = timeouts.readInterval;
    values.ReadTotalTimeoutMultiplier = timeouts.readTotalMultiplier;
    values.ReadTotalTimeoutConstant = timeouts.readTotalConstant;
    values.WriteTotalTimeoutMultiplier = timeouts.writeTotalMultiplier;
    values.WriteTotalTimeoutConstant = timeouts.writeTotalConstant;
    return result(SetCommTimeouts(handle_, &values));
}

SystemError Win32CommDevice::getState() {
    block_ = DCB{};
    block_.DCBlength = sizeof block_;
    const SystemError error = result(GetCommState(handle_, &block_));
    if (error == kSuccess && !saved_) {
        saved_ = block_;
    }
    return error;
}

SystemError Win32CommDevice::buildState(const std::string& settings) {
    return result(BuildCommDCBA(settings.c_str(), &block_));
}

/// The field has the bits 0x10 and 0x20 of the block's flag word; the second one, handshaking, stays off.
void Win32CommDevice::setDtrControl(bool enable) {
    block_.fDtrControl = enable ? DTR_CONTROL_ENABLE : DTR_CONTROL_DISABLE;
}

SystemError Win32CommDevice::setState() {
    return result(SetCommState(handle_, &block_));
}

std::optional<LineSettings> Win32CommDevice::settingsInUse() const {
    DCB block{};
    block.DCBlength = sizeof block;
    if (GetCommState(handle_, &block) == FALSE) {
        return std::nullopt;
    }
    LineSettings line;
    line.baud = block.BaudRate;
    line.parity = parityOf(block.Parity);
    line.dataBits = block.ByteSize;
    line.stopBits = stopBitsOf(block.StopBits);
    return line;
}

SystemError Win32CommDevice::close() {
    // The value for "no handle" is also the current process's own, which CloseHandle would accept.
    if (handle_ == INVALID_HANDLE_VALUE) {
        return ERROR_INVALID_HANDLE;
    }
    if (saved_) {
        // Whether that works makes no difference: the device may be gone.
        SetCommState(handle_, &*saved_);
        saved_.reset();
    }
    return result(CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)));
}

SystemError Win32CommDevice::clearError(CommStatus& status) {
    status = CommStatus{};
    DWORD flags = 0;
    COMSTAT state{};
    const SystemError error = transferResult(ClearCommError(handle_, &flags, &state));
    if (error == kSuccess) {
        status.inQueue = state.cbInQue;
        status.errorFlags = flags;
    }
    return error;
}

SystemError Win32CommDevice::read(char* buffer, std::size_t count, std::size_t& transferred) {
    DWORD got = 0;
    overlapped_ = OVERLAPPED{};
    const SystemError error = transferResult(ReadFile(handle_, buffer, sizeOf(count), &got, &overlapped_));
    transferred = got;
    return error;
}

SystemError Win32CommDevice::write(std::string_view data, std::size_t& transferred) {
    DWORD put = 0;
    overlapped_ = OVERLAPPED{};
    // The reason of an earlier call must not pass for this one's, which may give none.
    SetLastError(ERROR_SUCCESS);
    const BOOL succeeded = WriteFile(handle_, data.data(), sizeOf(data.size()), &put, &overlapped_);
    const SystemError error = succeeded != FALSE ? kSuccess : writeFailure(GetLastError());
    transferred = put;
    return error;
}

SystemError Win32CommDevice::pendingResult(std::size_t& transferred) {
    DWORD done = 0;
    const SystemError error = transferResult(GetOverlappedResult(handle_, &overlapped_, &done, TRUE));
    transferred = done;
    return error;
}

SystemError Win32CommDevice::modemStatus(std::uint32_t& lines) {
    DWORD status = 0;
    const SystemError error = transferResult(GetCommModemStatus(handle_, &status));
    lines = error == kSuccess ? status : 0;
    return error;
}

SystemError Win32CommDevice::escapeFunction(CommFunction function) {
    return transferResult(EscapeCommFunction(handle_, static_cast<DWORD>(function)));
}

std::string Win32CommDevice::errorMessage(SystemError number) const {
    return systemText(number);
}

}  // namespace velmora
