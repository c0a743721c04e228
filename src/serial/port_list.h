// The serial ports that are present, for choosing one.
#pragma once

#include <vector>

#include "serial/port_identity.h"
#include "serial/port_names.h"

namespace velmora {

/// Whether to look up who holds each port, which goes through all that programs have open.
enum class Holders { NotAsked, Asked };

/// Lists the ports in the order of their numbers. Ports that the system only reserves a name for, without
/// hardware, are left out, consoles and pseudo-terminals too. A device that `names` has no number for gets
/// one there. On Windows every port may be opened as far as the system tells.
std::vector<PortIdentity> listPorts(PortNames& names, Holders holders = Holders::NotAsked);

}  // namespace velmora
