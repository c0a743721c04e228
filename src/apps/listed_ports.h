// What --list-ports prints.
#pragma once

#include <string>

#include "serial/port_list.h"
#include "serial/port_report.h"

namespace velmora {

/// The ports of this machine, with who holds them, as a table or as JSON.
inline std::string listedPorts(bool json) {
    PortNames names;
    const std::vector<PortIdentity> ports = listPorts(names, Holders::Asked);
    return json ? portsAsJson(ports) : portTable(ports);
}

}  // namespace velmora
