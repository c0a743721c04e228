// Any text as a mode string: what is taken is something that a line can have, and means the same written
// anew.
#include <cstdint>
#include <string>
#include <string_view>

#include "require.h"
#include "serial/mode_string.h"

namespace {

using namespace velmora;

std::string byPosition(const LineSettings& line) {
    constexpr std::string_view kParities = "NOEMS";
    constexpr std::string_view kStops[] = {"1", "1.5", "2"};
    std::string text = std::to_string(line.baud);
    text.append(",").append(1, kParities[static_cast<std::size_t>(line.parity)]);
    text.append(",").append(std::to_string(line.dataBits));
    return text.append(",").append(kStops[static_cast<std::size_t>(line.stopBits)]);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::optional<LineSettings> line = parseModeString(text);
    if (line) {
        fuzz::require(line->baud > 0);
        fuzz::require(line->dataBits >= 5 && line->dataBits <= 8);
        fuzz::require((line->stopBits != StopBits::OneAndHalf) || line->dataBits == 5);
        fuzz::require((line->stopBits != StopBits::Two) || line->dataBits != 5);
        fuzz::require(parseModeString(byPosition(*line)) == line);
    }
    return 0;
}
