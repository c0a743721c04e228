// Asks the device manager's library (libudev). It reads the system's own description of the devices, so it
// answers where the device manager does not run too, only without the links that that would have made.
#include <libudev.h>

#include <memory>
#include <string>

#include "serial/device_facts.h"
#include "serial/found_terminals_posix.h"
#include "serial/port_list.h"

namespace velmora {
namespace {

struct Release {
    void operator()(udev* library) const { udev_unref(library); }
    void operator()(udev_enumerate* listing) const { udev_enumerate_unref(listing); }
    void operator()(udev_device* device) const { udev_device_unref(device); }
};

std::string textOf(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

std::string attribute(udev_device* device, const char* name) {
    return textOf(udev_device_get_sysattr_value(device, name));
}

/// The driver of the standard ports registers names for ports that were not found and gives those type 0.
bool hasHardware(udev_device* terminal) {
    // Consoles have no device above them.
    return udev_device_get_parent(terminal) != nullptr && attribute(terminal, "type") != "0";
}

std::vector<std::string> linksOf(udev_device* terminal) {
    std::vector<std::string> links;
    for (udev_list_entry* entry = udev_device_get_devlinks_list_entry(terminal); entry != nullptr;
         entry = udev_list_entry_get_next(entry)) {
        links.push_back(textOf(udev_list_entry_get_name(entry)));
    }
    return links;
}

/// The driver of the nearest device above that has one; the terminal itself has none.
std::string driverOf(udev_device* terminal) {
    for (udev_device* device = udev_device_get_parent(terminal); device != nullptr;
         device = udev_device_get_parent(device)) {
        // On USB the interface above the port has the adapter's driver; the standard ports have two levels of
        // the kernel's own in between.
        const char* driver = udev_device_get_driver(device);
        if (driver != nullptr && textOf(udev_device_get_subsystem(device)) != "serial-base") {
            return driver;
        }
    }
    return {};
}

/// The way to the socket: with the computer's own part of it where the device manager runs.
std::string socketOf(udev_device* terminal, udev_device* adapterPart) {
    const std::string path = textOf(udev_device_get_property_value(terminal, "ID_PATH"));
    return path.empty() ? "usb-" + textOf(udev_device_get_sysname(adapterPart)) : path;
}

/// What hangs on USB is described by the adapter, above the interface that the terminal belongs to. Its
/// parents belong to the terminal and are not released.
void readAdapter(udev_device* terminal, FoundTerminal& found) {
    udev_device* adapter = udev_device_get_parent_with_subsystem_devtype(terminal, "usb", "usb_device");
    if (adapter == nullptr) {
        return;
    }
    udev_device* interface = udev_device_get_parent_with_subsystem_devtype(terminal, "usb", "usb_interface");
    found.vendorId = attribute(adapter, "idVendor");
    found.productId = attribute(adapter, "idProduct");
    found.serial = attribute(adapter, "serial");
    found.maker = attribute(adapter, "manufacturer");
    found.product = attribute(adapter, "product");
    found.socket = socketOf(terminal, interface == nullptr ? adapter : interface);
}

std::vector<FoundTerminal> foundTerminals() {
    std::vector<FoundTerminal> terminals;
    const std::unique_ptr<udev, Release> library(udev_new());
    if (!library) {
        return terminals;
    }
    const std::unique_ptr<udev_enumerate, Release> listing(udev_enumerate_new(library.get()));
    if (!listing || udev_enumerate_add_match_subsystem(listing.get(), "tty") < 0 ||
        udev_enumerate_scan_devices(listing.get()) < 0) {
        return terminals;
    }
    for (udev_list_entry* entry = udev_enumerate_get_list_entry(listing.get()); entry != nullptr;
         entry = udev_list_entry_get_next(entry)) {
        const std::unique_ptr<udev_device, Release> terminal(
            udev_device_new_from_syspath(library.get(), udev_list_entry_get_name(entry)));
        // One that was pulled meanwhile is not there any more.
        if (!terminal || udev_device_get_devnode(terminal.get()) == nullptr) {
            continue;
        }
        FoundTerminal found;
        found.device = udev_device_get_devnode(terminal.get());
        found.links = linksOf(terminal.get());
        found.hardware = hasHardware(terminal.get());
        found.driver = driverOf(terminal.get());
        readAdapter(terminal.get(), found);
        terminals.push_back(found);
    }
    return terminals;
}

}  // namespace

std::vector<PortIdentity> listPorts(PortNames& names, Holders holders) {
    DeviceQuestions ask{gatherDeviceFacts, {}};
    if (holders == Holders::Asked) {
        ask.holder = [](const std::string& device) { return findHolder(device); };
    }
    return portsOf(foundTerminals(), ask, names);
}

}  // namespace velmora
