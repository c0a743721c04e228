// The serial ports that are present, as text for people and for programs.
#pragma once

#include <string>
#include <vector>

#include "serial/port_identity.h"

namespace velmora {

/// A table with a line for each port and one with the headings; a sentence when there is no port. Ends with a
/// line end.
std::string portTable(const std::vector<PortIdentity>& ports);

/// One JSON array (RFC 8259) with an object for each port, in UTF-8, with a line end. All texts are there,
/// also empty ones: "port" ("COM5"), "name" (the one for --port that lasts longest), "device", "stableName",
/// "vendorId", "productId", "serial", "socket", "maker", "product", "driver", "chip", "holder",
/// "groupToJoin"; "number" is a number (0: it has none in every run) and "mayOpen" true or false.
std::string portsAsJson(const std::vector<PortIdentity>& ports);

}  // namespace velmora
