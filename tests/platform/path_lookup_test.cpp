#include "platform/posix/path_lookup.h"

#include <gtest/gtest.h>

#include <filesystem>

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
    PathLookup lookup;
};

TEST_F(PathLookupTest, FindsTheExactNameThenTheFirstByCase) {
    folder.write("memo");
    folder.write("MEmo");
    folder.write("MeMO");
    EXPECT_EQ(lookup.findEntry(folder.path(), "memo"), "memo");
    EXPECT_EQ(lookup.findEntry(folder.path(), "MEMO"), "MEmo");
    EXPECT_FALSE(lookup.findEntry(folder.path(), "other"));
    EXPECT_FALSE(lookup.findEntry(folder.path("none"), "memo"));
}

TEST_F(PathLookupTest, AShortNameComesLast) {
    folder.write("Longer name");
    folder.write("Longer~1");
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~1"), "Longer~1");
    EXPECT_EQ(lookup.findEntry(folder.path(), "LONGER~2"), "Longer name");
}

TEST_F(PathLookupTest, AShortNameThatWasFoundOnceMeansItsFileForGood) {
    folder.write("Longer name");
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~1"), "Longer name");
    folder.write("Longer before");
    folder.write("LONGER~1");
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~1"), "Longer name")
        << "before one that differs by case";
    EXPECT_EQ(lookup.findEntry(folder.path(), "LONGER~1"), "LONGER~1") << "but the exact name is another's";
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~2"), "LONGER~1");
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~3"), "Longer before");
}

TEST_F(PathLookupTest, AShortNameIsNotPassedOnWhenItsFileIsGone) {
    const std::string path = folder.write("Longer name");
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~1"), "Longer name");
    std::filesystem::remove(path);
    folder.write("Longer before");
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~1"), "Longer name") << "to be made again";
    EXPECT_FALSE(lookup.lookUp(folder.path("longer~1")).exists);
    folder.write("longer NAME");
    EXPECT_EQ(lookup.findEntry(folder.path(), "longer~1"), "longer NAME") << "never a second by case";
}

TEST_F(PathLookupTest, AShortNameHoldsWhateverPathLeadsToItsFolder) {
    folder.makeFolder("Sub");
    folder.write("Sub/Longer name");
    std::filesystem::create_directory_symlink("Sub", folder.path("link"));
    EXPECT_EQ(lookup.lookUp(folder.path("Sub/longer~1")).path, folder.path("Sub/Longer name"));
    folder.write("Sub/Longer before");
    EXPECT_EQ(lookup.lookUp(folder.path("link/../SUB/longer~1")).path,
              folder.path("link/../Sub/Longer name"));
    EXPECT_EQ(lookup.lookUp(folder.path("link/longer~1")).path, folder.path("link/Longer name"));
}

TEST_F(PathLookupTest, TellsThePathOfAGivenShortNameOnly) {
    folder.write("Longer name");
    EXPECT_EQ(lookup.pathOfShortName(folder.path("Longer~1")), folder.path("Longer~1"));
    lookup.shortNames(folder.path(), {"Longer name"});
    EXPECT_EQ(lookup.pathOfShortName(folder.path("Longer~1")), folder.path("Longer name"));
    EXPECT_EQ(lookup.pathOfShortName(folder.path("none/Longer~1")), folder.path("none/Longer~1"));
}

TEST_F(PathLookupTest, KeepsAsWrittenWhatDoesNotExist) {
    folder.makeFolder("Sub");
    const FoundPath found = lookup.lookUp(folder.path("SUB/New/Deeper/File"));
    EXPECT_EQ(found.path, folder.path("Sub/New/Deeper/File"));
    EXPECT_FALSE(found.exists);
}

TEST_F(PathLookupTest, FollowsDotsAndDoubleSeparators) {
    folder.makeFolder("Sub");
    folder.write("File");
    const FoundPath found = lookup.lookUp(folder.path("SUB//.././FILE"));
    EXPECT_TRUE(found.exists);
    EXPECT_EQ(found.path, folder.path("Sub//.././File"));
}

TEST_F(PathLookupTest, RefusesWhatIsNoPath) {
    EXPECT_EQ(test::errorOf([&] { lookup.lookUp(""); }), 64);
    EXPECT_EQ(test::errorOf([&] { lookup.lookUp(std::string("/a\0b", 4)); }), 64);
}

}  // namespace
}  // namespace velmora
