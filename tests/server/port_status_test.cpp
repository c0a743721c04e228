#include "server/port_status.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct PortStatusRow {
    const char* name;
    std::int32_t status;
    const char* toolTip;
    Colour colour;
};

class Mark : public testing::TestWithParam<PortStatusRow> {};

TEST_P(Mark, HasItsTextAndColour) {
    EXPECT_EQ(portMark("1", GetParam().status).toolTip, GetParam().toolTip);
    EXPECT_EQ(portMark("1", GetParam().status).colour, GetParam().colour);
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, Mark,
    testing::Values(PortStatusRow{"Available", 1, "COM1 is available", {0, 128, 0}},
                    PortStatusRow{"Modem", 2, "COM1 is used (modem)", {255, 128, 0}},
                    PortStatusRow{"Device", 3, "COM1 is used (device)", {255, 128, 0}},
                    PortStatusRow{"InUse", 4, "COM1 is in use", {255, 0, 0}},
                    PortStatusRow{"NotAccessible", 5, "COM1 is not accessible", {192, 0, 0}},
                    PortStatusRow{"Error", 6, "COM1 reports error", {255, 0, 0}},
                    PortStatusRow{"NotChecked", 0, "", {0, 0, 0}}, PortStatusRow{"Unknown", 7, "", {0, 0, 0}},
                    PortStatusRow{"Negative", -1, "", {0, 0, 0}}),
    [](const auto& row) { return row.param.name; });

TEST(PortMark, ShowsTheNumberItIsGiven) {
    EXPECT_EQ(portMark("17", kStatusInUse).toolTip, "COM17 is in use");
}

}  // namespace
}  // namespace velmora
