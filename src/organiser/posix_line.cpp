#include "organiser/posix_line.h"

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "organiser/device_line.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A line that takes no byte for this long is held up for good.
constexpr OrganiserLine::Time kStalledWrite = 5s;

struct Speed {
    int baud;
    speed_t code;
};
constexpr std::array<Speed, 13> kSpeeds{{{75, B75},
                                         {110, B110},
                                         {150, B150},
                                         {300, B300},
                                         {600, B600},
                                         {1200, B1200},
                                         {2400, B2400},
                                         {4800, B4800},
                                         {9600, B9600},
                                         {19200, B19200},
                                         {38400, B38400},
                                         {57600, B57600},
                                         {115200, B115200}}};

/// What keeps this login from a device that exists: the group that owns it.
std::string permissionAdvice(const std::string& path) {
    struct stat status {};
    std::string advice = "You have no permission for " + path;
    if (stat(path.c_str(), &status) == 0) {
        if (const group* owner = getgrgid(status.st_gid)) {
            advice += "; it belongs to the group \"" + std::string(owner->gr_name) + "\"";
        }
    }
    return advice + ".";
}

std::string openProblem(const std::string& path, int error) {
    switch (error) {
        case ENOENT:
        case ENODEV:
        case ENXIO:
            return "There is no device " + path + ".";
        case EACCES:
        case EPERM:
            return permissionAdvice(path);
        case EBUSY:
            return path + " is in use by another program.";
        default:
            return path + " cannot be opened: " + std::strerror(error) + ".";
    }
}

}  // namespace

PosixLine::PosixLine(const std::string& path, int baud) : path_(path) {
    // Without O_NONBLOCK the open itself would wait for a carrier on lines with modem control.
    descriptor_ = open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor_ < 0) {
        fail(openProblem(path, errno));
    }
    if (isatty(descriptor_) == 0) {
        fail(path + " is not a serial device.");
    }
    if (flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
        fail(path + " is in use by another program.");
    }
    ioctl(descriptor_, TIOCEXCL);
    configure(baud);
}

PosixLine::~PosixLine() {
    if (descriptor_ >= 0) {
        if (configured_) {
            tcsetattr(descriptor_, TCSADRAIN, &saved_);
        }
        ioctl(descriptor_, TIOCNXCL);
        close(descriptor_);
    }
}

void PosixLine::fail(const std::string& problem) {
    // A constructor that throws runs no destructor.
    if (!configured_ && descriptor_ >= 0) {
        ioctl(descriptor_, TIOCNXCL);
        close(descriptor_);
        descriptor_ = -1;
    }
    throw LineError(problem);
}

void PosixLine::configure(int baud) {
    if (tcgetattr(descriptor_, &saved_) != 0) {
        fail(path_ + " does not tell its settings: " + std::strerror(errno) + ".");
    }
    const auto* speed = std::find_if(kSpeeds.begin(), kSpeeds.end(),
                                     [baud](const Speed& candidate) { return candidate.baud == baud; });
    termios settings = saved_;
    cfmakeraw(&settings);
    settings.c_cflag |= CREAD | CLOCAL | CS8;
    settings.c_cflag &= ~static_cast<tcflag_t>(CSTOPB | CRTSCTS);
    settings.c_iflag &= ~static_cast<tcflag_t>(IXOFF | IXANY);
    settings.c_cc[VMIN] = 0;
    settings.c_cc[VTIME] = 0;
    if (speed == kSpeeds.end() || cfsetispeed(&settings, speed->code) != 0 ||
        cfsetospeed(&settings, speed->code) != 0 || tcsetattr(descriptor_, TCSANOW, &settings) != 0) {
        fail(path_ + " cannot run at " + std::to_string(baud) + " baud.");
    }
    configured_ = true;
    tcflush(descriptor_, TCIOFLUSH);
}

OrganiserLine::Time PosixLine::now() const {
    return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

/// The events that came before the deadline, 0 when none did; an interrupted wait goes on.
short PosixLine::waitFor(short events, Time deadline) const {
    while (true) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(std::max(deadline - now(), Time::zero()));
        pollfd entry{descriptor_, events, 0};
        const int ready = poll(&entry, 1, static_cast<int>(std::min(left, 60'000ms).count()));
        if (ready > 0) {
            return entry.revents;
        }
        if (ready < 0 && errno != EINTR) {
            return POLLERR;
        }
        if (now() >= deadline) {
            return 0;
        }
    }
}

void PosixLine::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
        if (count > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (count < 0 && errno != EAGAIN && errno != EINTR) {
            fail(path_ + " is gone: " + std::strerror(errno) + ".");
        } else if (waitFor(POLLOUT, now() + kStalledWrite) == 0) {
            fail(path_ + " takes no more bytes.");
        }
    }
}

std::string PosixLine::read(Time deadline) {
    std::array<char, 4096> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init): read() fills it
    short events = 0;
    while (true) {
        const ssize_t count = ::read(descriptor_, buffer.data(), buffer.size());
        if (count > 0) {
            return {buffer.data(), static_cast<std::size_t>(count)};
        }
        if (count < 0 && errno != EAGAIN && errno != EINTR) {
            fail(path_ + " is gone: " + std::strerror(errno) + ".");
        }
        // A device that has hung up keeps reporting "readable" and delivers nothing.
        if (count == 0 && (events & (POLLHUP | POLLERR | POLLNVAL)) != 0) {
            fail(path_ + " is gone: the other side hung up.");
        }
        events = waitFor(POLLIN, deadline);
        if (events == 0) {
            return {};
        }
    }
}

std::unique_ptr<OrganiserLine> openDeviceLine(const std::string& device, int baud) {
    return std::make_unique<PosixLine>(device, baud);
}

}  // namespace velmora
