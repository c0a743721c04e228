#include "services/folder_listing.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/simple_names.h"

namespace velmora {
namespace {

class FolderListingTest : public testing::Test {
  protected:
    FolderListingTest() { memory.addFolder("/psion"); }
    void addFile(const std::string& name, const std::string& shortName) {
        memory.addFile("/psion/" + name);
        memory.setShortName("/psion/" + name, shortName);
    }
    std::string list(const std::string& pattern, ListedNames kind) {
        const auto listing = files.open("/tmp/listing", OpenMode::Create);
        writeFolderListing(files, rules, "/psion/" + pattern, kind, *listing);
        return memory.content("/tmp/listing");
    }
    std::string shortNames(const std::string& pattern) { return list(pattern, ListedNames::Short); }
    std::string longNames(const std::string& pattern) { return list(pattern, ListedNames::Long); }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    test::SimplePathRules rules;
};

TEST_F(FolderListingTest, ShortNamesHaveAGreaterSignForTheTilde) {
    addFile("Long name.odb", "LONGNA~1.ODB");
    addFile("Memo.odb", "MEMO.ODB");
    EXPECT_EQ(shortNames("*"), "LONGNA>1.ODB\r\nMEMO.ODB\r\n");
}

TEST_F(FolderListingTest, LongNamesAreListedAsStored) {
    addFile("Long name.odb", "LONGNA~1.ODB");
    addFile("Memo.odb", "MEMO.ODB");
    EXPECT_EQ(longNames("*"), "Long name.odb\r\nMemo.odb\r\n");
}

TEST_F(FolderListingTest, ALongNameInCapitalsIsListedAsStored) {
    addFile("LONGER WORD.ODB", "LONGER~1.ODB");
    EXPECT_EQ(longNames("*"), "LONGER WORD.ODB\r\n");
}

TEST_F(FolderListingTest, PatternsMatchInCapitals) {
    addFile("Memo.odb", "MEMO.ODB");
    addFile("note.txt", "NOTE.TXT");
    EXPECT_EQ(longNames("*.odb"), "Memo.odb\r\n");
    EXPECT_EQ(longNames("N?te.*"), "note.txt\r\n");
    EXPECT_EQ(longNames("[a-m]*"), "Memo.odb\r\n");
    EXPECT_EQ(longNames("[!m]*"), "note.txt\r\n");
    EXPECT_EQ(shortNames("*.odb"), "MEMO.ODB\r\n");
}

TEST_F(FolderListingTest, AFileWhoseLongNameAloneMatchesIsListedByIt) {
    addFile("Shopping list.odb", "SHOPPI~1.ODB");
    EXPECT_EQ(shortNames("Shopping*"), "Shopping list.odb\r\n");
    EXPECT_EQ(shortNames("SHOPPI~*"), "SHOPPI>1.ODB\r\n");
    EXPECT_EQ(shortNames("x*"), "");
}

TEST_F(FolderListingTest, AccentedNamesAreListedInWindows1252) {
    addFile("Caf\xC3\xA9.txt", "CAF~1.TXT");
    EXPECT_EQ(longNames("caf\xC3\xA9*"), "Caf\xE9.txt\r\n");
    EXPECT_EQ(longNames("CAF\xC3\x89*"), "Caf\xE9.txt\r\n");
}

TEST_F(FolderListingTest, ANameWithoutBytesIsListedByItsShortName) {
    addFile("\xE6\x97\xA5.txt", "_~1.TXT");
    addFile("Memo.odb", "MEMO.ODB");
    EXPECT_EQ(longNames("*"), "Memo.odb\r\n_>1.TXT\r\n");
    EXPECT_EQ(longNames("*.txt"), "_>1.TXT\r\n");
    EXPECT_EQ(shortNames("*.txt"), "_>1.TXT\r\n");
    EXPECT_EQ(longNames("m*"), "Memo.odb\r\n");
    EXPECT_EQ(shortNames("x*"), "");
}

TEST_F(FolderListingTest, ANameWithALineEndNeverBecomesTwoLines) {
    addFile("a\nb", "A_B~1");
    EXPECT_EQ(longNames("*"), "A_B>1\r\n");
    EXPECT_EQ(shortNames("*"), "A_B>1\r\n");
}

TEST_F(FolderListingTest, ANameThatWouldOpenAnotherFileIsListedByItsShortName) {
    addFile("per cent>", "PERCEN~1");
    addFile("what?.txt", "WHAT_~1.TXT");
    addFile("star*.txt", "STAR_~1.TXT");
    addFile("memo ", "MEMO~1");
    addFile("C:memo", "C_MEMO~1");
    EXPECT_EQ(longNames("*"), "C_MEMO>1\r\nMEMO>1\r\nPERCEN>1\r\nSTAR_>1.TXT\r\nWHAT_>1.TXT\r\n");
}

TEST_F(FolderListingTest, AFileListedByItsShortNameMatchesByEitherName) {
    addFile("Shopping list?.odb", "SHOPPI~1.ODB");
    for (const ListedNames kind : {ListedNames::Short, ListedNames::Long}) {
        EXPECT_EQ(list("*list*", kind), "SHOPPI>1.ODB\r\n");
        EXPECT_EQ(list("SHOPPI~*", kind), "SHOPPI>1.ODB\r\n");
        EXPECT_EQ(list("x*", kind), "");
    }
}

TEST_F(FolderListingTest, AFileThatNoNameOpensIsLeftOut) {
    addFile("what?", "C:");
    EXPECT_EQ(longNames("*"), "");
    EXPECT_EQ(shortNames("*"), "");
}

TEST_F(FolderListingTest, FoldersAreNotListed) {
    memory.addFolder("/psion/Sub");
    memory.addFile("/psion/Sub/inside.txt");
    EXPECT_EQ(longNames("*"), "");
}

TEST_F(FolderListingTest, ManyFilesAreWrittenInBatches) {
    std::string expected;
    for (int i = 10'000; i < 20'000; ++i) {
        memory.addFile("/psion/f" + std::to_string(i));
        expected += "f" + std::to_string(i) + "\r\n";
    }
    EXPECT_EQ(longNames("f*"), expected);
    EXPECT_LT(files.calls(test::FileCall::Write), 10);
    EXPECT_GT(files.calls(test::FileCall::Write), 1);
}

TEST_F(FolderListingTest, AFolderThatIsGoneIsAFailure) {
    const auto listing = files.open("/tmp/listing", OpenMode::Create);
    EXPECT_THROW(writeFolderListing(files, rules, "/gone/*", ListedNames::Long, *listing), RunTimeError);
}

}  // namespace
}  // namespace velmora
