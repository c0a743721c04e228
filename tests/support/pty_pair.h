// A pseudo-terminal pair: a serial line without hardware. The code under test opens the slave by its path,
// the test plays the other end on the master.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace velmora::test {

/// Owns the master end, closed at the end of its life. The line is raw: bytes pass unchanged and unechoed.
class PtyPair {
  public:
    /// Longest wait of the members that wait; they return as soon as there is something.
    static constexpr int kPatienceMs = 60'000;

    PtyPair() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
        std::array<char, 128> name{};
        if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0 ||
            ptsname_r(master_, name.data(), name.size()) != 0) {
            throw std::runtime_error("no pseudo-terminal to be had");
        }
        slavePath_ = name.data();
        termios raw = settings();
        cfmakeraw(&raw);
        setSettings(raw);
        fcntl(master_, F_SETFL, O_NONBLOCK);
    }
    ~PtyPair() { closeMaster(); }
    PtyPair(const PtyPair&) = delete;
    PtyPair& operator=(const PtyPair&) = delete;

    const std::string& slavePath() const { return slavePath_; }
    int masterFd() const { return master_; }

    /// Puts bytes on the line for the slave; returns how many it took, without waiting.
    std::size_t write(std::string_view bytes) {
        const ssize_t put = ::write(master_, bytes.data(), bytes.size());
        return put < 0 ? 0 : static_cast<std::size_t>(put);
    }
    /// Reads what the slave sent until `count` bytes are there or patience ends.
    std::string read(std::size_t count) {
        std::string bytes;
        std::array<char, 4096> buffer;
        while (bytes.size() < count && waitReadable(master_)) {
            const ssize_t got = ::read(master_, buffer.data(), std::min(buffer.size(), count - bytes.size()));
            if (got <= 0) {
                break;
            }
            bytes.append(buffer.data(), static_cast<std::size_t>(got));
        }
        return bytes;
    }
    /// Pulls the cable: the slave's side is hung up.
    void closeMaster() {
        if (master_ >= 0) {
            ::close(std::exchange(master_, -1));
        }
    }

    /// The slave's terminal settings, which both ends share.
    termios settings() const {
        termios block{};
        tcgetattr(master_, &block);
        return block;
    }
    void setSettings(const termios& block) { tcsetattr(master_, TCSANOW, &block); }

    /// Waits until a descriptor has bytes to read (or was hung up): what is written at one end takes a moment
    /// to appear at the other. False when patience ends.
    static bool waitReadable(int descriptor) {
        pollfd watched{descriptor, POLLIN, 0};
        return poll(&watched, 1, kPatienceMs) > 0;
    }

  private:
    int master_;
    std::string slavePath_;
};

}  // namespace velmora::test
