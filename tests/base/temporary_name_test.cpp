#include "base/temporary_name.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(TemporaryNameTest, NamesAreKnownAgain) {
    EXPECT_EQ(temporaryName(0), ".velmora-000000.tmp");
    EXPECT_EQ(temporaryName(0xAB12CDEF), ".velmora-12cdef.tmp");
    EXPECT_TRUE(isTemporaryName(temporaryName(123'456)));
    EXPECT_TRUE(isTemporaryName(".velmora-aZ09xY.tmp"));
}

TEST(TemporaryNameTest, NamesOfTheUserAreNot) {
    for (const char* name : {"", ".tmp", "velmora-aaaaaa.tmp", ".velmora-aaaaa.tmp", ".velmora-aaaaaaa.tmp",
                             ".velmora-aaaaaa.TMP", ".velmora-aaaaaa.tmp~", ".velmora-notes!.tmp",
                             ".velmora-aaaaaa", "x.velmora-aaaaaa.tmp"}) {
        EXPECT_FALSE(isTemporaryName(name)) << name;
    }
}

}  // namespace
}  // namespace velmora
