#include "transfers/earlier_copy_name.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr DateTime kMoment{2026, 3, 8, 4, 5, 9};

TEST(EarlierCopyName, HasTheFilesNameAndTheMoment) {
    EXPECT_EQ(earlierCopyName("Memo", "odb", kMoment, 1), "Memo (2026-03-08 04.05.09).odb");
    EXPECT_EQ(earlierCopyName("Memo", "", kMoment, 1), "Memo (2026-03-08 04.05.09)");
    EXPECT_EQ(earlierCopyName("Memo", "odb", kMoment, 2), "Memo (2026-03-08 04.05.09) (2).odb");
}

TEST(EarlierCopyName, GivesItsMomentBack) {
    for (const char* base : {"Memo", "a", "Memo (2)", "Memo (2025-01-02 03.04.05)", "a.b ("}) {
        for (const char* extension : {"odb", "", "x (y"}) {
            for (const int number : {1, 2, 17}) {
                const std::string name = earlierCopyName(base, extension, kMoment, number);
                EXPECT_EQ(momentOfEarlierCopy(name), kMoment) << name;
            }
        }
    }
}

TEST(EarlierCopyName, OtherNamesHaveNoMoment) {
    for (const char* name :
         {"", "Memo.odb", "Memo (2).odb", "Memo (2026-03-08).odb", " (2026-03-08 04.05.09).odb",
          "Memo (2026-03-08 04.05.09", "Memo(2026-03-08 04.05.09).odb", "Memo (2026-03-08 04:05:09).odb",
          "Memo (2026-03-08 04.05.09).odb.txt", "Memo (2026-03-08 04.05.09)x.odb",
          "Memo (2026-03-08 04.05.09) (x).odb", "Memo (2026-03-08 04.05.09) (2.odb",
          "Memo (2026-03-08 04.05.09) ().odb", "Memo (2026-02-30 04.05.09).odb",
          "Memo (2026-13-01 04.05.09).odb", "Memo (2026-03-08 24.05.09).odb",
          "Memo (2026-03-08 04.60.09).odb"}) {
        EXPECT_EQ(momentOfEarlierCopy(name), std::nullopt) << name;
    }
}

TEST(EarlierCopyName, TimesAreCountedOnTheCalendar) {
    EXPECT_EQ(timeBetween(kMoment, kMoment), 0s);
    EXPECT_EQ(timeBetween({2024, 2, 28, 0, 0, 0}, {2024, 3, 1, 0, 0, 1}), 48h + 1s);
    EXPECT_EQ(timeBetween({2026, 1, 1, 0, 0, 0}, {2025, 12, 31, 23, 59, 0}), -60s);
}

}  // namespace
}  // namespace velmora
