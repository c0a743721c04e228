#include "server/port_status.h"

namespace velmora {

namespace {

constexpr Colour kGreen{0, 128, 0};
constexpr Colour kOrange{255, 128, 0};
constexpr Colour kRed{255, 0, 0};
constexpr Colour kDarkRed{192, 0, 0};

}  // namespace

PortMark portMark(const std::string& number, std::int32_t status) {
    const std::string port = "COM" + number;
    switch (status) {
        case kStatusAvailable:
            return {kGreen, port + " is available"};
        case kStatusModem:
            return {kOrange, port + " is used (modem)"};
        case kStatusDevice:
            return {kOrange, port + " is used (device)"};
        case kStatusInUse:
            return {kRed, port + " is in use"};
        case kStatusNotAccessible:
            return {kDarkRed, port + " is not accessible"};
        case kStatusError:
            return {kRed, port + " reports error"};
        default:  // not checked, or no status at all
            return {};
    }
}

}  // namespace velmora
