// The ports that a server without a configured one looks for.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "serial/device_facts.h"
#include "serial/port_names.h"
#include "server/wanted_port.h"

namespace velmora {

/// The numbers from 1 to this one are searched for a free port.
inline constexpr int kLastSearchedPort = 64;

/// Tells when a search is worth its while. A search opens every port that is there, modems among them, so it
/// is only made when there is one more to open than before.
class SearchedPorts {
  public:
    /// `names` must outlive it.
    SearchedPorts(const PortNames& names, std::function<DeviceFacts(const std::string& device)> facts)
        : names_(names), facts_(std::move(facts)) {}

    /// Present when a port is there and may be opened that was not at the last look, otherwise
    /// Absent. At the first look all are new.
    PortPresence look();

  private:
    const PortNames& names_;
    std::function<DeviceFacts(const std::string& device)> facts_;
    std::set<std::string> seen_;
};

}  // namespace velmora
