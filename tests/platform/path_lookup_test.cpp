#include "platform/posix/path_lookup.h"

#include <gtest/gtest.h>

#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

TEST(SameLetters, IgnoreTheCaseOfWindows1252) {
    EXPECT_TRUE(sameLetters("Memo.TXT", "mEMO.txt"));
    EXPECT_TRUE(sameLetters("", ""));
    EXPECT_FALSE(sameLetters("Memo", "Mem"));
    EXPECT_FALSE(sameLetters("Memo", "Mema"));
    EXPECT_TRUE(sameLetters("\xC3\x84rger", "\xC3\xA4RGER"));
    EXPECT_TRUE(sameLetters("\xC5\xB8", "\xC3\xBF")) << "Y with diaeresis";
    EXPECT_FALSE(sameLetters("\xC3\x84", "Ax"));
}

TEST(SameLetters, AreThoseOfAsciiInOtherNames) {
    EXPECT_TRUE(
        sameLetters("\xE4\xB8\xAD"
                    "a",
                    "\xE4\xB8\xAD"
                    "A"));
    EXPECT_FALSE(sameLetters("\xCE\xB1", "\xCE\x91")) << "Greek alpha";
    EXPECT_FALSE(sameLetters("\xC4", "\xE4")) << "bytes that are not UTF-8 are no letters";
    EXPECT_TRUE(
        sameLetters("\xC4"
                    "a",
                    "\xC4"
                    "A"));
}

TEST(WithoutCase, IsSharedByNamesOfTheSameLettersOnly) {
    EXPECT_EQ(withoutCase("Memo.TXT"), withoutCase("mEMO.txt"));
    EXPECT_EQ(withoutCase("\xC3\x84rger"), withoutCase("\xC3\xA4RGER"));
    EXPECT_NE(withoutCase("Memo"), withoutCase("Mema"));
    EXPECT_NE(withoutCase("\xC3\x84"), withoutCase("\xC4")) << "a letter and a byte that is none";
    EXPECT_NE(withoutCase("\xCE\xB1"), withoutCase("\xCE\x91")) << "Greek alpha";
}

class PathLookupTest : public testing::Test {
  protected:
    test::TempFolder folder;
};

TEST_F(PathLookupTest, FindsTheExactNameThenTheFirstByCase) {
    folder.write("memo");
    folder.write("MEmo");
    folder.write("MeMO");
    EXPECT_EQ(findEntry(folder.path(), "memo"), "memo");
    EXPECT_EQ(findEntry(folder.path(), "MEMO"), "MEmo");
    EXPECT_FALSE(findEntry(folder.path(), "other"));
    EXPECT_FALSE(findEntry(folder.path("none"), "memo"));
}

TEST_F(PathLookupTest, AShortNameComesLast) {
    folder.write("Longer name");
    EXPECT_EQ(findEntry(folder.path(), "longer~1"), "Longer name");
    folder.write("Longer~1");
    EXPECT_EQ(findEntry(folder.path(), "longer~1"), "Longer~1");
    EXPECT_EQ(findEntry(folder.path(), "LONGER~2"), "Longer name");
}

TEST_F(PathLookupTest, KeepsAsWrittenWhatDoesNotExist) {
    folder.makeFolder("Sub");
    const FoundPath found = lookUpPath(folder.path("SUB/New/Deeper/File"));
    EXPECT_EQ(found.path, folder.path("Sub/New/Deeper/File"));
    EXPECT_FALSE(found.exists);
}

TEST_F(PathLookupTest, FollowsDotsAndDoubleSeparators) {
    folder.makeFolder("Sub");
    folder.write("File");
    const FoundPath found = lookUpPath(folder.path("SUB//.././FILE"));
    EXPECT_TRUE(found.exists);
    EXPECT_EQ(found.path, folder.path("Sub//.././File"));
}

TEST_F(PathLookupTest, RefusesWhatIsNoPath) {
    EXPECT_EQ(test::errorOf([] { lookUpPath(""); }), 64);
    EXPECT_EQ(test::errorOf([] { lookUpPath(std::string("/a\0b", 4)); }), 64);
}

}  // namespace
}  // namespace velmora
