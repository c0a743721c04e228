#include "serial/found_ports_win32.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/byte_text.h"
#include "serial/adapter_chips.h"
#include "serial/device_instance.h"

namespace velmora {

namespace {

/// The description without the port's name at its end, which stands beside it anyway.
std::string productOf(const FoundPort& port) {
    std::string ending = "(";
    ending += upperCase(port.name) + ")";
    if (!upperCase(port.description).ends_with(ending)) {
        return trimBlanks(port.description);
    }
    return trimBlanks(port.description.substr(0, port.description.size() - ending.size()));
}

/// The product as a text that follows the maker's: descriptions often begin with the maker's name.
std::string withoutMaker(std::string product, const std::string& maker) {
    if (!maker.empty() && upperCase(product).starts_with(upperCase(maker) + " ")) {
        product.erase(0, maker.size() + 1);
    }
    return product;
}

void add(std::vector<PortIdentity>& devices, const FoundPort& port, PortNames& names) {
    PortIdentity found;
    const std::optional<int> ownNumber = comNumber(port.name);
    found.device = ownNumber ? "COM" + std::to_string(*ownNumber) : port.name;
    // A port "COM<n>" whose number was given to another device has no number unless it was given one.
    found.number = ownNumber ? names.numberOf(found.device).value_or(0) : names.numberFor(found.device);
    if (found.number == 0) {
        return;
    }
    found.maker = trimBlanks(port.maker);
    found.product = withoutMaker(productOf(port), found.maker);
    found.mayOpen = true;
    const InstanceParts parts = instanceParts(port.instance);
    found.stableName = port.instance;
    found.vendorId = parts.vendorId;
    found.productId = parts.productId;
    found.serial = parts.serial;
    // An instance without a serial number is made of the way to the socket, as the system counts it.
    found.socket = port.socket.empty() ? port.instance : port.socket;
    found.driver = port.driver;
    found.chip = adapterChip(found.vendorId, found.productId);
    const auto same = std::find_if(devices.begin(), devices.end(), [&found](const PortIdentity& device) {
        return device.number == found.number;
    });
    if (same == devices.end()) {
        devices.push_back(std::move(found));
    } else if (same->product.empty() && same->maker.empty() && same->stableName.empty()) {
        *same = std::move(found);
    }
}

}  // namespace

std::vector<PortIdentity> serialDevices(const std::vector<FoundPort>& announced,
                                        const std::vector<FoundPort>& pluggedIn, PortNames& names) {
    std::vector<PortIdentity> devices;
    for (const FoundPort& port : announced) {
        if (!port.name.empty()) {
            add(devices, port, names);
        }
    }
    for (const FoundPort& port : pluggedIn) {
        if (comNumber(port.name)) {
            add(devices, port, names);
        }
    }
    std::sort(devices.begin(), devices.end(),
              [](const PortIdentity& a, const PortIdentity& b) { return a.number < b.number; });
    return devices;
}

}  // namespace velmora
