// What the port test answers, and how the setup dialog marks it.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

/// Answers of checkPort.
enum PortStatusNumber : std::int32_t {
    kStatusNotChecked = 0,
    kStatusAvailable = 1,
    kStatusModem = 2,          ///< a modem echoed or answered
    kStatusDevice = 3,         ///< something else answered
    kStatusInUse = 4,          ///< held by another program
    kStatusNotAccessible = 5,  ///< no such port
    kStatusError = 6,
};

/// A text colour, each part 0 to 255.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Colour&, const Colour&) = default;
};

/// How an option button is marked.
struct PortMark {
    Colour colour;        ///< black when not checked
    std::string toolTip;  ///< "COM1 is available"; empty when not checked

    friend bool operator==(const PortMark&, const PortMark&) = default;
};

/// The mark of a status, for the port with this number (any number; the "other" port shows what was typed).
PortMark portMark(const std::string& number, std::int32_t status);

}  // namespace velmora
