#include "serial/device_instance.h"

#include <cstddef>
#include <utility>

#include "base/byte_text.h"
#include "serial/adapter_key.h"

namespace velmora {
namespace {

/// The bus driver of the maker who numbers the ports of an adapter by letters.
constexpr std::string_view kLetteredBus = "FTDIBUS\\";

/// The digits behind a mark such as "VID_".
std::string idBehind(std::string_view capitals, std::string_view mark) {
    const std::size_t at = capitals.find(mark);
    if (at == std::string_view::npos || capitals.size() < at + mark.size() + kIdDigits) {
        return {};
    }
    return lowerCase(capitals.substr(at + mark.size(), kIdDigits));
}

/// Behind the second "+" and before the next part, without the letter of the port.
std::string letteredSerial(std::string_view device) {
    const std::size_t first = device.find('+');
    const std::size_t second = first == std::string_view::npos ? first : device.find('+', first + 1);
    if (second == std::string_view::npos || second + 2 >= device.size()) {
        return {};
    }
    return std::string(device.substr(second + 1, device.size() - second - 2));
}

}  // namespace

InstanceParts instanceParts(std::string_view instance) {
    const std::string capitals = upperCase(instance);
    InstanceParts parts;
    parts.vendorId = idBehind(capitals, "VID_");
    parts.productId = idBehind(capitals, "PID_");
    const std::size_t last = instance.rfind('\\');
    const std::size_t first = instance.find('\\');
    if (parts.vendorId.empty() || parts.productId.empty() || first == last) {
        return {};
    }
    const std::string_view device = instance.substr(first + 1, last - first - 1);
    std::string serial =
        capitals.starts_with(kLetteredBus) ? letteredSerial(device) : std::string(instance.substr(last + 1));
    if (serial.find('&') == std::string::npos) {
        parts.serial = std::move(serial);
    }
    return parts;
}

}  // namespace velmora
