#include "serial/comm_posix.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/serial.h>
#endif

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "serial/adapter_latency.h"
#include "serial/device_facts.h"
#include "serial/mode_string.h"
#include "serial/open_diagnosis.h"
#include "serial/port_names.h"
#include "serial/system_text.h"
#include "serial/terminal_settings_posix.h"
#include "serial/unlisted_rate.h"

namespace velmora {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// A driver may call itself not writable although there is room for some bytes, so a write is tried again
/// this often however the poll answers.
constexpr milliseconds kWriteRetry{50};
/// How long closing waits for bytes that the driver still has to send.
constexpr milliseconds kDrainLimit{1000};
constexpr milliseconds kDrainStep{5};

/// The one translator of system errors. EIO has the number that would mean "in use", so it gets its own.
SystemError translated(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
        case ENODEV:
        case ENXIO:
            return kNoSuchPort;
        case EBUSY:
        case EWOULDBLOCK:
            return kPortInUse;
        case EIO:
            return kDeviceFailed;
        case EPERM:
            return EACCES;
        default:
            return error;
    }
}

SystemError result(int returned) {
    return returned < 0 ? translated(errno) : kSuccess;
}

}  // namespace

std::unique_ptr<CommDevice> makeCommDevice(const PortNames& names) {
    return std::make_unique<PosixCommDevice>(names);
}

SystemError PosixCommDevice::open(const std::string& name) {
    close();
    const std::optional<std::string> path = names_.device(name);
    path_ = path.value_or(name);
    if (!path) {
        return kNoSuchPort;
    }
    do {
        fd_ = ::open(path_.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    } while (fd_ < 0 && errno == EINTR);
    if (fd_ < 0) {
        return translated(errno);
    }
    const SystemError error = acquire();
    if (error != kSuccess) {
        ::close(fd_);
        fd_ = -1;
    }
    return error;
}

/// Takes the opened device for this program. What another program did to it is not undone on failure.
SystemError PosixCommDevice::acquire() {
    if (tcgetattr(fd_, &saved_) < 0) {
        // The standard ports have device files whether or not there is hardware behind them.
        return errno == EIO ? kNoSuchPort : translated(errno);
    }
    if (flock(fd_, LOCK_EX | LOCK_NB) < 0) {
        return translated(errno);
    }
    // The system lets a privileged program open a device that another one holds exclusively.
#ifdef TIOCGEXCL
    int exclusive = 0;
    // On a pseudo-terminal the mark outlives the program that made it, if that was killed.
    if (ioctl(fd_, TIOCGEXCL, &exclusive) == 0 && exclusive != 0 && heldByOthers(path_, fd_)) {
        return kPortInUse;
    }
#endif
    ioctl(fd_, TIOCEXCL);
    errorCounts_ = readErrorCounts();
    savedUnlistedRate_ = unlistedRate(fd_);
    lowLatency_.take(driverSettings());
    return kSuccess;
}

SystemError PosixCommDevice::setupQueues(std::size_t, std::size_t) {
    return result(fcntl(fd_, F_GETFD));
}

SystemError PosixCommDevice::purge() {
    return result(tcflush(fd_, TCIOFLUSH));
}

SystemError PosixCommDevice::setTimeouts(const CommTimeouts& timeouts) {
    const bool readsAtOnce = timeouts.readInterval == 0xFFFFFFFF;
    readWait_ = milliseconds(readsAtOnce ? 0 : timeouts.readTotalConstant);
    writeStall_ = milliseconds(timeouts.writeTotalMultiplier) + milliseconds(timeouts.writeTotalConstant);
    return result(fcntl(fd_, F_GETFD));
}

SystemError PosixCommDevice::getState() {
    dtrControl_.reset();
    return result(tcgetattr(fd_, &block_));
}

SystemError PosixCommDevice::buildState(const std::string& settings) {
    const std::optional<LineSettings> line = parseModeString(settings);
    if (!line) {
        return kInvalidParameter;
    }
    unlistedRate_.reset();
    if (!applyLineSettings(block_, *line)) {
        unlistedRate_ = line->baud;
    }
    return kSuccess;
}

SystemError PosixCommDevice::setState() {
    if (tcsetattr(fd_, TCSANOW, &block_) < 0) {
        return errno == EINVAL ? kInvalidParameter : translated(errno);
    }
    // The call succeeds when any of the settings was taken. A pseudo-terminal has no parity and no stop bits
    // of its own and works all the same; a wrong rate never does.
    termios taken{};
    if (tcgetattr(fd_, &taken) < 0) {
        return translated(errno);
    }
    if (unlistedRate_ ? !setUnlistedRate(fd_, *unlistedRate_) : cfgetospeed(&taken) != cfgetospeed(&block_)) {
        return kInvalidParameter;
    }
    if (dtrControl_) {
        setModemLine(TIOCM_DTR, *dtrControl_);
    }
    return kSuccess;
}

std::optional<LineSettings> PosixCommDevice::settingsInUse() const {
    termios block{};
    if (tcgetattr(fd_, &block) < 0) {
        return std::nullopt;
    }
    LineSettings line = lineSettingsOf(block);
    line.baud = unlistedRate(fd_).value_or(line.baud);
    return line;
}

SystemError PosixCommDevice::close() {
    if (fd_ < 0) {
        return EBADF;
    }
    drain();
    tcsetattr(fd_, TCSANOW, &saved_);
    if (savedUnlistedRate_) {
        setUnlistedRate(fd_, *savedUnlistedRate_);
    }
    lowLatency_.giveBack(driverSettings());
    ioctl(fd_, TIOCNXCL);
    flock(fd_, LOCK_UN);
    // The descriptor is gone whatever close answers.
    ::close(std::exchange(fd_, -1));
    return kSuccess;
}

SystemError PosixCommDevice::clearError(CommStatus& status) {
    status = CommStatus{};
    int waiting = 0;
    if (ioctl(fd_, FIONREAD, &waiting) < 0) {
        return translated(errno);
    }
    status.inQueue = static_cast<std::size_t>(std::max(waiting, 0));
    status.errorFlags = newErrorFlags();
    return waiting <= 0 && hungUp() ? kDeviceFailed : kSuccess;
}

SystemError PosixCommDevice::read(char* buffer, std::size_t count, std::size_t& transferred) {
    transferred = 0;
    if (readWait_ > milliseconds::zero()) {
        pollfd watched{fd_, POLLIN, 0};
        if (poll(&watched, 1, static_cast<int>(readWait_.count())) < 0 && errno != EINTR) {
            return translated(errno);
        }
    }
    ssize_t got = 0;
    do {
        got = ::read(fd_, buffer, count);
    } while (got < 0 && errno == EINTR);
    if (got < 0) {
        return errno == EAGAIN ? kSuccess : translated(errno);
    }
    transferred = static_cast<std::size_t>(got);
    return kSuccess;
}

SystemError PosixCommDevice::write(std::string_view data, std::size_t& transferred) {
    transferred = 0;
    stalled_ = false;
    steady_clock::time_point progress = steady_clock::now();
    while (transferred < data.size()) {
        const ssize_t put = ::write(fd_, data.data() + transferred, data.size() - transferred);
        if (put > 0) {
            transferred += static_cast<std::size_t>(put);
            progress = steady_clock::now();
            continue;
        }
        if (put < 0 && errno == EINTR) {
            continue;
        }
        if (put < 0 && errno != EAGAIN) {
            return translated(errno);
        }
        const auto left =
            writeStall_ - std::chrono::duration_cast<milliseconds>(steady_clock::now() - progress);
        if (left <= milliseconds::zero()) {
            stalled_ = true;
            return ETIMEDOUT;
        }
        if (const SystemError error = waitWritable(std::min(left, kWriteRetry))) {
            return error;
        }
    }
    return kSuccess;
}

SystemError PosixCommDevice::modemStatus(std::uint32_t& lines) {
    constexpr std::array<std::pair<int, std::uint32_t>, 4> bits = {{
        {TIOCM_CTS, kCtsOn},
        {TIOCM_DSR, kDsrOn},
        {TIOCM_RNG, kRingOn},
        {TIOCM_CAR, kCarrierOn},
    }};
    lines = 0;
    int status = 0;
    if (ioctl(fd_, TIOCMGET, &status) < 0) {
        return translated(errno);
    }
    for (const auto& [bit, line] : bits) {
        if ((status & bit) != 0) {
            lines |= line;
        }
    }
    return kSuccess;
}

SystemError PosixCommDevice::escapeFunction(CommFunction function) {
    switch (function) {
        case CommFunction::None:
            return kInvalidParameter;
        case CommFunction::SetRts:
            return setModemLine(TIOCM_RTS, true);
        case CommFunction::ClearRts:
            return setModemLine(TIOCM_RTS, false);
        case CommFunction::SetDtr:
            return setModemLine(TIOCM_DTR, true);
        case CommFunction::ClearDtr:
            return setModemLine(TIOCM_DTR, false);
        case CommFunction::SetBreak:
            return result(ioctl(fd_, TIOCSBRK));
        case CommFunction::ClearBreak:
            return result(ioctl(fd_, TIOCCBRK));
    }
    return kInvalidParameter;  // unreachable: every function is above
}

std::string PosixCommDevice::errorMessage(SystemError number) const {
    switch (number) {
        case kNoSuchPort:
            return "There is no such port";
        case kPortInUse:
            return "The port is in use";
        case EACCES:
            return permissionSentence(path_, gatherDeviceFacts(path_));
        case kInvalidParameter:
            return "The port does not take these settings";
        case ETIMEDOUT:
            return "The line did not take the bytes in time";
        case ENOTTY:
            return "The device has no such function";
        case kDeviceFailed:
            return "The line was cut or the device failed";
        default:
            return systemText(number);
    }
}

LowLatency::Control PosixCommDevice::driverSettings() const {
    return
        [fd = fd_](unsigned long request, serial_struct& settings) { return ioctl(fd, request, &settings); };
}

std::optional<milliseconds> PosixCommDevice::heldBack() const {
    return fd_ < 0 || lowLatency_.taken() ? std::nullopt : latencyTimer(path_);
}

SystemError PosixCommDevice::waitWritable(milliseconds atMost) const {
    pollfd watched{fd_, POLLOUT, 0};
    if (poll(&watched, 1, static_cast<int>(atMost.count())) < 0) {
        return errno == EINTR ? kSuccess : translated(errno);
    }
    return (watched.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0 ? kDeviceFailed : kSuccess;
}

bool PosixCommDevice::hungUp() const {
    pollfd watched{fd_, 0, 0};
    return poll(&watched, 1, 0) > 0 && (watched.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

std::uint32_t PosixCommDevice::newErrorFlags() {
    // A port that did not count errors when it was opened is not asked at every poll.
    const std::optional<ErrorCounts> now = errorCounts_ ? readErrorCounts() : std::nullopt;
    if (!now) {
        return 0;
    }
    const ErrorCounts before = *std::exchange(errorCounts_, now);
    std::uint32_t flags = 0;
    flags |= now->queueOverflow != before.queueOverflow ? kQueueOverflow : 0U;
    flags |= now->overrun != before.overrun ? kOverrun : 0U;
    flags |= now->parity != before.parity ? kParityError : 0U;
    flags |= now->framing != before.framing ? kFramingError : 0U;
    flags |= now->breaks != before.breaks ? kBreakSeen : 0U;
    return flags;
}

std::optional<PosixCommDevice::ErrorCounts> PosixCommDevice::readErrorCounts() const {
#ifdef TIOCGICOUNT
    serial_icounter_struct counts{};
    if (ioctl(fd_, TIOCGICOUNT, &counts) == 0) {
        return ErrorCounts{counts.buf_overrun, counts.overrun, counts.parity, counts.frame, counts.brk};
    }
#endif
    return std::nullopt;
}

SystemError PosixCommDevice::setModemLine(int line, bool on) const {
    return result(ioctl(fd_, on ? TIOCMBIS : TIOCMBIC, &line));
}

/// Lets the last bytes go out before the rate is set back under them; the system's own wait has no end. A
/// line that has just been waited for in vain is not waited for again.
void PosixCommDevice::drain() const {
    int waiting = 0;
    const milliseconds limit = stalled_ ? milliseconds::zero() : kDrainLimit;
    for (milliseconds waited{0}; waited < limit; waited += kDrainStep) {
        if (ioctl(fd_, TIOCOUTQ, &waiting) < 0 || waiting <= 0) {
            return;
        }
        poll(nullptr, 0, static_cast<int>(kDrainStep.count()));
    }
    tcflush(fd_, TCOFLUSH);
}

}  // namespace velmora
