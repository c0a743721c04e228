#include "serial/named_port.h"

#include <optional>
#include <vector>

#include "serial/adapter_key.h"
#include "serial/port_list.h"

namespace velmora {

int placeNamedPort(PortNames& names, const std::string& name) {
    const int number = names.numberFor(name);
    if (const std::optional<AdapterKey> key = adapterKeyOfName(name)) {
        const std::vector<PortIdentity> found = portsMatching(*key, listPorts(names));
        if (found.size() > 1) {
            throw SeveralAdapters(severalSentence(*key, found));
        }
        if (!found.empty()) {
            names.setDevice(number, found.front().device);
        }
    }
    return number;
}

}  // namespace velmora
