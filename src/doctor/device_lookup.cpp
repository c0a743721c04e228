#include "doctor/device_lookup.h"

#include <algorithm>
#include <vector>

#include "serial/adapter_latency.h"
#include "serial/port_list.h"

namespace velmora {

ExaminedDevice lookUpDevice(PortNames& names, int number, const std::string& shown) {
    ExaminedDevice device;
    device.name = names.device(number).value_or(shown);
    device.facts = gatherDeviceFacts(device.name);
    device.holder = findHolder(device.name);
    device.latency = latencyTimer(device.name);
    const std::vector<PortIdentity> ports = listPorts(names);
    const auto port = std::ranges::find(ports, number, &PortIdentity::number);
    if (port != ports.end()) {
        device.identity = *port;
    }
    return device;
}

}  // namespace velmora
