// Which device a port number stands for.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The number in "COM<n>", in any case; nothing for any other text and for numbers outside 1 to 32,767.
std::optional<int> comNumber(std::string_view text);

/// Numbers of serial ports and the devices behind them. A number that is not given a device stands on Windows
/// for the device "COM<n>", whether there is one or not; on other systems for /dev/ttyS0-3 (1 to 4),
/// /dev/ttyUSB0-15 (5 to 20) or /dev/ttyACM0-15 (21 to 36), and all others do not exist.
class PortNames {
  public:
    /// Texts like "COM7" and the devices that they stand for: paths, on Windows the names of devices that
    /// are called otherwise than COM and a number, as those of virtual ports may be.
    using Overrides = std::map<std::string, std::string>;

    PortNames() = default;
    /// `overrides` as the section [Ports] of the configuration file has them. Entries whose key is no port or
    /// whose path is empty are left out.
    explicit PortNames(const Overrides& overrides);

    /// The device for a number; nothing when there is no such port.
    std::optional<std::string> device(int number) const;
    /// The device for a text "COM<n>"; nothing when there is no such port.
    std::optional<std::string> device(std::string_view name) const;

    /// The lowest number that stands for a device; nothing when none does. On Windows a device may be given
    /// with or without its prefix "\\.\" and in any case.
    std::optional<int> numberOf(const std::string& device) const;

    /// The number for a text "COM<n>" or a device path as a user gives it: the lowest number that stands for
    /// it, otherwise the first free one from firstFreeNumber on, which stands for it from now on. 0 when none
    /// is free. A device's name is what messages call the port from now on.
    int numberFor(const std::string& nameOrDevice);

    /// Lets a number stand for a device, whatever else it stands for, until clearDevice; messages call the
    /// port as before.
    void setDevice(int number, const std::string& device) { placed_[number] = device; }
    void clearDevice(int number) { placed_.erase(number); }

    /// What messages call a port: the device as numberFor was given it, otherwise "COM<n>".
    std::string shown(int number) const;

    /// The lowest number that a device may get which has none: 37; 4097 on Windows, which itself gives
    /// numbers up to 4096.
    static int firstFreeNumber();

  private:
    std::map<int, std::string> overrides_;
    std::map<int, std::string> placed_;  // by setDevice
    std::map<int, std::string> given_;   // devices by the number that they got
};

}  // namespace velmora
