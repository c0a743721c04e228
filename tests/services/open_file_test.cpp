#include "services/open_file.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/failing_files.h"
#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/recording_trace.h"
#include "support/recording_window.h"
#include "support/simple_names.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using test::FileCall;

class OpenFileTest : public testing::Test {
  protected:
    OpenFileTest() { memory.addFolder("/psion"); }
    void TearDown() override {
        file.close();
        EXPECT_EQ(memory.openFiles(), 0);
        expectNoTemporaryFiles();
    }
    void expectNoTemporaryFiles() {
        for (const std::string& path : memory.paths()) {
            EXPECT_NE(rules.parentFolder(path), memory.temporaryFolder()) << path;
        }
    }
    int open(int mode, int kind, const std::string& name = "f") {
        return file.open_File("/psion/" + name, mode, kind);
    }
    const std::string& content(const std::string& name = "f") { return memory.content("/psion/" + name); }
    void add(const std::string& bytes, const std::string& name = "f") {
        memory.addFile("/psion/" + name, bytes);
    }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    test::SimplePathRules rules;
    test::RecordingWindow window;
    test::RecordingTrace trace;
    test::FakeTime time;
    TransferLog log{window, trace, rules};
    EarlierCopiesSettings copiesSettings{"/copies"};
    EarlierCopies copies{files, rules, time, log, copiesSettings};
    OpenFile file{files, rules, window, copies, log};
};

// Each mode with each kind, on a file that exists and on one that does not.

struct ModeRow {
    const char* name;
    int mode;
    bool exists;
    int status;
};

class OpenModeTest : public OpenFileTest, public testing::WithParamInterface<std::tuple<ModeRow, int>> {};

TEST_P(OpenModeTest, GivesItsStatus) {
    const auto& [row, kind] = GetParam();
    if (row.exists) {
        add(kind == -3 ? "ORG\0\x01\x83x"s : "x\r\n"s);
    }
    EXPECT_EQ(open(row.mode, kind), row.status);
    EXPECT_EQ(file.status(), row.status > 0 ? kNoFile : row.status);
    const bool exists = row.exists || row.status == kOpenForWriting;
    EXPECT_EQ(memory.fileExists("/psion/f"), exists);
    EXPECT_EQ(memory.openFiles(), row.status > 0 ? 0 : 1);
    EXPECT_EQ(file.textMode(), row.status < 0 && kind == kKindText);
}

INSTANTIATE_TEST_SUITE_P(Rows, OpenModeTest,
                         testing::Combine(testing::Values(ModeRow{"ReadExisting", 0, true, -1},
                                                          ModeRow{"ReadMissing", 0, false, 189},
                                                          ModeRow{"CreateOverExisting", 1, true, -2},
                                                          ModeRow{"CreateMissing", 1, false, -2},
                                                          ModeRow{"ReplaceExisting", 2, true, -2},
                                                          ModeRow{"ReplaceMissing", 2, false, 189},
                                                          ModeRow{"CreateNewOverExisting", 3, true, 187},
                                                          ModeRow{"CreateNewMissing", 3, false, -2},
                                                          ModeRow{"AppendExisting", 4, true, -2},
                                                          ModeRow{"AppendMissing", 4, false, 189}),
                                          testing::Values(kKindText, kKindBinary, kKindProcedure, -3)),
                         [](const auto& row) {
                             const int kind = std::get<1>(row.param);
                             const char* kindName = kind == kKindText        ? "Text"
                                                    : kind == kKindBinary    ? "Binary"
                                                    : kind == kKindProcedure ? "Procedure"
                                                                             : "Block";
                             return std::string(std::get<0>(row.param).name) + kindName;
                         });

class ReplacingModeTest : public OpenFileTest, public testing::WithParamInterface<int> {};

TEST_P(ReplacingModeTest, EmptiesTheOldFile) {
    add("old");
    EXPECT_EQ(open(GetParam(), kKindBinary), kOpenForWriting);
    EXPECT_EQ(content(), "");
}

TEST_P(ReplacingModeTest, ReplacesAFileThatDiffersOnlyByCase) {
    copiesSettings.days = 0;
    add("old", "MEMO.odb");
    EXPECT_EQ(open(GetParam(), kKindText, "Memo.odb"), kOpenForWriting);
    EXPECT_EQ(file.writeRecord("new"), kCodeNone);
    EXPECT_EQ(memory.paths(), std::vector<std::string>{"/psion/MEMO.odb"});
    EXPECT_EQ(content("MEMO.odb"), "new\r\n");
}

TEST_P(ReplacingModeTest, KeepsTheOldFileWhenItCannotBeOpened) {
    add("old");
    files.failAtCall(FileCall::Open, 1, ErrorNumber::PermissionDenied);
    EXPECT_EQ(open(GetParam(), kKindText), kCodeAlreadyOpen);
    EXPECT_EQ(content(), "old");
}

INSTANTIATE_TEST_SUITE_P(Modes, ReplacingModeTest, testing::Values(1, 2));

class RefusedNameTest : public OpenFileTest, public testing::WithParamInterface<int> {};

TEST_P(RefusedNameTest, IsNotFound) {
    EXPECT_EQ(file.open_File("", 1, GetParam()), kCodeFileNotFound);
    EXPECT_FALSE(file.isOpen());
}

INSTANTIATE_TEST_SUITE_P(Kinds, RefusedNameTest, testing::Values(-3, -1, 0, 1, 2, 3));

TEST_F(OpenFileTest, AFolderIsNoFile) {
    memory.addFolder("/psion/sub");
    EXPECT_EQ(open(0, kKindText, "sub"), kCodeFileNotFound);
    EXPECT_EQ(open(1, kKindText, "sub"), kCodeFileNotFound);
}

// Text.

TEST_F(OpenFileTest, TextIsReadLineByLine) {
    add("one\r\ntwo\nthree");
    open(0, kKindText);
    for (const char* line : {"one", "two", "three"}) {
        EXPECT_FALSE(file.atEnd());
        EXPECT_EQ(file.readBlock(255), line);
    }
    EXPECT_TRUE(file.atEnd());
    EXPECT_EQ(window.stats[StatsBytesSent], 3 + 2 + 3 + 2 + 5 + 2);
}

TEST_F(OpenFileTest, TextIsWrittenWithCrLf) {
    open(1, kKindText);
    EXPECT_EQ(file.writeRecord("one\ttwo"), kCodeNone);
    EXPECT_EQ(file.writeRecord(""), kCodeNone);
    EXPECT_EQ(content(), "one\ttwo\r\n\r\n");
    EXPECT_EQ(window.stats[StatsBytesReceived], 9 + 2);
}

TEST_F(OpenFileTest, TextIsRawBytes) {
    const std::string bytes = "\x1A\xE9\xFF\0\x07"s;
    open(1, kKindText);
    file.writeRecord(bytes);
    file.close();
    open(0, kKindText);
    EXPECT_EQ(file.readBlock(255), bytes);
}

TEST_F(OpenFileTest, TextIsAppendedAtTheEnd) {
    add("one\r\n");
    open(4, kKindText);
    file.writeRecord("two");
    EXPECT_EQ(content(), "one\r\ntwo\r\n");
}

TEST_F(OpenFileTest, TextIsAppendedOnANewLine) {
    add("one");
    open(4, kKindText);
    file.writeRecord("two");
    file.writeRecord("three");
    EXPECT_EQ(content(), "one\r\ntwo\r\nthree\r\n");
    EXPECT_EQ(window.stats[StatsBytesReceived], 5 + 7);
}

TEST_F(OpenFileTest, AFileOfOneCharacterIsALineToo) {
    add("x");
    open(kModeAppend, kKindText);
    file.writeRecord("two");
    EXPECT_EQ(content(), "x\r\ntwo\r\n");
}

TEST_F(OpenFileTest, OpeningForAppendingAloneChangesNothing) {
    add("one");
    open(4, kKindText);
    file.close();
    EXPECT_EQ(content(), "one");
}

TEST_F(OpenFileTest, AFullDiskNeverLeavesHalfARecord) {
    add("one");
    open(4, kKindText);
    files.failAfterBytes(6, ErrorNumber::DiskFull);
    EXPECT_EQ(file.writeRecord("two"), kCodeDiskFull);
    EXPECT_EQ(content(), "one");
    files.healthy();
    EXPECT_EQ(file.writeRecord("two"), kCodeNone);
    EXPECT_EQ(content(), "one\r\ntwo\r\n");
}

TEST_F(OpenFileTest, ALineLongerThanTheMaximumIsTooLong) {
    add(std::string(30, 'x') + "\r\n");
    open(0, kKindText);
    EXPECT_EQ(file.readBlock(20), std::nullopt);
    EXPECT_EQ(window.stats[StatsBytesSent], 32) << "it was read, so it counts";
}

TEST_F(OpenFileTest, ALineOfJustTheMaximumIsRead) {
    add(std::string(20, 'x') + "\r\n");
    open(0, kKindText);
    EXPECT_EQ(file.readBlock(20), std::string(20, 'x'));
}

TEST_F(OpenFileTest, TheMaximumIsForTheConvertedRecord) {
    add("a,\"b,c\",,,,,,,,\r\n");
    file.setFieldSeparator(',');
    open(0, kKindText);
    EXPECT_EQ(file.readBlock(5), "a\tb,c");
    EXPECT_EQ(window.stats[StatsBytesSent], 7);
}

TEST_F(OpenFileTest, AnEndlessLineIsTooLongSoon) {
    add(std::string(1'000'000, 'x'));
    open(0, kKindText);
    EXPECT_EQ(file.readBlock(255), std::nullopt);
    EXPECT_LT(files.calls(FileCall::Read), 20);
}

TEST_F(OpenFileTest, RecordsAreConvertedWhereThereIsASeparator) {
    file.setFieldSeparator(';');
    open(1, kKindText);
    file.writeRecord("a;b\tc");
    EXPECT_EQ(content(), "\"a;b\";c\r\n");
    EXPECT_EQ(window.stats[StatsBytesReceived], 7) << "the record's length, not the line's";
}

TEST_F(OpenFileTest, BinaryRecordsAreNeverConverted) {
    file.setFieldSeparator(',');
    open(1, kKindBinary);
    file.writeRecord("a,b\tc");
    EXPECT_EQ(content(), "a,b\tc");
}

// Binary.

TEST_F(OpenFileTest, BinaryIsReadInBlocks) {
    add("0123456789");
    open(0, kKindBinary);
    EXPECT_EQ(file.readBlock(4), "0123");
    EXPECT_EQ(file.readBlock(4), "4567");
    EXPECT_EQ(file.readBlock(4), "89");
    EXPECT_TRUE(file.atEnd());
    EXPECT_EQ(window.stats[StatsBytesSent], 10);
}

TEST_F(OpenFileTest, BinaryWritingStartsAtTheFirstByteEvenInMode4) {
    add("0123456789");
    open(4, kKindBinary);
    file.writeRecord("ab");
    EXPECT_EQ(content(), "ab23456789");
    EXPECT_EQ(window.stats[StatsBytesReceived], 2);
}

TEST_F(OpenFileTest, APositionBehindTheEndIsAtEnd) {
    add("01");
    open(0, kKindBinary);
    file.seek(5);
    EXPECT_TRUE(file.atEnd());
}

// Block files.

TEST_F(OpenFileTest, ABlockFileGetsItsLengthWhenItIsClosed) {
    open(1, -3);
    EXPECT_EQ(content(), "ORG\0\0\x83"s);
    file.writeRecord("hello");
    file.writeRecord("\0\x10"s);
    file.close();
    EXPECT_EQ(content(), "ORG\0\x07\x83hello\0\x10"s);
    EXPECT_EQ(window.stats[StatsBytesReceived], 7);
}

TEST_F(OpenFileTest, ABlockFileInMode4IsOverwrittenFromItsHeaderOn) {
    add("ORG\0\x05\x83hello"s);
    open(4, -3);
    file.writeRecord("AB");
    file.close();
    EXPECT_EQ(content(), "ORG\0\x05\x83"s + "ABllo");
}

TEST_F(OpenFileTest, ABlockFileMayFillItsLengthField) {
    open(1, -2);
    const std::string half(32'767, 'x');
    EXPECT_EQ(file.writeRecord(half), kCodeNone);
    EXPECT_EQ(file.writeRecord(half), kCodeNone);
    EXPECT_EQ(file.writeRecord("x"), kCodeNone);
    file.close();
    EXPECT_EQ(content().substr(0, 6), "ORG\xFF\xFF\x82");
    EXPECT_EQ(window.stats[StatsBytesReceived], 65'535);
}

TEST_F(OpenFileTest, ARefusedWriteLeavesABlockFileThatNoReadingTakesForWhole) {
    open(1, -2);
    ASSERT_EQ(file.writeRecord(std::string(65'535, 'x')), kCodeNone);
    EXPECT_THROW(file.writeRecord("x"), RunTimeError);
    file.close();
    EXPECT_EQ(content().size(), 65'541U);
    EXPECT_EQ(content().substr(0, 6), "ORG\0\0\x82"s);
}

TEST_F(OpenFileTest, AFullDiskLeavesABlockFileThatNoReadingTakesForWhole) {
    open(1, -2);
    ASSERT_EQ(file.writeRecord("whole"), kCodeNone);
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    EXPECT_EQ(file.writeRecord("x"), kCodeDiskFull);
    files.healthy();
    file.close();
    EXPECT_EQ(content(), "ORG\0\0\x82whole"s);
}

TEST_F(OpenFileTest, OpeningABlockFileInMode4AloneChangesNothing) {
    for (const std::string& bytes :
         {"ORG\0\x05\x83hello"s, "ORG\0\x05\x82hello"s, "no block file"s, "x"s, ""s}) {
        add(bytes);
        open(4, -3);
        EXPECT_EQ(content(), bytes) << "while it is open";
        file.close();
        EXPECT_EQ(content(), bytes);
    }
}

TEST_F(OpenFileTest, ARefusedFirstWriteInMode4ChangesNothing) {
    const std::string bytes = "ORG\0\x05\x82hello"s;
    add(bytes);
    open(4, -3);
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    EXPECT_EQ(file.writeRecord("AB"), kCodeDiskFull);
    files.healthy();
    file.close();
    EXPECT_EQ(content(), bytes);
    open(4, -3);
    EXPECT_THROW(file.writeRecord(std::string(65'536, 'x')), RunTimeError);
    file.close();
    EXPECT_EQ(content(), bytes);
}

TEST_F(OpenFileTest, AFileTooLargeForABlockFileIsNotChangedInMode4) {
    const std::string bytes(70'000, 'x');
    add(bytes);
    open(4, -3);
    EXPECT_THROW(file.writeRecord("AB"), RunTimeError);
    file.close();
    EXPECT_EQ(content(), bytes);
}

TEST_F(OpenFileTest, ABinaryFileHasNoSuchLimit) {
    open(1, kKindBinary);
    EXPECT_EQ(file.writeRecord(std::string(70'000, 'x')), kCodeNone);
    EXPECT_EQ(window.stats[StatsBytesReceived], 70'000);
}

TEST_F(OpenFileTest, AFullDiskAtTheHeaderIsAnswered) {
    files.failAfterBytes(3, ErrorNumber::DiskFull);
    EXPECT_EQ(open(1, -3), kCodeDiskFull);
    EXPECT_FALSE(file.isOpen());
}

TEST_F(OpenFileTest, TheHeaderBehindTheMarkIsReadUncounted) {
    add("ORG\0\x02\x83xy"s);
    open(0, -3);
    EXPECT_EQ(file.readImageHeader(3), "\0\x02\x83"s);
    EXPECT_EQ(file.readBlock(255), "xy");
    EXPECT_EQ(window.stats[StatsBytesSent], 2);
}

// Procedures.

TEST_F(OpenFileTest, AProcedureIsReadFromItsImage) {
    add("A\r\nBC\r\n");
    EXPECT_EQ(open(0, kKindProcedure), kOpenForReading);
    EXPECT_EQ(file.readImageHeader(7), "\0\x09\x81\0\0\0\x05"s);
    EXPECT_EQ(file.readBlock(3), "A\0B"s);
    EXPECT_EQ(file.readBlock(255), "C\0"s);
    EXPECT_TRUE(file.atEnd());
    EXPECT_EQ(window.stats[StatsBytesSent], 7) << "a zero counts as the two bytes of a line end";
    EXPECT_EQ(content(), "A\r\nBC\r\n");
}

TEST_F(OpenFileTest, AProcedureTooLargeForItsImageOverflowsAtTheOpen) {
    add(std::string(70'000, 'x'));
    EXPECT_THROW(open(0, kKindProcedure), RunTimeError);
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(memory.openFiles(), 0);
    expectNoTemporaryFiles();
}

TEST_F(OpenFileTest, AProcedureIsWrittenWithoutAHeader) {
    open(1, kKindProcedure);
    file.writeRecord("A\r\n");
    file.close();
    EXPECT_EQ(content(), "A\r\n");
}

// What is replaced.

constexpr const char* kCopy = "/copies/f (2026-03-28 14.05.09)";

constexpr int kBlockKind = -3;

class KindTest : public OpenFileTest, public testing::WithParamInterface<int> {};

TEST_P(KindTest, WhatIsReplacedIsKept) {
    for (const int mode : {1, 2}) {
        add("old and whole");
        ASSERT_EQ(open(mode, GetParam()), kOpenForWriting);
        ASSERT_TRUE(memory.fileExists(kCopy)) << mode;
        EXPECT_EQ(memory.content(kCopy), "old and whole");
        file.close();
        memory.deleteFile(kCopy);
    }
}

TEST_P(KindTest, NothingIsKeptOfWhatIsNotReplaced) {
    add("old");
    for (const int mode : {0, 3}) {
        open(mode, GetParam());
        file.close();
        EXPECT_FALSE(memory.folderExists("/copies")) << mode;
    }
}

TEST_P(KindTest, WhatIsWrittenOverFromItsStartIsKept) {
    const bool writtenOver = GetParam() == kKindProcedure || GetParam() == kBlockKind;
    add("old and whole");
    ASSERT_EQ(open(4, GetParam()), kOpenForWriting);
    file.writeRecord("new");
    ASSERT_EQ(memory.fileExists(kCopy), writtenOver);
    if (writtenOver) {
        EXPECT_EQ(memory.content(kCopy), "old and whole");
    }
}

TEST_P(KindTest, WithoutRoomForTheCopyTheDiskIsFullAndTheOldFileStands) {
    add("old");
    files.failAfterBytes(2, ErrorNumber::DiskFull);
    EXPECT_EQ(open(1, GetParam()), kCodeDiskFull);
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(memory.paths(), std::vector<std::string>{"/psion/f"});
    EXPECT_TRUE(window.reports.empty());
}

TEST_P(KindTest, ACopyThatFailsDoesNotHinderTheSave) {
    add("old");
    files.failAtCall(FileCall::CreateFolder, 1, ErrorNumber::PathFileAccess);
    EXPECT_EQ(open(1, GetParam()), kOpenForWriting);
    EXPECT_EQ(window.warnings.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Kinds, KindTest,
                         testing::Values(kKindText, kKindBinary, kKindProcedure, kBlockKind));

// Saves that break off.

TEST_F(OpenFileTest, ASaveThatBreaksOffIsToldWithItsBytesAndTheEarlierCopy) {
    add("old");
    open(1, kKindText);
    file.writeRecord("one");
    file.writeRecord("three");
    file.close();
    const std::string line = "f is incomplete: 12 bytes arrived. Earlier copy: " + std::string(kCopy);
    EXPECT_EQ(window.reports, std::vector<std::string>{line});
    EXPECT_EQ(window.lineDowns, 1);
    EXPECT_EQ(memory.content(kCopy), "old");
}

TEST_F(OpenFileTest, ASaveThatWasCalledCompleteIsNot) {
    open(1, kKindText);
    file.writeRecord("one");
    EXPECT_EQ(file.save(), kCodeNone);
    file.close();
    EXPECT_TRUE(window.reports.empty());
    EXPECT_EQ(window.lineDowns, 0);
}

TEST_F(OpenFileTest, WhatIsWrittenAfterThatMakesItIncompleteAgain) {
    open(1, kKindBinary);
    file.writeRecord("one");
    file.save();
    file.writeRecord("more");
    file.close();
    EXPECT_EQ(window.reports, std::vector<std::string>{"f is incomplete: 7 bytes arrived."});
}

TEST_F(OpenFileTest, ANewFileInWhichNothingArrivedIsIncomplete) {
    open(3, kKindBinary);
    file.close();
    EXPECT_EQ(window.reports, std::vector<std::string>{"f is incomplete: 0 bytes arrived."});
}

TEST_F(OpenFileTest, AnObjectThatGoesTellsOfTheSaveThatItLeaves) {
    {
        OpenFile leaving(files, rules, window, copies, log);
        ASSERT_EQ(leaving.open_File("/psion/f", kModeCreate, kKindText), kOpenForWriting);
    }
    EXPECT_EQ(window.reports, std::vector<std::string>{"f is incomplete: 0 bytes arrived."});
}

TEST_F(OpenFileTest, AppendingNothingAndReadingLeaveNothingIncomplete) {
    add("old");
    for (const int mode : {0, 4}) {
        open(mode, kKindText);
        file.close();
    }
    EXPECT_TRUE(window.reports.empty());
    open(4, kKindText);
    file.writeRecord("one");
    file.close();
    EXPECT_EQ(window.reports, std::vector<std::string>{"f is incomplete: 5 bytes arrived."});
}

TEST_F(OpenFileTest, ARefusedWriteIsNoByteThatArrived) {
    open(1, kKindText);
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    file.writeRecord("one");
    file.close();
    EXPECT_EQ(window.reports, std::vector<std::string>{"f is incomplete: 0 bytes arrived."});
}

TEST_F(OpenFileTest, AFileThatWasEmptiedBeforeTheOpenFailedIsTold) {
    add("old");
    files.failAtCall(FileCall::Write, 2, ErrorNumber::DiskFull);
    EXPECT_EQ(open(1, -3), kCodeDiskFull);
    EXPECT_EQ(window.reports, std::vector<std::string>{"f is incomplete: 0 bytes arrived. Earlier copy: " +
                                                       std::string(kCopy)});
}

TEST_F(OpenFileTest, ATouchedFileIsNotComplete) {
    open(1, kKindText);
    memory.deleteFile("/psion/f");
    EXPECT_EQ(file.save(), kCodeNotPossible);
    file.close();
    EXPECT_EQ(window.reports.size(), 1U);
}

// Listings.

TEST_F(OpenFileTest, AListingIsReadAsText) {
    add("", "Memo.odb");
    add("", "Note.txt");
    EXPECT_EQ(open(0, kKindLongListing, "*"), kOpenForReading);
    EXPECT_TRUE(file.textMode());
    EXPECT_EQ(file.readBlock(255), "Memo.odb");
    EXPECT_EQ(file.readBlock(255), "Note.txt");
    EXPECT_TRUE(file.atEnd());
    file.close();
    EXPECT_EQ(open(1, kKindShortListing, "m*"), kOpenForReading) << "in any mode";
    EXPECT_EQ(file.readBlock(255), "MEMO.ODB");
}

TEST_F(OpenFileTest, AnEmptyListingIsAtItsEnd) {
    EXPECT_EQ(open(0, kKindLongListing, "*"), kOpenForReading);
    EXPECT_TRUE(file.atEnd());
}

// Failures of the file layer, wherever they strike.

struct FailureRow {
    const char* name;
    int kind;
    FileCall call;
    int nth;
};

class OpenFailureTest : public OpenFileTest, public testing::WithParamInterface<FailureRow> {};

TEST_P(OpenFailureTest, IsAnsweredAndLeavesNothing) {
    add("A\r\n");
    files.failAtCall(GetParam().call, GetParam().nth, ErrorNumber::DiskFull);
    EXPECT_EQ(open(0, GetParam().kind), kCodeDiskFull);
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(memory.openFiles(), 0);
    expectNoTemporaryFiles();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OpenFailureTest,
    testing::Values(FailureRow{"OpenText", kKindText, FileCall::Open, 1},
                    FailureRow{"OpenBinary", kKindBinary, FileCall::Open, 1},
                    FailureRow{"ProcedureSource", kKindProcedure, FileCall::Open, 1},
                    FailureRow{"ProcedureTemporary", kKindProcedure, FileCall::CreateTemporary, 1},
                    FailureRow{"ProcedureTemporaryOpen", kKindProcedure, FileCall::Open, 2},
                    FailureRow{"ProcedureRead", kKindProcedure, FileCall::Read, 1},
                    FailureRow{"ProcedureWrite", kKindProcedure, FileCall::Write, 1},
                    FailureRow{"ListingTemporary", kKindLongListing, FileCall::CreateTemporary, 1},
                    FailureRow{"ListingTemporaryOpen", kKindLongListing, FileCall::Open, 1},
                    FailureRow{"ListingOfTheFolder", kKindShortListing, FileCall::List, 1},
                    FailureRow{"ListingSecondPass", kKindLongListing, FileCall::List, 2},
                    FailureRow{"ListingWrite", kKindLongListing, FileCall::Write, 1}),
    [](const auto& row) { return row.param.name; });

TEST_F(OpenFileTest, AFailedReadLeavesAsARunTimeError) {
    add("A\r\n");
    open(0, kKindText);
    files.failAtCall(FileCall::Read, 1, ErrorNumber::DeviceIoError);
    EXPECT_THROW(file.readBlock(255), RunTimeError);
}

TEST_F(OpenFileTest, FailuresAtCloseAreIgnoredAndNothingIsLeaked) {
    open(1, -3);
    file.writeRecord("x");
    files.failAtCall(FileCall::Write, 1, ErrorNumber::DiskFull);
    files.failAtCall(FileCall::Close, 1, ErrorNumber::DiskFull);
    EXPECT_NO_THROW(file.close());
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(memory.openFiles(), 0);
    EXPECT_EQ(open(1, kKindText, "g"), kOpenForWriting) << "the next file is clean";
    file.writeRecord("y");
    file.close();
    EXPECT_EQ(content("g"), "y\r\n");
}

TEST_F(OpenFileTest, ATemporaryFileThatCannotBeDeletedIsLeft) {
    ASSERT_EQ(open(0, kKindLongListing, "*"), kOpenForReading);
    files.failAtCall(FileCall::Delete, 1, ErrorNumber::PermissionDenied);
    EXPECT_NO_THROW(file.close());
    ASSERT_EQ(memory.paths().size(), 1U);
    memory.deleteFile(memory.paths()[0]);
}

TEST_F(OpenFileTest, ClosingTwiceIsFine) {
    open(1, kKindText);
    file.close();
    EXPECT_NO_THROW(file.close());
}

TEST_F(OpenFileTest, TheDestructorClosesAndDeletes) {
    {
        OpenFile other(files, rules, window, copies, log);
        other.open_File("/psion/*", 0, kKindLongListing);
    }
    EXPECT_EQ(memory.openFiles(), 0);
    expectNoTemporaryFiles();
}

TEST_F(OpenFileTest, TheSeparatorOutlivesTheFile) {
    file.setFieldSeparator(',');
    open(1, kKindText);
    file.close();
    EXPECT_EQ(file.fieldSeparator(), ',');
}

}  // namespace
}  // namespace velmora
