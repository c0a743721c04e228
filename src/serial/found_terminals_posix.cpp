#include "serial/found_terminals_posix.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>

#include "base/byte_text.h"
#include "serial/adapter_chips.h"

namespace velmora {
namespace {

using Claims = std::map<std::string, std::size_t>;

Claims countClaims(const std::vector<FoundTerminal>& terminals) {
    Claims claims;
    for (const FoundTerminal& terminal : terminals) {
        for (const std::string& link : terminal.links) {
            ++claims[link];
        }
    }
    return claims;
}

/// The link that names the adapter; the one that names its socket for adapters without a name of their own.
std::string stableName(const FoundTerminal& terminal, const Claims& claims) {
    for (const char* folder : {"/serial/by-id/", "/serial/by-path/"}) {
        for (const std::string& link : terminal.links) {
            if (link.find(folder) != std::string::npos && claims.at(link) == 1) {
                return link;
            }
        }
    }
    return {};
}

PortIdentity describe(const FoundTerminal& terminal, const Claims& claims) {
    PortIdentity port;
    port.device = terminal.device;
    port.stableName = stableName(terminal, claims);
    port.vendorId = lowerCase(terminal.vendorId);
    port.productId = lowerCase(terminal.productId);
    port.serial = trimBlanks(terminal.serial);
    port.socket = terminal.socket;
    port.maker = trimBlanks(terminal.maker);
    port.product = trimBlanks(terminal.product);
    port.driver = terminal.driver;
    port.chip = adapterChip(port.vendorId, port.productId);
    return port;
}

}  // namespace

std::vector<PortIdentity> portsOf(std::vector<FoundTerminal> terminals, const DeviceQuestions& ask,
                                  PortNames& names) {
    // What comes first gets the lower of the free numbers, so the order must not change from time to time.
    const auto byDevice = [](const auto& a, const auto& b) { return a.device < b.device; };
    std::stable_sort(terminals.begin(), terminals.end(), byDevice);
    const auto sameDevice = [](const auto& a, const auto& b) { return a.device == b.device; };
    terminals.erase(std::unique(terminals.begin(), terminals.end(), sameDevice), terminals.end());

    const Claims claims = countClaims(terminals);
    std::vector<PortIdentity> ports;
    for (const FoundTerminal& terminal : terminals) {
        if (!terminal.hardware) {
            continue;
        }
        const DeviceFacts facts = ask.facts(terminal.device);
        if (!facts.exists) {
            continue;
        }
        PortIdentity port = describe(terminal, claims);
        // A device that has a number is only asked for it: its name is nobody's choice here.
        const std::optional<int> number = names.numberOf(port.device);
        port.number = number ? *number : names.numberFor(port.device);
        port.mayOpen = facts.mayOpen;
        port.groupToJoin = !facts.mayOpen && facts.groupMayOpen ? facts.group : std::string();
        port.holder = ask.holder ? ask.holder(port.device) : std::string();
        ports.push_back(std::move(port));
    }
    std::sort(ports.begin(), ports.end(),
              [](const PortIdentity& a, const PortIdentity& b) { return a.number < b.number; });
    return ports;
}

}  // namespace velmora
