#include "serial/found_ports_win32.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/byte_text.h"

namespace velmora {

namespace {

/// The description without the port's name at its end, which stands beside it anyway.
std::string productOf(const FoundPort& port) {
    const std::string ending = "(" + upperCase(port.name) + ")";
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

void add(std::vector<SerialDevice>& devices, const FoundPort& port, PortNames& names) {
    SerialDevice found;
    const std::optional<int> number = comNumber(port.name);
    found.device = number ? "COM" + std::to_string(*number) : port.name;
    found.number = names.numberFor(found.device);
    found.maker = trimBlanks(port.maker);
    found.product = withoutMaker(productOf(port), found.maker);
    found.mayOpen = true;
    const auto same = std::find_if(devices.begin(), devices.end(), [&found](const SerialDevice& device) {
        return device.device == found.device;
    });
    if (same == devices.end()) {
        devices.push_back(std::move(found));
    } else if (same->product.empty() && same->maker.empty()) {
        *same = std::move(found);
    }
}

}  // namespace

std::vector<SerialDevice> serialDevices(const std::vector<FoundPort>& announced,
                                        const std::vector<FoundPort>& pluggedIn, PortNames& names) {
    std::vector<SerialDevice> devices;
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
              [](const SerialDevice& a, const SerialDevice& b) { return a.number < b.number; });
    return devices;
}

}  // namespace velmora
