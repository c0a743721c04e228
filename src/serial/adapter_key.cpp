#include "serial/adapter_key.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "base/byte_text.h"

namespace velmora {
namespace {

constexpr std::string_view kNamePrefix = "usb:";
constexpr char kSocketMark = '@';

bool isId(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    return text.size() == kIdDigits && text.find_first_not_of(kDigits) == std::string_view::npos;
}

/// Systems differ in the case of what they tell of one adapter.
bool same(std::string_view one, std::string_view other) {
    return upperCase(one) == upperCase(other);
}

}  // namespace

std::string AdapterKey::text() const {
    return vendorId + ":" + productId + ":" + (serial.empty() ? kSocketMark + socket : serial);
}

bool AdapterKey::matches(const PortIdentity& port) const {
    if (!same(port.vendorId, vendorId) || !same(port.productId, productId)) {
        return false;
    }
    return serial.empty() ? same(port.socket, socket) : same(port.serial, serial);
}

std::optional<AdapterKey> adapterKey(std::string_view text) {
    const std::size_t first = text.find(':');
    const std::size_t second = first == std::string_view::npos ? first : text.find(':', first + 1);
    if (second == std::string_view::npos || second + 1 == text.size()) {
        return std::nullopt;
    }
    AdapterKey key;
    key.vendorId = lowerCase(text.substr(0, first));
    key.productId = lowerCase(text.substr(first + 1, second - first - 1));
    if (!isId(key.vendorId) || !isId(key.productId)) {
        return std::nullopt;
    }
    const std::string_view which = text.substr(second + 1);
    if (which.front() == kSocketMark) {
        key.socket = which.substr(1);
    } else {
        key.serial = which;
    }
    return key.serial.empty() && key.socket.empty() ? std::nullopt : std::optional(key);
}

bool namesAdapter(std::string_view portName) {
    return lowerCase(portName.substr(0, kNamePrefix.size())) == kNamePrefix;
}

std::optional<AdapterKey> adapterKeyOfName(std::string_view portName) {
    return namesAdapter(portName) ? adapterKey(portName.substr(kNamePrefix.size())) : std::nullopt;
}

std::string adapterName(const AdapterKey& key) {
    return std::string(kNamePrefix) + key.text();
}

std::optional<AdapterKey> keyOf(const PortIdentity& port, const std::vector<PortIdentity>& present) {
    if (port.vendorId.empty() || port.productId.empty()) {
        return std::nullopt;
    }
    const auto alone = [&present](const AdapterKey& key) { return portsMatching(key, present).size() <= 1; };
    // A serial number that would be read as a socket is no help.
    if (!port.serial.empty() && port.serial.front() != kSocketMark) {
        const AdapterKey key{port.vendorId, port.productId, port.serial, {}};
        if (alone(key)) {
            return key;
        }
    }
    const AdapterKey key{port.vendorId, port.productId, {}, port.socket};
    return !port.socket.empty() && alone(key) ? std::optional(key) : std::nullopt;
}

std::vector<PortIdentity> portsMatching(const AdapterKey& key, const std::vector<PortIdentity>& present) {
    std::vector<PortIdentity> found;
    std::copy_if(present.begin(), present.end(), std::back_inserter(found),
                 [&key](const PortIdentity& port) { return key.matches(port); });
    return found;
}

std::string severalSentence(const AdapterKey& key, const std::vector<PortIdentity>& ports) {
    std::string devices;
    for (const PortIdentity& port : ports) {
        devices += (devices.empty() ? "" : " and ") + port.device;
    }
    return adapterName(key) + " is " + devices + "; none of them is taken. Name the device instead.";
}

}  // namespace velmora
