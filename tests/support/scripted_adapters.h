// Adapters that a test plugs in and pulls.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "serial/adapter_events.h"
#include "serial/device_facts.h"
#include "serial/port_identity.h"
#include "serial/port_names.h"

namespace velmora::test {

/// The device of the n-th adapter, from 0 on: that of COM5 and those behind it.
inline std::string usbDevice(int adapter) {
#ifdef _WIN32
    return "COM" + std::to_string(5 + adapter);
#else
    return "/dev/ttyUSB" + std::to_string(adapter);
#endif
}

/// Plays the device manager. Adapters have the USB numbers 0403:6001.
class ScriptedAdapters : public AdapterEvents {
  public:
    explicit ScriptedAdapters(PortNames& names) : names_(names) {}

    bool live() const override { return manager; }

    /// Plugs an adapter in; it gets a device that is new in any case.
    void plug(const std::string& device, const std::string& serial, const std::string& socket = "socket-1") {
        PortIdentity port;
        port.device = device;
        port.vendorId = "0403";
        port.productId = "6001";
        port.serial = serial;
        port.socket = socket;
        ports_[device] = port;
        makeDevice(device);
    }
    /// A device that is on no USB, or a link's target.
    void makeDevice(const std::string& device) {
        DeviceFacts& facts = facts_[device];
        facts.exists = facts.mayOpen = true;
        facts.stamp = std::to_string(++stamps_);
        event();
    }
    void pull(const std::string& device) {
        ports_.erase(device);
        facts_.erase(device);
        event();
    }
    void permit(const std::string& device, bool may) { facts_[device].mayOpen = may; }
    void event() const {
        if (manager) {
            tell();
        }
    }

    std::vector<PortIdentity> list() {
        ++listings;
        std::vector<PortIdentity> present;
        for (auto& [device, port] : ports_) {
            port.number = names_.numberOf(device).value_or(0);
            port.mayOpen = facts_[device].mayOpen;
            present.push_back(port);
        }
        return present;
    }
    DeviceFacts facts(const std::string& device) const {
        const auto found = facts_.find(device);
        return found == facts_.end() ? DeviceFacts() : found->second;
    }

    bool manager = true;  ///< runs and tells
    int listings = 0;

  private:
    PortNames& names_;
    std::map<std::string, PortIdentity> ports_;
    std::map<std::string, DeviceFacts> facts_;
    int stamps_ = 0;
};

}  // namespace velmora::test
