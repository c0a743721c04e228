#include "server/wanted_port.h"

#include <algorithm>
#include <cstdint>

namespace velmora {

std::string WantedPort::device() const {
    const int number = parts_.port.CommPort();
    return parts_.names.device(number).value_or("COM" + std::to_string(number));
}

PortPresence WantedPort::locate(Wanted wanted) {
    const int number = parts_.port.CommPort();
    complaint_.clear();
    parts_.names.clearDevice(number);
    const bool same = wanted == Wanted::SameAdapter && opened_ && opened_->number == number;
    const std::optional<AdapterKey> key = same && opened_->key ? opened_->key : configuredKey();
    if (!key) {
        return presenceOf(device());
    }
    const std::vector<PortIdentity> found = portsMatching(*key, parts_.list());
    if (found.size() == 1) {
        take(*key, found.front());
        return presenceOf(found.front().device);
    }
    parts_.names.setDevice(number, adapterName(*key));
    if (found.empty()) {
        return PortPresence::Absent;
    }
    complaint_ = severalSentence(*key, found);
    return PortPresence::Several;
}

std::optional<AdapterKey> WantedPort::configuredKey() {
    if (std::optional<AdapterKey> named = adapterKeyOfName(device())) {
        return named;
    }
    const std::string& text = parts_.options.PortIdentity;
    std::optional<AdapterKey> key = adapterKey(text);
    if (!key && !text.empty()) {
        refuse(text);
    }
    return key;
}

PortPresence WantedPort::presenceOf(const std::string& device) const {
    const DeviceFacts facts = parts_.facts(device);
    if (!facts.exists) {
        return PortPresence::Absent;
    }
    if (!facts.mayOpen) {
        return PortPresence::NotPermitted;
    }
    return opened_ && opened_->stamp == facts.stamp ? PortPresence::Stayed : PortPresence::Present;
}

void WantedPort::take(const AdapterKey& key, const PortIdentity& found) {
    const int number = parts_.port.CommPort();
    if (namesAdapter(device())) {
        // The user calls it by the adapter's name, which stays.
        parts_.names.setDevice(number, found.device);
        if (!lastDevice_.empty() && lastDevice_ != found.device && parts_.tell) {
            parts_.tell(adapterName(key) + " is " + found.device + " now; it was " + lastDevice_ + ".");
        }
    } else if (found.number != number) {
        parts_.port.setCommPort(static_cast<std::int16_t>(found.number));
        if (opened_) {
            opened_->number = found.number;
        }
        if (parts_.tell) {
            parts_.tell(adapterName(key) + " is " + parts_.names.shown(found.number) + " now; it was " +
                        parts_.names.shown(number) + ".");
        }
    }
    lastDevice_ = found.device;
}

void WantedPort::opened() {
    const std::string device = this->device();
    Opened now{parts_.port.CommPort(), parts_.facts(device).stamp, {}};
    const std::vector<PortIdentity> present = parts_.list();
    const auto found = std::find_if(present.begin(), present.end(),
                                    [&device](const PortIdentity& port) { return port.device == device; });
    if (found != present.end()) {
        now.key = keyOf(*found, present);
        lastDevice_ = device;
    }
    opened_ = now;
}

/// Says once that an option makes no sense.
void WantedPort::refuse(const std::string& text) {
    if (text != refusedText_ && parts_.tell) {
        parts_.tell("PortIdentity=" + text + " is not VENDOR:PRODUCT:SERIAL and is left out.");
    }
    refusedText_ = text;
}

}  // namespace velmora
