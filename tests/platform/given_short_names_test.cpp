#include "platform/given_short_names.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using testing::ElementsAre;

class GivenShortNamesTest : public testing::Test {
  protected:
    GivenShortNames given;
};

TEST_F(GivenShortNamesTest, StayWhenAFileComesBeforeTheirs) {
    EXPECT_THAT(given.give("a", {"Longer b", "Longer c"}), ElementsAre("LONGER~1", "LONGER~2"));
    EXPECT_THAT(given.give("a", {"Longer a", "Longer b", "Longer c"}),
                ElementsAre("LONGER~3", "LONGER~1", "LONGER~2"));
    EXPECT_EQ(given.nameOf("a", "longer~2"), "Longer c");
}

TEST_F(GivenShortNamesTest, AreNoOtherFilesOnceTheirOwnIsGone) {
    given.give("a", {"Longer b", "Longer c"});
    EXPECT_THAT(given.give("a", {"Longer c", "Longer d"}), ElementsAre("LONGER~2", "LONGER~3"));
    EXPECT_EQ(given.nameOf("a", "LONGER~1"), "Longer b");
    EXPECT_THAT(given.give("a", {"Longer b"}), ElementsAre("LONGER~1")) << "when it comes back";
}

TEST_F(GivenShortNamesTest, KeepOffAFileThatIsCalledSo) {
    given.give("a", {"Longer b"});
    EXPECT_THAT(given.give("a", {"Longer b", "Longer~1"}), ElementsAre("LONGER~1", "LONGER~2"));
    EXPECT_EQ(given.nameOf("a", "LONGER~1"), "Longer b");
}

TEST_F(GivenShortNamesTest, KeepOffAFileForWhichTheFileSystemKeepsOne) {
    EXPECT_THAT(given.give("a", {"Longer b"}, {"LONGER~1"}), ElementsAre("LONGER~1"));
    EXPECT_THAT(given.give("a", {"Longer c"}, {"LONGER~1"}), ElementsAre("LONGER~2"));
    EXPECT_THAT(given.give("a", {"Longer b"}, {"LO4711~1"}), ElementsAre("LONGER~1"));
}

TEST_F(GivenShortNamesTest, AFilesOwnNameWithATildeStaysItsTooWhenItIsGone) {
    EXPECT_THAT(given.give("a", {"longer~1"}), ElementsAre("LONGER~1"));
    EXPECT_THAT(given.give("a", {"Longer b"}), ElementsAre("LONGER~2"));
    EXPECT_EQ(given.nameOf("a", "LONGER~1"), "longer~1");
}

TEST_F(GivenShortNamesTest, NamesThatCouldNotBeMadeUpAreFree) {
    EXPECT_THAT(given.give("a", {"memo.txt"}), ElementsAre("MEMO.TXT"));
    EXPECT_EQ(given.nameOf("a", "MEMO.TXT"), std::nullopt);
    EXPECT_THAT(given.give("a", {"Memo.txt"}), ElementsAre("MEMO.TXT"));
}

TEST_F(GivenShortNamesTest, EachFolderHasItsOwn) {
    given.give("a", {"Longer b"});
    EXPECT_EQ(given.nameOf("c", "LONGER~1"), std::nullopt);
    EXPECT_THAT(given.give("c", {"Longer d"}), ElementsAre("LONGER~1"));
    EXPECT_EQ(given.nameOf("a", "LONGER~1"), "Longer b");
}

}  // namespace
}  // namespace velmora
