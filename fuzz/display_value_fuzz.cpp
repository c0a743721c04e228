// Any bytes as a display text of the configuration file.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "startup/messages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string value(reinterpret_cast<const char*>(data), size);
    const velmora::DisplayText text = velmora::parse_DisplayValue(value);
    // Both lines are stretches of the value; line 2 lies between quotes and so holds none.
    const bool sound =
        value.find(text.line1) != std::string::npos && value.find(text.line2) != std::string::npos &&
        text.line2.find('"') == std::string::npos && velmora::strip_Quotes(value).size() + 2 >= value.size();
    if (!sound) {
        std::abort();
    }
    return 0;
}
