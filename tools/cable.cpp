#include "cable.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "serial/terminal_settings_posix.h"
#include "serial/unlisted_rate.h"

namespace velmora::tools {
namespace {

constexpr std::size_t kMostWaiting = 64 * 1024;
constexpr std::chrono::milliseconds kRetry{1};  // before a full buffer is tried again
constexpr int kBitsPerByte = 10;                // start bit, eight data bits, stop bit

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace

CableEnd::CableEnd() {
    master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (master_ < 0 || ::grantpt(master_) != 0 || ::unlockpt(master_) != 0) {
        fail("posix_openpt");
    }
    std::array<char, 128> name{};
    if (::ptsname_r(master_, name.data(), name.size()) != 0) {
        fail("ptsname_r");
    }
    device_ = name.data();
    slave_ = ::open(device_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave_ < 0) {
        fail("open");
    }
    termios mode{};
    if (::tcgetattr(slave_, &mode) != 0) {
        fail("tcgetattr");
    }
    ::cfmakeraw(&mode);
    if (::tcsetattr(slave_, TCSANOW, &mode) != 0) {
        fail("tcsetattr");
    }
}

CableEnd::~CableEnd() {
    ::close(slave_);
    ::close(master_);
}

void CableEnd::hold() {
    if (::ioctl(slave_, TIOCEXCL) != 0) {
        fail("TIOCEXCL");
    }
}

LineSettings CableEnd::settings() const {
    termios mode{};
    if (::tcgetattr(master_, &mode) != 0) {
        fail("tcgetattr");
    }
    LineSettings line = lineSettingsOf(mode);
    if (line.baud == 0) {
        line.baud = unlistedRate(master_).value_or(LineSettings().baud);
    }
    return line;
}

CableDirection::CableDirection(CableEnd& from, CableEnd& to, unsigned baud, Change change)
    : from_(from),
      to_(to),
      change_(std::move(change)),
      byteTime_(baud == 0 ? 0 : std::chrono::nanoseconds(std::chrono::seconds(kBitsPerByte)).count() / baud) {
}

bool CableDirection::receive(Time now) {
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(from_.master(), buffer.data(), buffer.size());
    if (count < 0) {
        return errno == EAGAIN || errno == EINTR;
    }
    if (count > 0) {
        const std::string_view bytes(buffer.data(), static_cast<std::size_t>(count));
        put(change_ ? change_(bytes) : std::string(bytes), now);
    }
    return count > 0;
}

void CableDirection::put(std::string bytes, Time now) {
    if (bytes.empty()) {
        return;
    }
    const Time start = std::max(now, lineFree_);
    lineFree_ = start + byteTime_ * static_cast<std::int64_t>(bytes.size());
    waiting_ += bytes.size();
    bursts_.push_back({std::move(bytes), 0, start});
}

CableDirection::Time CableDirection::nextArrival() const {
    if (bursts_.empty()) {
        return Time::max();
    }
    const Burst& burst = bursts_.front();
    if (blocked_) {
        return retry_;
    }
    return burst.start + byteTime_ * (burst.done + 1);
}

std::optional<CableDirection::Time> CableDirection::takeArrival() {
    return bursts_.empty() ? std::exchange(arrival_, std::nullopt) : std::nullopt;
}

void CableDirection::deliver(Time now) {
    while (!bursts_.empty()) {
        Burst& burst = bursts_.front();
        std::size_t arrived = burst.bytes.size();
        if (byteTime_.count() > 0) {
            arrived = now <= burst.start
                          ? 0
                          : std::min(arrived, static_cast<std::size_t>((now - burst.start) / byteTime_));
        }
        if (arrived > burst.done) {
            const ssize_t count =
                ::write(to_.master(), burst.bytes.data() + burst.done, arrived - burst.done);
            blocked_ = count <= 0 && waiting_ <= kMostWaiting;
            if (blocked_) {
                retry_ = now + kRetry;
                return;
            }
            // Nobody listens and the buffer is full: as on a real line, the bytes are gone.
            const std::size_t gone = count > 0 ? static_cast<std::size_t>(count) : arrived - burst.done;
            burst.done += gone;
            waiting_ -= gone;
            carried_ += count > 0 ? gone : 0;
            arrival_ = now;
        }
        if (burst.done < burst.bytes.size()) {
            return;
        }
        bursts_.pop_front();
    }
}

}  // namespace velmora::tools
