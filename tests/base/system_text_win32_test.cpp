#include <gtest/gtest.h>

#include "base/system_text.h"

namespace velmora {
namespace {

TEST(SystemText, IsThatOfTheAnsiCodePage) {
    EXPECT_EQ(toSystemText("Gr\xFC\xDF \x80\x81"), "Gr\xFC\xDF \x80\x81");
    EXPECT_EQ(fromSystemText("Gr\xFC\xDF \x80"), "Gr\xFC\xDF \x80");
}

TEST(SystemText, AByteWithoutACharacterIsRefused) {
    EXPECT_EQ(fromSystemText("a\x81"), std::nullopt);
}

}  // namespace
}  // namespace velmora
