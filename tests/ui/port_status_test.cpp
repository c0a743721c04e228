#include "ui/port_status.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct Row {
    const char* name;
    std::int32_t status;
    const char* toolTip;
    Colour colour;
};

class Mark : public testing::TestWithParam<Row> {};

TEST_P(Mark, HasItsTextAndColour) {
    EXPECT_EQ(portMark("1", GetParam().status).toolTip, GetParam().toolTip);
    EXPECT_EQ(portMark("1", GetParam().status).colour, GetParam().colour);
}

INSTANTIATE_TEST_SUITE_P(Statuses, Mark,
                         testing::Values(Row{"Available", 1, "COM1 is available", {0, 128, 0}},
                                         Row{"Modem", 2, "COM1 is used (modem)", {255, 128, 0}},
                                         Row{"Device", 3, "COM1 is used (device)", {255, 128, 0}},
                                         Row{"InUse", 4, "COM1 is in use", {255, 0, 0}},
                                         Row{"NotAccessible", 5, "COM1 is not accessible", {192, 0, 0}},
                                         Row{"Error", 6, "COM1 reports error", {255, 0, 0}},
                                         Row{"NotChecked", 0, "", {0, 0, 0}},
                                         Row{"Unknown", 7, "", {0, 0, 0}},
                                         Row{"Negative", -1, "", {0, 0, 0}}),
                         [](const auto& row) { return row.param.name; });

TEST(PortMark, ShowsTheNumberItIsGiven) {
    EXPECT_EQ(portMark("17", kStatusInUse).toolTip, "COM17 is in use");
}

}  // namespace
}  // namespace velmora
