// Any bytes as a display text of the configuration file.
#include <cstdint>
#include <string>

#include "require.h"
#include "startup/messages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string value(reinterpret_cast<const char*>(data), size);
    const velmora::DisplayText text = velmora::parse_DisplayValue(value);
    // Both lines are stretches of the value; line 2 lies between quotes and so holds none.
    velmora::fuzz::require(value.find(text.line1) != std::string::npos);
    velmora::fuzz::require(value.find(text.line2) != std::string::npos);
    velmora::fuzz::require(text.line2.find('"') == std::string::npos);
    velmora::fuzz::require(velmora::strip_Quotes(value).size() + 2 >= value.size());
    return 0;
}
