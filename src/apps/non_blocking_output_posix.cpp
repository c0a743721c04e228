#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <memory>
#include <string>
#include <string_view>

#include "apps/non_blocking_output.h"

namespace velmora {

const char* const kStreamLineEnd = "\n";

namespace {

bool mayHaveRoomLater(int error) {
    return error == EAGAIN || error == EWOULDBLOCK || error == ENOSPC || error == EDQUOT;
}

/// The flag O_NONBLOCK belongs to everybody who has the stream, a shell's terminal among them, so the stream
/// is opened once more where that is possible.
class NonBlockingDescriptor {
  public:
    explicit NonBlockingDescriptor(int descriptor) : descriptor_(descriptor) {
        struct stat facts {};
        if (::fstat(descriptor, &facts) != 0) {
            return;
        }
        socket_ = S_ISSOCK(facts.st_mode);
        mayWait_ = S_ISFIFO(facts.st_mode) || S_ISCHR(facts.st_mode);
        if (mayWait_) {
            const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
            own_ = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        }
    }
    ~NonBlockingDescriptor() {
        if (own_ >= 0) {
            ::close(own_);
        }
    }
    NonBlockingDescriptor(const NonBlockingDescriptor&) = delete;
    NonBlockingDescriptor& operator=(const NonBlockingDescriptor&) = delete;

    std::size_t write(std::string_view bytes) const {
        ssize_t count = 0;
        do {
            count = tryWrite(bytes);
        } while (count < 0 && errno == EINTR);
        if (count >= 0) {
            return static_cast<std::size_t>(count);
        }
        return mayHaveRoomLater(errno) ? 0 : bytes.size();
    }

  private:
    ssize_t tryWrite(std::string_view bytes) const {
        if (socket_) {
            return ::send(descriptor_, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
        }
        if (own_ >= 0) {
            return ::write(own_, bytes.data(), bytes.size());
        }
        if (mayWait_) {
            // A pipe that has room at all has room for this much.
            bytes = bytes.substr(0, PIPE_BUF);
            pollfd watched{descriptor_, POLLOUT, 0};
            if (::poll(&watched, 1, 0) == 0) {
                return 0;
            }
        }
        return ::write(descriptor_, bytes.data(), bytes.size());
    }

    int descriptor_;
    int own_ = -1;
    bool socket_ = false;
    bool mayWait_ = false;
};

}  // namespace

LineOutput::Write nonBlockingOutput(std::FILE* stream) {
    const auto descriptor = std::make_shared<NonBlockingDescriptor>(::fileno(stream));
    return [descriptor](std::string_view bytes) { return descriptor->write(bytes); };
}

}  // namespace velmora
