#include "link/trace_categories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using testing::ElementsAre;

std::vector<std::string> namesOf(const TraceCategories& categories) {
    std::vector<std::string> names;
    for (const TraceCategories::Entry& entry : categories.entries()) {
        names.push_back(entry.name);
    }
    return names;
}

TEST(TraceCategoriesTest, DataIsTheSecondAndErrorTheThirdHoweverTheyAreMet) {
    TraceCategories categories(true);
    EXPECT_EQ(categories.meet("ERROR"), 2U);
    EXPECT_EQ(categories.meet("COM"), 0U);
    EXPECT_EQ(categories.meet("PLP"), 3U);
    EXPECT_EQ(categories.meet("DATA"), 1U);
    EXPECT_EQ(categories.meet("STATE"), 4U);
    EXPECT_THAT(namesOf(categories), ElementsAre("COM", "DATA", "ERROR", "PLP", "STATE"));
}

TEST(TraceCategoriesTest, PlacesOfDataAndErrorStayFreeForThem) {
    TraceCategories categories(false);
    categories.meet("PLP");
    categories.meet("EVENT");
    EXPECT_THAT(namesOf(categories), ElementsAre("PLP", "", "", "EVENT"));
}

TEST(TraceCategoriesTest, ACategoryIsMetOnceWhateverItsCase) {
    TraceCategories categories(false);
    const std::size_t place = categories.meet("plp");
    EXPECT_EQ(categories.meet("PLP"), place);
    EXPECT_EQ(categories.entries()[place].name, "PLP");
}

TEST(TraceCategoriesTest, NewCategoriesBeginAsTold) {
    EXPECT_TRUE(TraceCategories(true).enabled("DATA"));
    EXPECT_FALSE(TraceCategories(false).enabled("DATA"));
}

TEST(TraceCategoriesTest, ASwitchHoldsWhenTheCategoryIsMetAgain) {
    TraceCategories categories(true);
    categories.enable("COM", false);
    EXPECT_FALSE(categories.enabled("com"));
    categories.enable(0, true);
    EXPECT_TRUE(categories.enabled("COM"));
}

}  // namespace
}  // namespace velmora
