// A COM port that is not overlapped cannot be watched: its handle says nothing about waiting bytes, and
// WaitCommEvent would hold up the event loop. So its queue is looked at often while a conversation is warm.
#include <windows.h>

#include <utility>

#include "eventloop/high_resolution_timer_win32.h"
#include "eventloop/port_watcher.h"
#include "eventloop/queue_watch.h"

namespace velmora {
namespace {

/// A port that failed counts as well: the poll finds out what is wrong.
bool bytesWait(std::intptr_t handle) {
    DWORD flags = 0;
    COMSTAT state{};
    return ClearCommError(reinterpret_cast<HANDLE>(handle), &flags, &state) == FALSE || state.cbInQue > 0;
}

}  // namespace

class PortWatcher::Watch {
  public:
    Watch(std::function<void()> onReadable, const std::function<std::chrono::nanoseconds()>& soonestFrame,
          const Clock& clock)
        : queue_(timer_, clock, bytesWait, soonestFrame, std::move(onReadable)) {}
    QueueWatch& queue() { return queue_; }

  private:
    HighResolutionTimer timer_;
    QueueWatch queue_;
};

PortWatcher::PortWatcher(std::function<void()> onReadable,
                         const std::function<std::chrono::nanoseconds()>& soonestFrame, const Clock& clock)
    : watch_(std::make_unique<Watch>(std::move(onReadable), soonestFrame, clock)) {}
PortWatcher::~PortWatcher() = default;

void PortWatcher::portOpened(std::intptr_t handle) {
    watch_->queue().portOpened(handle);
}

void PortWatcher::portClosing(std::intptr_t /*handle*/) {
    watch_->queue().portClosing();
}

void PortWatcher::portRead(std::string_view /*bytes*/) {
    watch_->queue().portRead();
}

void PortWatcher::setActive(bool active) {
    watch_->queue().setActive(active);
}

// The first bytes after a silence are found by the poll.
bool PortWatcher::watches() const {
    return false;
}

}  // namespace velmora
