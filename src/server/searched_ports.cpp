#include "server/searched_ports.h"

#include <algorithm>
#include <utility>

namespace velmora {

PortPresence SearchedPorts::look() {
    std::set<std::string> present;
    for (int number = 1; number <= kLastSearchedPort; ++number) {
        const std::optional<std::string> device = names_.device(number);
        if (device && facts_(*device).mayOpen) {
            present.insert(*device);
        }
    }
    std::swap(seen_, present);
    // What was seen before is in `present` now.
    const bool all = std::includes(present.begin(), present.end(), seen_.begin(), seen_.end());
    return all ? PortPresence::Absent : PortPresence::Present;
}

}  // namespace velmora
