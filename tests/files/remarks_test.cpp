#include "files/remarks.h"

#include <gtest/gtest.h>

#include <sstream>

namespace velmora {
namespace {

TEST(Remarks, EachIsALineWithTheNameOfItsFile) {
    std::ostringstream err;
    Remarks remarks(err);
    const Tell ofFile = remarks.about("a.csv");
    const Tell ofInput = remarks.about("standard input");
    EXPECT_FALSE(remarks.any()) << "nothing was told yet";
    ofFile("it is cut off");
    ofInput("so is it");
    EXPECT_EQ(err.str(), "velmora-files: a.csv: it is cut off\nvelmora-files: standard input: so is it\n");
    EXPECT_TRUE(remarks.any());
}

}  // namespace
}  // namespace velmora
