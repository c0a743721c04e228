#include "organiser/win32_line.h"

#include <algorithm>
#include <array>

#include "organiser/device_line.h"
#include "serial/comm_errors_win32.h"
#include "serial/device_path_win32.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A line that takes no byte for this long is held up for good.
constexpr DWORD kStalledWrite = 5'000;
/// The longest single wait for a byte; longer ones are made of several, since not every driver ends a wait
/// when its device goes, but each tells of it when it is asked.
constexpr OrganiserLine::Time kLongestWait = 1s;
constexpr DWORD kBitsPerByte = 10;

std::wstring wideText(const std::string& utf8) {
    const int length = static_cast<int>(utf8.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string utf8Text(std::wstring_view wide) {
    const int length = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

/// The system's words for one of its numbers, without the full stop and line end behind them.
std::string wordsFor(DWORD error) {
    std::array<wchar_t, 512> buffer{};
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        error, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
    std::string text = utf8Text({buffer.data(), length});
    text.erase(text.find_last_not_of(" .\r\n") + 1);
    return text.empty() ? "error " + std::to_string(error) : text;
}

std::string openProblem(const std::string& name, DWORD error) {
    switch (openFailure(error)) {
        case kNoSuchPort:
            return "There is no device " + name + ".";
        case kPortInUse:
            return name + " is in use by another program.";
        default:
            return name + " cannot be opened: " + wordsFor(error) + ".";
    }
}

}  // namespace

Win32Line::Win32Line(const std::string& name, int baud) : name_(name) {
    try {
        open();
        configure(baud);
    } catch (const LineError&) {
        // A constructor that throws runs no destructor.
        close();
        throw;
    }
}

Win32Line::~Win32Line() {
    close();
}

void Win32Line::open() {
    // A sharing mode of 0 keeps other programs out.
    handle_ = CreateFileW(wideText(devicePath(name_)).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle_ == INVALID_HANDLE_VALUE) {
        throw LineError(openProblem(name_, GetLastError()));
    }
    saved_.DCBlength = sizeof saved_;
    if (GetCommState(handle_, &saved_) == FALSE || GetCommTimeouts(handle_, &savedTimeouts_) == FALSE) {
        throw LineError(name_ + " is not a serial device.");
    }
}

void Win32Line::configure(int baud) {
    DCB settings{};
    settings.DCBlength = sizeof settings;
    settings.BaudRate = static_cast<DWORD>(baud);
    settings.fBinary = TRUE;
    settings.fDtrControl = DTR_CONTROL_ENABLE;
    settings.fRtsControl = RTS_CONTROL_ENABLE;
    settings.ByteSize = 8;
    settings.Parity = NOPARITY;
    settings.StopBits = ONESTOPBIT;
    // Characters that nothing uses, but drivers refuse two that are the same.
    settings.XonChar = 0x11;
    settings.XoffChar = 0x13;
    if (SetCommState(handle_, &settings) == FALSE) {
        throw LineError(name_ + " cannot run at " + std::to_string(baud) + " baud.");
    }
    configured_ = true;
    writeByteTime_ = kBitsPerByte * 1'000 / static_cast<DWORD>(baud) + 1;
    allowWaits(1);
    PurgeComm(handle_, PURGE_RXABORT | PURGE_RXCLEAR | PURGE_TXABORT | PURGE_TXCLEAR);
}

/// Sets how long the driver waits for a byte, and for a write to get through.
void Win32Line::allowWaits(DWORD readMilliseconds) {
    if (readMilliseconds == readWait_) {
        return;
    }
    COMMTIMEOUTS timeouts{};
    timeouts.ReadTotalTimeoutConstant = readMilliseconds;
    timeouts.WriteTotalTimeoutMultiplier = writeByteTime_;
    timeouts.WriteTotalTimeoutConstant = kStalledWrite;
    if (SetCommTimeouts(handle_, &timeouts) == FALSE) {
        gone(GetLastError());
    }
    readWait_ = readMilliseconds;
}

void Win32Line::close() {
    if (handle_ != INVALID_HANDLE_VALUE) {
        if (configured_) {
            // Other settings would spoil the bytes that the adapter still has to send. Whether that worked
            // makes no difference: the device may be gone.
            FlushFileBuffers(handle_);
            SetCommState(handle_, &saved_);
            SetCommTimeouts(handle_, &savedTimeouts_);
        }
        CloseHandle(handle_);
        handle_ = INVALID_HANDLE_VALUE;
    }
}

void Win32Line::gone(DWORD error) const {
    throw LineError(name_ + " is gone: " + wordsFor(error) + ".");
}

OrganiserLine::Time Win32Line::now() const {
    return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

void Win32Line::write(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD count = 0;
        if (WriteFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == FALSE) {
            gone(GetLastError());
        }
        if (count == 0) {
            throw LineError(name_ + " takes no more bytes.");
        }
        bytes.remove_prefix(count);
    }
}

/// What the driver's queue holds, empty when it holds nothing.
std::string Win32Line::takeWaiting() {
    COMSTAT status{};
    DWORD lineErrors = 0;
    if (ClearCommError(handle_, &lineErrors, &status) == FALSE) {
        gone(GetLastError());
    }
    std::array<char, 4096> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init): ReadFile fills it
    DWORD count = std::min(status.cbInQue, static_cast<DWORD>(buffer.size()));
    if (count > 0 && ReadFile(handle_, buffer.data(), count, &count, nullptr) == FALSE) {
        gone(GetLastError());
    }
    return {buffer.data(), count};
}

std::string Win32Line::read(Time deadline) {
    while (true) {
        std::string bytes = takeWaiting();
        const Time left = std::min(deadline - now(), kLongestWait);
        if (!bytes.empty() || left <= Time::zero()) {
            return bytes;
        }
        // The driver waits for one byte: that is over as soon as one is there, whatever the driver makes of
        // the special values of COMMTIMEOUTS. The others that came with it are in the queue by then.
        allowWaits(static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(left).count()));
        char first = 0;
        DWORD count = 0;
        if (ReadFile(handle_, &first, 1, &count, nullptr) == FALSE) {
            gone(GetLastError());
        }
        if (count > 0) {
            return first + takeWaiting();
        }
    }
}

std::unique_ptr<OrganiserLine> openDeviceLine(const std::string& device, int baud) {
    return std::make_unique<Win32Line>(device, baud);
}

}  // namespace velmora
