#include "base/profile_name.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

TEST(ProfileName, IsWhatEachSystemTakesInTheNameOfAFile) {
    for (const char* name : {"attic", "Second one", "LZ64 no. 2", "B\xC3\xBCro", "a", ".x"}) {
        EXPECT_TRUE(isProfileName(name)) << name;
    }
    EXPECT_TRUE(isProfileName(std::string(64, 'x')));
}

TEST(ProfileName, LeadsToNoOtherFolderAndNoDevice) {
    for (const char* name : {"", ".", "..", "../x", "a/b", "a\\b", "C:", "a*", "a?", "a\"b", "<a", "a>",
                             "a|b", " a", "a ", "a.", "a\nb", "a\x7F"}) {
        EXPECT_FALSE(isProfileName(name)) << name;
    }
    EXPECT_FALSE(isProfileName(std::string(65, 'x')));
    EXPECT_FALSE(isProfileName(std::string("a\0b", 3)));
}

TEST(ProfileName, StandsBehindTheUsualName) {
    EXPECT_EQ(profiledName("Velmora", "attic"), "Velmora-attic");
}

}  // namespace
}  // namespace velmora
