#include "base/run_time_error.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(RunTimeError, CarriesNumberAndText) {
    const RunTimeError plain(ErrorNumber::DiskFull);
    EXPECT_EQ(plain.number(), 61);
    EXPECT_STREQ(plain.what(), "Disk full");
    const RunTimeError detailed(ErrorNumber::FileNotFound, "/tmp/none");
    EXPECT_EQ(detailed.errorNumber(), ErrorNumber::FileNotFound);
    EXPECT_STREQ(detailed.what(), "File not found: /tmp/none");
}

}  // namespace
}  // namespace velmora
