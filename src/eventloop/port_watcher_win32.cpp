// A COM port that is not overlapped cannot be watched: its handle says nothing about waiting bytes, and
// WaitCommEvent would hold up the event loop. The poll asks the driver at each of its ticks anyway.
#include "eventloop/port_watcher.h"

namespace velmora {

class PortWatcher::Watch {};

PortWatcher::PortWatcher(std::function<void()> /*onReadable*/) {}
PortWatcher::~PortWatcher() = default;

void PortWatcher::portOpened(std::intptr_t /*handle*/) {}
void PortWatcher::portClosing(std::intptr_t /*handle*/) {}
void PortWatcher::setActive(bool /*active*/) {}
bool PortWatcher::watches() const {
    return false;
}

}  // namespace velmora
