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

TEST(SystemText, Utf8IsTakenAsFarAsTheCodePageHasIt) {
    EXPECT_EQ(systemTextOfUtf8("Gr\xC3\xBC\xC3\x9F"), "Gr\xFC\xDF");
    EXPECT_EQ(systemTextOfUtf8("\xE4\xB8\xAD"), "");
}

}  // namespace
}  // namespace velmora
