// Who wants to know when the port opens and closes and what passes over it, for example an event loop that
// watches the handle.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmora {

class PortObserver {
  public:
    virtual ~PortObserver() = default;

    /// The port was opened; `handle` is the system's (a file descriptor on Linux) and stays valid until
    /// portClosing. Called inside OpenPort; must not call the port.
    virtual void portOpened(std::intptr_t handle) = 0;
    /// The port is about to be closed: stop watching `handle` now. Must not call the port.
    virtual void portClosing(std::intptr_t handle) = 0;
    /// These bytes were read from the open port. Must not call the port.
    virtual void portRead(std::string_view /*bytes*/) {}
    /// These bytes are about to be handed to the open port. Must not call the port.
    virtual void portWriting(std::string_view /*bytes*/) {}
};

}  // namespace velmora
