#include "services/strings.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(BuiltInTexts, EveryStateHasItsTwoLines) {
    const std::array<DisplayText, Strings::kDisplayCount> expected = {
        {{"Please set PROTOCOL to PSION in organiser menu COMMS-SETUP...  ", "and click Start!"},
         {"No port selected", "The server could not find a free serial port!"},
         {"", ""},
         {"Server was stopped by Organiser!", "Click Start!"},
         {"Server Offline", "Click Start!"},
         {"Waiting for link", " "},
         {"", "Connecting..."},
         {"Accessing file", ""},
         {" Uploading file", ""},
         {"Downloading file", ""},
         {"Sending", "directory"},
         {"Sending", "menu"},
         {"Sending code", ""},
         {"", ""},
         {"", "Waiting for link"}}};
    const Strings texts;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(texts.DisplayStrings[i].line1, expected[i].line1) << i;
        EXPECT_EQ(texts.DisplayStrings[i].line2, expected[i].line2) << i;
    }
}

TEST(BuiltInTexts, EveryPortThatCannotBeUsedHasItsReason) {
    const std::array<std::string, 7> expected = {"",
                                                 "",
                                                 "is used by a modem!",
                                                 "is used by a device!",
                                                 "is in use by another application!",
                                                 "is not accessible!",
                                                 "open error!"};
    EXPECT_EQ(Strings().PortStatus, expected);
}

}  // namespace
}  // namespace velmora
