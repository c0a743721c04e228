#include "base/ascii.h"

#include <gtest/gtest.h>

#include <string_view>

namespace velmora {
namespace {

TEST(AsciiTest, LettersAndDigitsAreThoseOfAsciiAlone) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr std::string_view digits = "0123456789";
    for (int code = 0; code < 256; ++code) {
        const char c = static_cast<char>(code);
        EXPECT_EQ(isLetter(c), letters.find(c) != std::string_view::npos) << code;
        EXPECT_EQ(isDigit(c), digits.find(c) != std::string_view::npos) << code;
    }
}

}  // namespace
}  // namespace velmora
