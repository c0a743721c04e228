#include "base/moment_text.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

constexpr DateTime kEvening{2026, 3, 8, 19, 5, 7};

TEST(MomentTextTest, AMomentIsWrittenInTheFormAskedFor) {
    EXPECT_EQ(momentText(kEvening, kIsoForm), "2026-03-08T19:05:07Z");
    EXPECT_EQ(momentText(kEvening, "d.M. hh.mm"), "8.3. 19.05");
    EXPECT_EQ(momentText(kEvening, ""), "");
    EXPECT_EQ(momentText({12345, 11, 22, 1, 2, 3}, "yyyy (d)"), "12345 (22)");
}

TEST(MomentTextTest, WhatWasWrittenIsReadBack) {
    for (const char* form : {"yyyy-MM-ddThh:mm:ssZ", " (yyyy-MM-dd hh.mm.ss)", "yyyyMMddhhmmss"}) {
        EXPECT_EQ(momentIn(momentText(kEvening, form), form), kEvening) << form;
    }
}

TEST(MomentTextTest, WhatTheFormLacksIsThatOfANewMoment) {
    EXPECT_EQ(momentIn("1999", "yyyy"), (DateTime{1999, 1, 1, 0, 0, 0}));
}

TEST(MomentTextTest, AnyOtherTextIsNoMoment) {
    for (const char* text : {"", "2026-03-08T19:05:07", "2026-03-08T19:05:07ZZ", "2026-03-08 19:05:07Z",
                             "2026-03-08T19:05:0xZ", "2026-03-08T19:05:+7Z"}) {
        EXPECT_EQ(momentIn(text, kIsoForm), std::nullopt) << text;
    }
}

TEST(MomentTextTest, AMomentOnNoCalendarIsNone) {
    for (const char* text : {"2026-02-29T19:05:07Z", "2026-13-01T19:05:07Z", "2026-03-08T24:05:07Z",
                             "2026-03-08T19:60:07Z", "2026-03-08T19:05:60Z"}) {
        EXPECT_EQ(momentIn(text, kIsoForm), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace velmora
