#include "serial/waiting_reader.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace velmora {

WaitingReader::WaitingReader(CommDevice& device, const CommTimeouts& timeouts, std::function<Time()> now,
                             Time longestWait, std::function<void()> breathe)
    : device_(device),
      timeouts_(timeouts),
      now_(std::move(now)),
      longestWait_(longestWait),
      breathe_(std::move(breathe)) {}

/// Adds what the driver's queue holds.
SystemError WaitingReader::takeWaiting(WaitedBytes& result) {
    CommStatus status;
    SystemError error = device_.clearError(status);
    result.errorFlags |= status.errorFlags;
    if (error == kSuccess && status.inQueue > 0) {
        std::string bytes(status.inQueue, '\0');
        std::size_t taken = 0;
        error = device_.read(bytes.data(), bytes.size(), taken);
        result.bytes.append(bytes, 0, taken);
    }
    return error;
}

/// Adds one byte as soon as it comes.
SystemError WaitingReader::waitForOne(Time atMost, WaitedBytes& result) {
    const auto wait =
        static_cast<std::uint32_t>(std::chrono::ceil<std::chrono::milliseconds>(atMost).count());
    if (wait != timeouts_.readTotalConstant) {
        timeouts_.readTotalConstant = wait;
        if (const SystemError error = device_.setTimeouts(timeouts_)) {
            return error;
        }
    }
    char first = 0;
    std::size_t taken = 0;
    const SystemError error = device_.read(&first, 1, taken);
    result.bytes.append(taken, first);
    return error;
}

SystemError WaitingReader::readUntil(Time deadline, WaitedBytes& result) {
    while (true) {
        if (const SystemError error = takeWaiting(result)) {
            return error;
        }
        const Time left = std::min(deadline - now_(), longestWait_);
        if (!result.bytes.empty() || left <= Time::zero()) {
            return kSuccess;
        }
        if (const SystemError error = waitForOne(left, result)) {
            return error;
        }
        if (!result.bytes.empty()) {
            // Those that came with it are in the queue by now.
            return takeWaiting(result);
        }
        if (breathe_) {
            breathe_();
        }
    }
}

WaitedBytes WaitingReader::read(Time deadline) {
    WaitedBytes result;
    result.error = readUntil(deadline, result);
    return result;
}

}  // namespace velmora
