// What an adapter is recognised by when its port's number has changed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "serial/port_identity.h"

namespace velmora {

/// How many hexadecimal digits a USB vendor or product number is written with.
constexpr std::size_t kIdDigits = 4;

/// Recognises one adapter by its USB vendor, product and serial number, as text "0403:6001:A50285BI". One
/// that has no serial number, or shares it with another (cheap chips all have the same), is recognised by the
/// socket that it is plugged in to: "1a86:7523:@pci-0000:00:14.0-usb-0:2:1.0".
struct AdapterKey {
    std::string vendorId;   ///< four hexadecimal digits in lower case
    std::string productId;  ///< likewise
    std::string serial;     ///< empty: `socket` says which it is
    std::string socket;

    std::string text() const;
    bool matches(const PortIdentity& port) const;
};

/// Reads the text of a key; nothing when it is none.
std::optional<AdapterKey> adapterKey(std::string_view text);

/// The key within what the user calls a port by, "usb:0403:6001:A50285BI"; nothing for any other name.
std::optional<AdapterKey> adapterKeyOfName(std::string_view portName);
/// Whether a name begins as those of adapters do ("usb:"), whatever follows.
bool namesAdapter(std::string_view portName);
/// The name for such a key.
std::string adapterName(const AdapterKey& key);

/// The key by which a port is told from all that are present; nothing when it is on no USB or cannot be told
/// from another.
std::optional<AdapterKey> keyOf(const PortIdentity& port, const std::vector<PortIdentity>& present);

/// The ports that a key matches.
std::vector<PortIdentity> portsMatching(const AdapterKey& key, const std::vector<PortIdentity>& present);

/// What to say when a key matches more than one port.
std::string severalSentence(const AdapterKey& key, const std::vector<PortIdentity>& ports);

}  // namespace velmora
