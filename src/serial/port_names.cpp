#include "serial/port_names.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <limits>

#include "base/byte_text.h"

#ifdef _WIN32
#include "serial/device_path_win32.h"
#endif

namespace velmora {

namespace {

constexpr int kLastPort = std::numeric_limits<std::int16_t>::max();

#ifdef _WIN32

/// What all ways to write a device have in common.
std::string comparedForm(const std::string& device) {
    return upperCase(deviceName(device));
}

constexpr int kFirstFreePort = 4097;

/// The device that a number stands for by itself.
std::optional<std::string> usualDevice(int number) {
    if (number < 1 || number > kLastPort) {
        return std::nullopt;
    }
    return "COM" + std::to_string(number);
}

#else

/// What all ways to write a device have in common.
std::string comparedForm(const std::string& device) {
    return device;
}

struct DeviceRange {
    int first;
    int last;
    const char* prefix;
};

constexpr std::array<DeviceRange, 3> kRanges = {{
    {1, 4, "/dev/ttyS"},
    {5, 20, "/dev/ttyUSB"},
    {21, 36, "/dev/ttyACM"},
}};
constexpr int kFirstFreePort = kRanges.back().last + 1;

/// The device that a number stands for by itself.
std::optional<std::string> usualDevice(int number) {
    for (const DeviceRange& range : kRanges) {
        if (number >= range.first && number <= range.last) {
            return range.prefix + std::to_string(number - range.first);
        }
    }
    return std::nullopt;
}

#endif

}  // namespace

std::optional<int> comNumber(std::string_view text) {
    const std::string capitals = upperCase(trimBlanks(text));
    constexpr std::string_view prefix = "COM";
    if (!capitals.starts_with(prefix)) {
        return std::nullopt;
    }
    int number = 0;
    const char* const end = capitals.data() + capitals.size();
    const auto [stopped, error] = std::from_chars(capitals.data() + prefix.size(), end, number);
    if (error != std::errc() || stopped != end || number < 1 || number > kLastPort) {
        return std::nullopt;
    }
    return number;
}

PortNames::PortNames(const Overrides& overrides) {
    for (const auto& [name, path] : overrides) {
        const std::optional<int> number = comNumber(name);
        if (number && !path.empty()) {
            overrides_[*number] = path;
        }
    }
}

std::optional<std::string> PortNames::device(int number) const {
    if (const auto found = placed_.find(number); found != placed_.end()) {
        return found->second;
    }
    if (const auto found = overrides_.find(number); found != overrides_.end()) {
        return found->second;
    }
    return usualDevice(number);
}

std::optional<std::string> PortNames::device(std::string_view name) const {
    const std::optional<int> number = comNumber(name);
    return number ? device(*number) : std::nullopt;
}

std::optional<int> PortNames::numberOf(const std::string& device) const {
    const std::string wanted = comparedForm(device);
    for (int number = 1; number <= kLastPort; ++number) {
        const std::optional<std::string> candidate = this->device(number);
        if (candidate && comparedForm(*candidate) == wanted) {
            return number;
        }
    }
    return std::nullopt;
}

int PortNames::numberFor(const std::string& nameOrDevice) {
    if (const std::optional<int> number = comNumber(nameOrDevice)) {
        return *number;
    }
    if (const std::optional<int> number = numberOf(nameOrDevice)) {
        given_[*number] = nameOrDevice;
        return *number;
    }
    for (int number = kFirstFreePort; number <= kLastPort; ++number) {
        if (!overrides_.contains(number) && !placed_.contains(number)) {
            overrides_[number] = nameOrDevice;
            given_[number] = nameOrDevice;
            return number;
        }
    }
    return 0;
}

std::string PortNames::shown(int number) const {
    const auto given = given_.find(number);
    return given != given_.end() ? given->second : "COM" + std::to_string(number);
}

int PortNames::firstFreeNumber() {
    return kFirstFreePort;
}

}  // namespace velmora
