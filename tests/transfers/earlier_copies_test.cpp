#include "transfers/earlier_copies.h"

#include <gtest/gtest.h>

#include "support/failing_files.h"
#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/recording_trace.h"
#include "support/recording_window.h"
#include "support/simple_names.h"

namespace velmora {
namespace {

using test::FileCall;

class EarlierCopiesTest : public testing::Test {
  protected:
    EarlierCopiesTest() { time.local = {2026, 3, 8, 4, 5, 9}; }
    void TearDown() override { EXPECT_EQ(memory.openFiles(), 0); }

    std::string keep(const std::string& name = "Memo.odb") { return copies.keep("/psion/" + name); }
    void add(const std::string& bytes, const std::string& name = "Memo.odb") {
        memory.addFile("/psion/" + name, bytes);
    }
    void addCopy(const std::string& name) { memory.addFile("/data/copies/" + name, "x"); }
    bool copyExists(const std::string& name) { return memory.fileExists("/data/copies/" + name); }
    /// What keep() throws; 0 when nothing.
    int errorOfKeep() {
        try {
            keep();
        } catch (const RunTimeError& error) {
            return error.number();
        }
        return 0;
    }
    void expectNoCopies() {
        for (const std::string& path : memory.paths()) {
            EXPECT_NE(rules.parentFolder(path), "/data/copies") << path;
        }
    }
    void expectNothingTold() {
        EXPECT_TRUE(window.reports.empty());
        EXPECT_TRUE(window.warnings.empty());
    }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    test::SimplePathRules rules;
    test::FakeTime time;
    test::RecordingWindow window;
    test::RecordingTrace trace;
    TransferLog log{window, trace, rules};
    EarlierCopiesSettings settings{"/data/copies"};
    EarlierCopies copies{files, rules, time, log, settings};
};

TEST_F(EarlierCopiesTest, ACopyHasTheNameTheMomentAndEveryByte) {
    std::string bytes;
    for (int i = 0; i < 200'000; ++i) {
        bytes += static_cast<char>(i * 31);
    }
    add(bytes);
    const std::string copy = keep();
    EXPECT_EQ(copy, "/data/copies/Memo (2026-03-08 04.05.09).odb");
    EXPECT_EQ(memory.content(copy), bytes);
    EXPECT_EQ(memory.content("/psion/Memo.odb"), bytes);
    expectNothingTold();
}

TEST_F(EarlierCopiesTest, ACopyIsOnTheDiskBeforeTheFileIsReplaced) {
    add("x");
    keep();
    EXPECT_EQ(files.calls(FileCall::Flush), 1);
}

TEST_F(EarlierCopiesTest, TheFolderIsTheUsersAlone) {
    add("x");
    keep();
    EXPECT_EQ(memory.folderRights("/data/copies"), FolderRights::OwnerOnly);
}

TEST_F(EarlierCopiesTest, CopiesOfOneSecondStandSideBySide) {
    for (const char* bytes : {"one", "two", "three"}) {
        add(bytes);
        keep();
    }
    EXPECT_EQ(memory.content("/data/copies/Memo (2026-03-08 04.05.09).odb"), "one");
    EXPECT_EQ(memory.content("/data/copies/Memo (2026-03-08 04.05.09) (2).odb"), "two");
    EXPECT_EQ(memory.content("/data/copies/Memo (2026-03-08 04.05.09) (3).odb"), "three");
}

TEST_F(EarlierCopiesTest, ACopyHasTheLettersOfTheFile) {
    add("x", "MEMO.Odb");
    EXPECT_EQ(keep("memo.odb"), "/data/copies/MEMO (2026-03-08 04.05.09).Odb");
}

TEST_F(EarlierCopiesTest, NothingIsKeptOfNothing) {
    EXPECT_EQ(keep("None.odb"), "");
    add("");
    EXPECT_EQ(keep(), "");
    EXPECT_FALSE(memory.folderExists("/data/copies"));
    expectNothingTold();
}

TEST_F(EarlierCopiesTest, NoneAreKeptForNoDays) {
    settings.days = 0;
    add("x");
    addCopy("Memo (2001-01-01 00.00.00).odb");
    EXPECT_EQ(keep(), "");
    EXPECT_EQ(memory.paths().size(), 2U) << "and none are removed";
}

// Their time.

TEST_F(EarlierCopiesTest, CopiesAreRemovedWhenTheirTimeIsOver) {
    addCopy("Old (2026-02-06 04.05.08).odb");
    addCopy("Old (2026-02-06 04.05.08) (2).odb");
    addCopy("Young (2026-02-06 04.05.09).odb");
    addCopy("Ahead (2026-12-31 00.00.00).odb");
    copies.removeExpired();
    EXPECT_FALSE(copyExists("Old (2026-02-06 04.05.08).odb"));
    EXPECT_FALSE(copyExists("Old (2026-02-06 04.05.08) (2).odb"));
    EXPECT_TRUE(copyExists("Young (2026-02-06 04.05.09).odb"));
    EXPECT_TRUE(copyExists("Ahead (2026-12-31 00.00.00).odb"));
}

TEST_F(EarlierCopiesTest, KeepingRemovesWhatIsOld) {
    addCopy("Old (2026-02-06 04.05.08).odb");
    add("x");
    keep();
    EXPECT_FALSE(copyExists("Old (2026-02-06 04.05.08).odb"));
}

TEST_F(EarlierCopiesTest, TheDaysAreThoseOfTheSettings) {
    settings.days = 400;
    addCopy("Old (2026-02-06 04.05.08).odb");
    copies.removeExpired();
    EXPECT_TRUE(copyExists("Old (2026-02-06 04.05.08).odb"));
    settings.days = 1;
    copies.removeExpired();
    EXPECT_FALSE(copyExists("Old (2026-02-06 04.05.08).odb"));
}

TEST_F(EarlierCopiesTest, FilesThatAreNoCopiesAreLeftAlone) {
    addCopy("Memo.odb");
    addCopy("Letter (2001-01-01).txt");
    copies.removeExpired();
    EXPECT_EQ(memory.paths().size(), 2U);
}

TEST_F(EarlierCopiesTest, WhatCannotBeRemovedIsLeft) {
    addCopy("A (2001-01-01 00.00.00).odb");
    addCopy("B (2001-01-01 00.00.00).odb");
    files.failAtCall(FileCall::Delete, 1, ErrorNumber::PermissionDenied);
    copies.removeExpired();
    EXPECT_EQ(memory.paths().size(), 1U);
    files.failAtCall(FileCall::List, 1, ErrorNumber::PathFileAccess);
    EXPECT_NO_THROW(copies.removeExpired());
    expectNothingTold();
}

// Failures.

TEST_F(EarlierCopiesTest, NoRoomForACopyIsAFullDiskAndLeavesNoPart) {
    add(std::string(200'000, 'x'));
    files.failAfterBytes(100'000, ErrorNumber::DiskFull);
    EXPECT_EQ(errorOfKeep(), 61);
    expectNoCopies();
    files.healthy();
    files.failAtCall(FileCall::CreateFolder, 1, ErrorNumber::DiskFull);
    EXPECT_EQ(errorOfKeep(), 61);
    files.failAtCall(FileCall::Close, 1, ErrorNumber::DiskFull);
    EXPECT_EQ(errorOfKeep(), 61);
    expectNoCopies();
    expectNothingTold();
}

TEST_F(EarlierCopiesTest, AFileThatCannotBeWrittenIsNotCopied) {
    add("x");
    files.failAtCall(FileCall::Open, 1, ErrorNumber::PathFileAccess);
    EXPECT_EQ(errorOfKeep(), 75);
    expectNoCopies();
}

struct FailureRow {
    const char* name;
    FileCall call;
    int nth;
};

class EarlierCopiesFailure : public EarlierCopiesTest, public testing::WithParamInterface<FailureRow> {};

TEST_P(EarlierCopiesFailure, IsSaidAndDoesNotHinderTheSave) {
    add("x");
    files.failAtCall(GetParam().call, GetParam().nth, ErrorNumber::DeviceIoError);
    EXPECT_EQ(keep(), "");
    ASSERT_EQ(window.warnings.size(), 1U);
    EXPECT_EQ(window.warnings[0].first, "No earlier copy of Memo.odb could be kept!");
    EXPECT_EQ(window.warnings[0].second, "Device I/O error");
    ASSERT_NE(trace.find("ERROR"), nullptr);
    expectNoCopies();
    EXPECT_NE(keep(), "") << "the next one works again";
}

INSTANTIATE_TEST_SUITE_P(Rows, EarlierCopiesFailure,
                         testing::Values(FailureRow{"MakingTheFolder", FileCall::CreateFolder, 1},
                                         FailureRow{"OpeningTheCopy", FileCall::Open, 2},
                                         FailureRow{"ReadingTheFile", FileCall::Read, 1},
                                         FailureRow{"ReadingItsEnd", FileCall::Read, 2},
                                         FailureRow{"WritingTheCopy", FileCall::Write, 1},
                                         FailureRow{"FlushingTheCopy", FileCall::Flush, 1},
                                         FailureRow{"ClosingTheCopy", FileCall::Close, 1}),
                         [](const auto& row) { return row.param.name; });

TEST_F(EarlierCopiesTest, AFileAboveTheLimitIsNotCopiedAndTheLogSaysSo) {
    add(std::string(EarlierCopies::kLargestFile, 'x'), "Large.bin");
    EXPECT_NE(keep("Large.bin"), "");
    add(std::string(EarlierCopies::kLargestFile + 1, 'x'), "Larger.bin");
    EXPECT_EQ(keep("Larger.bin"), "");
    EXPECT_EQ(window.reports, std::vector<std::string>{
                                  "Larger.bin is replaced without an earlier copy: it has more than 64 MB."});
    EXPECT_TRUE(window.warnings.empty());
}

}  // namespace
}  // namespace velmora
