#include <gtest/gtest.h>

#include "base/system_text.h"

namespace velmora {
namespace {

TEST(SystemText, IsUtf8) {
    EXPECT_EQ(toSystemText("Gr\xFC\xDF \x80\x81"), "Gr\xC3\xBC\xC3\x9F \xE2\x82\xAC\xEF\xBF\xBD");
    EXPECT_EQ(fromSystemText("Gr\xC3\xBC\xC3\x9F"), "Gr\xFC\xDF");
}

TEST(SystemText, WhatIsNoUtf8OrHasNoByteIsRefused) {
    EXPECT_EQ(fromSystemText("Gr\xFC"), std::nullopt);
    EXPECT_EQ(fromSystemText("\xE4\xB8\xAD"), std::nullopt);
}

TEST(SystemText, IsShownAsFarAsItCanBe) {
    EXPECT_EQ(shownText("Gr\xC3\xBC\xC3\x9F"), "Gr\xFC\xDF");
    EXPECT_EQ(shownText("a\xE4\xB8\xAD"
                        "b"),
              "a???b");
    EXPECT_EQ(shownText("Gr\xFC"), "Gr?");
}

TEST(SystemText, Utf8IsTheSystemsText) {
    EXPECT_EQ(systemTextOfUtf8("Gr\xC3\xBC\xC3\x9F"), "Gr\xC3\xBC\xC3\x9F");
}

}  // namespace
}  // namespace velmora
