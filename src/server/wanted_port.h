// Where the port is that the server is meant to use.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "serial/adapter_key.h"
#include "serial/device_facts.h"
#include "serial/port_identity.h"
#include "serial/port_names.h"
#include "serial/serial_port.h"
#include "server/server_options.h"

namespace velmora {

/// How a port was found.
enum class PortPresence {
    Absent,
    NotPermitted,  ///< there, but this login may not open it (yet)
    Several,       ///< more than one adapter answers to its key; none is taken
    Stayed,        ///< there, and not plugged in anew since it was opened last
    Present,
};

/// What the search works with; all of it must outlive the WantedPort.
struct WantedPortParts {
    SerialPort& port;
    PortNames& names;
    ServerOptions& options;
    std::function<std::vector<PortIdentity>()> list;
    std::function<DeviceFacts(const std::string& device)> facts;
    /// Takes a line, in the system's encoding, that the user should know; may be missing.
    std::function<void(const std::string& line)> tell;
};

/// Follows an adapter to the number that it has now. The adapter is the one that the port's name says
/// ("usb:…") or the option PortIdentity; without either, and for links, the device is whatever has the name.
class WantedPort {
  public:
    explicit WantedPort(WantedPortParts parts) : parts_(std::move(parts)) {}

    enum class Wanted {
        Configured,   ///< what the user has chosen
        SameAdapter,  ///< the adapter that was opened last, if the port is still the chosen one
    };
    /// Looks where the port is and makes the port object stand for it; told when the number is another one.
    /// While the adapter is not there the number stands for a device that does not exist, so that no other
    /// adapter is taken for it.
    PortPresence locate(Wanted wanted);
    /// Which adapters the last search could not tell apart; empty when it could.
    const std::string& complaint() const { return complaint_; }
    /// The port has been opened: remembers which adapter that is.
    void opened();

  private:
    struct Opened {
        int number = 0;
        std::string stamp;
        std::optional<AdapterKey> key;  // none: the device's name says all
    };

    std::string device() const;
    std::optional<AdapterKey> configuredKey();
    void refuse(const std::string& text);
    PortPresence presenceOf(const std::string& device) const;
    void take(const AdapterKey& key, const PortIdentity& found);

    WantedPortParts parts_;
    std::optional<Opened> opened_;
    std::string lastDevice_;  // of the adapter
    std::string complaint_;
    std::string refusedText_;  // the PortIdentity that was told to make no sense
};

}  // namespace velmora
