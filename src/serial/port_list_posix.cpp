#include <algorithm>
#include <filesystem>
#include <fstream>

#include "serial/device_facts.h"
#include "serial/port_list.h"

namespace velmora {

namespace {

namespace fs = std::filesystem;

/// The first line of a small file; empty when it cannot be read.
std::string firstLine(const fs::path& file) {
    std::string line;
    std::ifstream stream(file);
    std::getline(stream, line);
    line.erase(line.find_last_not_of(" \r") + 1);
    return line;
}

/// The driver of the standard ports registers names for ports that were not found and gives those type 0.
bool hasHardware(const fs::path& entry) {
    std::error_code error;
    return fs::exists(entry / "device", error) && firstLine(entry / "type") != "0";
}

/// Looks upward from the terminal's device to the first one that names its maker or product: on USB that is
/// the adapter, above the interface that the terminal belongs to.
void readNames(const fs::path& entry, const fs::path& systemRoot, SerialDevice& found) {
    std::error_code error;
    fs::path folder = fs::canonical(entry / "device", error);
    while (!error && folder != systemRoot && folder.has_relative_path()) {
        found.maker = firstLine(folder / "manufacturer");
        found.product = firstLine(folder / "product");
        if (!found.maker.empty() || !found.product.empty()) {
            return;
        }
        folder = folder.parent_path();
    }
}

}  // namespace

std::vector<SerialDevice> listSerialDevices(PortNames& names, const std::string& systemFolder,
                                            const std::string& deviceFolder) {
    std::vector<SerialDevice> devices;
    std::error_code error;
    const fs::path systemRoot = fs::weakly_canonical(systemFolder, error);
    std::vector<fs::path> entries;
    fs::directory_iterator listing(fs::path(systemFolder) / "class" / "tty", error);
    for (; !error && listing != fs::directory_iterator(); listing.increment(error)) {
        entries.push_back(listing->path());
    }
    // The listing has no order of its own, and the order decides who gets which free number.
    std::sort(entries.begin(), entries.end());
    for (const fs::path& entry : entries) {
        SerialDevice found;
        found.device = (fs::path(deviceFolder) / entry.filename()).string();
        const DeviceFacts facts = gatherDeviceFacts(found.device);
        if (!hasHardware(entry) || !facts.exists) {
            continue;
        }
        found.number = names.numberFor(found.device);
        found.mayOpen = facts.mayOpen;
        if (!facts.mayOpen && facts.groupMayOpen) {
            found.groupToJoin = facts.group;
        }
        readNames(entry, systemRoot, found);
        devices.push_back(found);
    }
    std::sort(devices.begin(), devices.end(),
              [](const SerialDevice& a, const SerialDevice& b) { return a.number < b.number; });
    return devices;
}

}  // namespace velmora
