#include "ui/dropped_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "services/tools.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/simple_names.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Fate = DroppedFile::Fate;

struct NameCase {
    const char* name;
    const char* given;
    const char* typable;
};

class TypableName : public testing::TestWithParam<NameCase> {};

TEST_P(TypableName, IsTheNearestThatAnOrganiserCanType) {
    EXPECT_EQ(typableName(GetParam().given), GetParam().typable);
}

INSTANTIATE_TEST_SUITE_P(
    All, TypableName,
    testing::Values(NameCase{"Plain", "Memo.odb", "Memo.odb"}, NameCase{"NoExtension", "MEMO", "MEMO"},
                    NameCase{"EightLetters", "Contacts.csv", "Contacts.csv"},
                    NameCase{"TooLong", "Contacts2026.csv", "Contacts.csv"},
                    NameCase{"Signs", "my notes_(1)-x.txt", "mynotes1.txt"},
                    NameCase{"Accents", "M\xFCnch\xE9n.txt", "Munchen.txt"},
                    NameCase{"NoLetterWithoutAccent", "a\xD7\xF7z.txt", "az.txt"},
                    NameCase{"DigitFirst", "2026 diary.odb", "F2026dia.odb"},
                    NameCase{"EightDigits", "20261122.odb", "F2026112.odb"},
                    NameCase{"NothingLeft", "???.txt", "F.txt"}, NameCase{"OnlyAnExtension", ".odb", "F.odb"},
                    NameCase{"SeveralDots", "a.b.c.txt", "abc.txt"},
                    NameCase{"LongExtension", "page.xhtml", "page.xhtm"},
                    NameCase{"BlockFile", "Diary.ob10", "Diary.ob10"},
                    NameCase{"DotAtTheEnd", "Memo.", "Memo"}, NameCase{"Empty", "", "F"}),
    [](const auto& row) { return row.param.name; });

class DroppedFilesTest : public testing::Test {
  protected:
    DroppedFilesTest() {
        files.addFolder("/psion");
        transfer.DownloadPath = "/psion";
    }
    DroppedFile copy(const std::string& path) { return copyAll({path}).front(); }
    std::vector<DroppedFile> copyAll(const std::vector<std::string>& paths) {
        return dropped.copy(paths, [this](const DroppedFiles::Question& question) {
            asked.push_back(question);
            return answer;
        });
    }

    test::MemoryFiles files;
    test::FailingFiles failing{files};
    test::SimplePathRules rules;
    TransferSettings transfer;
    Tools names{files, rules, transfer};
    std::vector<std::string> keptEarlier;
    NameTaken answer = NameTaken::Skip;
    std::vector<DroppedFiles::Question> asked;
    DroppedFiles dropped{failing, rules, names,
                         [this](const std::string& path) { keptEarlier.push_back(path); }};
};

TEST_F(DroppedFilesTest, AFileIsCopiedUnderItsName) {
    files.addFile("/home/Memo.odb", std::string("a\0b", 3));
    const DroppedFile result = copy("/home/Memo.odb");
    EXPECT_EQ(result.fate, Fate::Copied);
    EXPECT_EQ(result.path, "/psion/Memo.odb");
    EXPECT_FALSE(result.renamed);
    EXPECT_EQ(files.content("/psion/Memo.odb"), std::string("a\0b", 3));
    EXPECT_EQ(files.content("/home/Memo.odb"), std::string("a\0b", 3));
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_THAT(keptEarlier, IsEmpty());
}

TEST_F(DroppedFilesTest, AnEmptyFileIsCopiedToo) {
    files.addFile("/home/Memo.odb");
    EXPECT_EQ(copy("/home/Memo.odb").fate, Fate::Copied);
    EXPECT_EQ(files.content("/psion/Memo.odb"), "");
}

TEST_F(DroppedFilesTest, ANameInCapitalsIsWrittenAsTheOrganisersAre) {
    files.addFile("/home/MEMO.ODB", "text");
    const DroppedFile result = copy("/home/MEMO.ODB");
    EXPECT_EQ(result.path, "/psion/Memo.odb");
    EXPECT_FALSE(result.renamed);
}

TEST_F(DroppedFilesTest, ANameThatCannotBeTypedIsChangedAndTold) {
    files.addFile("/home/my notes.txt", "text");
    const DroppedFile result = copy("/home/my notes.txt");
    EXPECT_EQ(result.path, "/psion/mynotes.txt");
    EXPECT_TRUE(result.renamed);
}

TEST_F(DroppedFilesTest, ACharacterThatTheOrganiserHasNotIsLeftOut) {
    files.addFile("/home/\xE6\x97\xA5Memo.txt", "text");
    EXPECT_EQ(copy("/home/\xE6\x97\xA5Memo.txt").path, "/psion/Memo.txt");
}

TEST_F(DroppedFilesTest, WhatHasTheNameStaysWhenItIsSkipped) {
    files.addFile("/home/memo.odb", "new");
    files.addFile("/psion/Memo.odb", "old");
    EXPECT_EQ(copy("/home/memo.odb").fate, Fate::Skipped);
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].taken, "/psion/Memo.odb");
    EXPECT_EQ(asked[0].other, "memo2.odb");
    EXPECT_FALSE(asked[0].more);
    EXPECT_EQ(files.content("/psion/Memo.odb"), "old");
    EXPECT_THAT(files.paths(), ElementsAre("/home/memo.odb", "/psion/Memo.odb"));
}

TEST_F(DroppedFilesTest, AReplacedFileKeepsItsLettersAndAnEarlierCopy) {
    files.addFile("/home/memo.odb", "new");
    files.addFile("/psion/Memo.ODB", "old");
    answer = NameTaken::Replace;
    EXPECT_EQ(copy("/home/memo.odb").fate, Fate::Copied);
    EXPECT_THAT(keptEarlier, ElementsAre("/psion/Memo.ODB"));
    EXPECT_THAT(files.paths(), ElementsAre("/home/memo.odb", "/psion/Memo.ODB"));
    EXPECT_EQ(files.content("/psion/Memo.ODB"), "new");
}

TEST_F(DroppedFilesTest, AnotherNameIsTheFirstThatIsFree) {
    files.addFile("/home/Contacts.odb", "new");
    files.addFile("/psion/Contacts.odb", "old");
    files.addFile("/psion/Contact2.odb", "old");
    files.addFolder("/psion/Contact3.odb");
    answer = NameTaken::OtherName;
    const DroppedFile result = copy("/home/Contacts.odb");
    EXPECT_EQ(result.path, "/psion/Contact4.odb");
    EXPECT_TRUE(result.renamed);
    EXPECT_EQ(files.content("/psion/Contact4.odb"), "new");
    EXPECT_EQ(files.content("/psion/Contacts.odb"), "old");
    EXPECT_THAT(keptEarlier, IsEmpty());
}

TEST_F(DroppedFilesTest, AFolderOfThatNameIsNotAskedAbout) {
    files.addFile("/home/Memo", "new");
    files.addFolder("/psion/Memo");
    EXPECT_EQ(copy("/home/Memo").path, "/psion/Memo2");
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(DroppedFilesTest, AFileOfTheFolderItselfIsLeftAlone) {
    files.addFile("/psion/Memo.odb", "old");
    EXPECT_EQ(copy("/psion/Memo.odb").fate, Fate::AlreadyThere);
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(files.content("/psion/Memo.odb"), "old");
}

TEST_F(DroppedFilesTest, AFolderIsNotCopied) {
    files.addFolder("/home/things");
    EXPECT_EQ(copy("/home/things").fate, Fate::Folder);
    EXPECT_THAT(files.paths(), IsEmpty());
}

TEST_F(DroppedFilesTest, AFileThatIsTooLargeIsNotCopied) {
    files.addFile("/home/Fits", std::string(DroppedFiles::kLargestFile, 'x'));
    files.addFile("/home/Film", std::string(DroppedFiles::kLargestFile + 1, 'x'));
    EXPECT_EQ(copy("/home/Film").fate, Fate::TooLarge);
    EXPECT_EQ(copy("/home/Fits").fate, Fate::Copied);
    EXPECT_FALSE(files.fileExists("/psion/Film"));
}

TEST_F(DroppedFilesTest, WithoutTheFolderNothingIsCopied) {
    files.addFile("/home/Memo.odb");
    transfer.DownloadPath = "/gone";
    EXPECT_EQ(copy("/home/Memo.odb").fate, Fate::NoPlace);
}

TEST_F(DroppedFilesTest, WhatIsGoneIsToldAndTheOthersAreCopied) {
    files.addFile("/home/Memo.odb", "text");
    const std::vector<DroppedFile> results = copyAll({"/home/gone", "/home/Memo.odb"});
    EXPECT_EQ(results[0].fate, Fate::Failed);
    EXPECT_THAT(results[0].why, testing::HasSubstr("File not found"));
    EXPECT_EQ(results[1].fate, Fate::Copied);
}

TEST_F(DroppedFilesTest, SkippingAllAsksNoMore) {
    for (const char* name : {"A.txt", "B.txt", "C.txt"}) {
        files.addFile(std::string("/home/") + name, "new");
        files.addFile(std::string("/psion/") + name, "old");
    }
    answer = NameTaken::SkipAll;
    const std::vector<DroppedFile> results = copyAll({"/home/A.txt", "/home/B.txt", "/home/C.txt"});
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_TRUE(asked[0].more);
    for (const DroppedFile& result : results) {
        EXPECT_EQ(result.fate, Fate::Skipped);
    }
}

TEST_F(DroppedFilesTest, AFullDiskLeavesWhatWasThereAndNothingElse) {
    files.addFile("/home/Memo.odb", "new");
    files.addFile("/psion/Memo.odb", "old");
    answer = NameTaken::Replace;
    for (const test::FileCall call : {test::FileCall::CreateTemporary, test::FileCall::Write,
                                      test::FileCall::Close, test::FileCall::Replace}) {
        failing.failAtCall(call, 1, ErrorNumber::DiskFull);
        const DroppedFile result = copy("/home/Memo.odb");
        EXPECT_EQ(result.fate, Fate::Failed);
        EXPECT_THAT(result.why, testing::HasSubstr("Disk full"));
        EXPECT_EQ(files.content("/psion/Memo.odb"), "old");
        EXPECT_EQ(files.paths().size(), 2U);
    }
}

TEST_F(DroppedFilesTest, WhatCannotBeReadIsTold) {
    files.addFile("/home/Memo.odb", "new");
    failing.failAtCall(test::FileCall::Read, 1, ErrorNumber::DeviceIoError);
    EXPECT_EQ(copy("/home/Memo.odb").fate, Fate::Failed);
    EXPECT_FALSE(files.fileExists("/psion/Memo.odb"));
}

/// Names of which a system keeps one for a device.
class ReservedNames : public FileNameMapper {
  public:
    std::string map_FileName(std::string_view name, bool, bool) const override {
        return name == "CON.txt" ? std::string() : "/psion/" + std::string(name);
    }
    std::string displayName(const std::string&) const override { return "CON.txt"; }
};

TEST_F(DroppedFilesTest, ANameThatTheSystemKeepsForADeviceIsChanged) {
    files.addFile("/home/CON.txt", "text");
    const ReservedNames reserved;
    DroppedFiles there(files, rules, reserved, [](const std::string&) {});
    const auto results = there.copy({"/home/CON.txt"}, [](const auto&) { return NameTaken::Skip; });
    EXPECT_EQ(results[0].fate, Fate::Copied);
    EXPECT_EQ(results[0].path, "/psion/FCON.txt");
}

}  // namespace
}  // namespace velmora
