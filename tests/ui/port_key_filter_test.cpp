#include "ui/port_key_filter.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

TEST(PortKeyFilter, PassesDigitsEditingCodesAndTheirLookAlikes) {
    std::string passed;
    for (int code = 0; code < 256; ++code) {
        if (portKeyPasses(code)) {
            passed += static_cast<char>(code);
        }
    }
    EXPECT_EQ(passed, "\x08\x09\x0C%&'(.0123456789");
}

TEST(PortKeyFilter, SwallowsWhatIsNoByte) {
    EXPECT_FALSE(portKeyPasses(-1));
    EXPECT_FALSE(portKeyPasses(0x0660));  // an Arabic digit
}

}  // namespace
}  // namespace velmora
