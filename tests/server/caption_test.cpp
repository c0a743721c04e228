#include "server/caption.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Caption, CarriesBothTrimmedLinesWhileMinimised) {
    EXPECT_EQ(minimisedCaption({"  Server Offline ", " Click Start!"}),
              "Velmora - Server Offline Click Start!");
}

TEST(Caption, AnEmptyLineLeavesItsBlank) {
    EXPECT_EQ(minimisedCaption({"Waiting for link", " "}), "Velmora - Waiting for link ");
    EXPECT_EQ(minimisedCaption({"", "Connecting..."}), "Velmora -  Connecting...");
    EXPECT_EQ(minimisedCaption({"", ""}), "Velmora -  ");
}

}  // namespace
}  // namespace velmora
