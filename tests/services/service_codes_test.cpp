#include "services/service_codes.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ServiceCodes, EachHasItsReasonInWords) {
    EXPECT_STREQ(reasonOf(185), "record too long");
    EXPECT_STREQ(reasonOf(186), "disk full");
    EXPECT_STREQ(reasonOf(187), "file exists");
    EXPECT_STREQ(reasonOf(188), "not possible");
    EXPECT_STREQ(reasonOf(189), "no such file");
    EXPECT_STREQ(reasonOf(190), "invalid request");
    EXPECT_STREQ(reasonOf(199), "file in use");
    EXPECT_STREQ(reasonOf(238), "end of file");
}

TEST(ServiceCodes, AnyOtherIsNotPossible) {
    EXPECT_STREQ(reasonOf(1), "not possible");
}

}  // namespace
}  // namespace velmora
