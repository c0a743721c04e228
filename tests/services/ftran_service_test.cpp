#include "services/ftran_service.h"

#include "services/service_fixture.h"

namespace velmora {
namespace {

using namespace test;

class FtranTest : public ServiceFixture {
  protected:
    void SetUp() override { openService("FTRAN"); }
    void startOver() {
        dropLink();
        openService("FTRAN");
    }
    void add(const std::string& name, const std::string& bytes) { memory.addFile("/psion/" + name, bytes); }
    const std::string& content(const std::string& name) { return memory.content("/psion/" + name); }
};

// Names.

struct NameRow {
    const char* name;
    int dataFileType;
    int fileType;
    const char* given;
    const char* stored;
};

class FtranNameTest : public FtranTest, public testing::WithParamInterface<NameRow> {};

TEST_P(FtranNameTest, GetsItsExtension) {
    settings.DataFileType = GetParam().dataFileType;
    openRequest(1, GetParam().fileType, GetParam().given);
    expectReply("");
    EXPECT_EQ(memory.paths(), std::vector<std::string>{std::string("/psion/") + GetParam().stored});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FtranNameTest,
    testing::Values(
        NameRow{"Odb", 0, 0, "MEMO", "Memo.odb"}, NameRow{"Txt", 1, 0, "MEMO", "Memo.txt"},
        NameRow{"CsvComma", 2, 0, "MEMO", "Memo.csv"}, NameRow{"CsvSemicolon", 3, 0, "MEMO", "Memo.csv"},
        NameRow{"UnknownFormIsTheFirst", 4, 0, "MEMO", "Memo.odb"},
        NameRow{"NegativeFormIsTheFirst", -1, 0, "MEMO", "Memo.odb"},
        NameRow{"Procedure", 2, 1, "MEMO", "Memo.opl"}, NameRow{"Type2", 0, 2, "MEMO", "Memo.ob2"},
        NameRow{"Type3", 0, 3, "MEMO", "Memo.ob3"}, NameRow{"Type10", 0, 10, "MEMO", "Memo.oba"},
        NameRow{"Type15", 0, 15, "MEMO", "Memo.obf"}, NameRow{"Type16", 0, 16, "MEMO", "Memo.ob10"},
        NameRow{"OwnExtension", 2, 0, "MEMO.DAT", "Memo.dat"},
        NameRow{"OwnExtensionOfFour", 0, 0, "MEMO.DATA", "Memo.data"},
        NameRow{"FiveCharactersAreNoExtension", 0, 0, "MEMO.DATEN", "Memo.daten.odb"},
        NameRow{"EmptyExtension", 0, 0, "MEMO.", "Memo."},
        NameRow{"OnlyTheLastDotCounts", 0, 0, "A.LONGER.X", "A.longer.x"},
        NameRow{"BlanksAreNotPartOfTheName", 0, 0, "  MEMO ", "Memo.odb"},
        NameRow{"BlanksBehindAnExtension", 0, 0, "MEMO.DAT   ", "Memo.dat"},
        NameRow{"SmallLettersStay", 0, 0, "MyFile", "MyFile.odb"}),
    [](const auto& row) { return row.param.name; });

// Opening.

TEST_F(FtranTest, TypesAboveSixteenAreRefused) {
    openRequest(1, 17, "MEMO");
    expectRefused(190);
    openService("FTRAN");
    openRequest(1, 255, "MEMO");
    expectRefused(190);
    EXPECT_TRUE(memory.paths().empty());
}

TEST_F(FtranTest, ANameWithoutALastComponentGetsNoExtensionAndIsRefused) {
    memory.addFolder("/psion/sub");
    for (const char* name : {"", "  ", "sub/", "sub\\"}) {
        openRequest(1, 0, name);
        expectRefused(189);
        openService("FTRAN");
    }
    EXPECT_TRUE(memory.paths().empty());
}

TEST_F(FtranTest, WritingShowsTheDownload) {
    openRequest(1, 0, "MEMO");
    EXPECT_EQ(window.current, 9);
    EXPECT_EQ(window.currentFile, "/psion/Memo.odb");
}

TEST_F(FtranTest, ReadingShowsTheUploadOfTheStoredFile) {
    add("MEMO.odb", "x\r\n");
    openRequest(0, 0, "MEMO");
    expectReply("");
    EXPECT_EQ(window.current, 8);
    EXPECT_EQ(window.currentFile, "/psion/MEMO.odb");
}

TEST_F(FtranTest, ASecondOpenClosesTheFirstFile) {
    openRequest(1, 2, "ONE");
    write("abc");
    openRequest(1, 2, "TWO");
    EXPECT_EQ(content("One.ob2"), "ORG\0\x03\x82"s + "abc");
    EXPECT_EQ(memory.openFiles(), 1);
    EXPECT_EQ(window.currentFile, "/psion/Two.ob2");
}

TEST_F(FtranTest, ARefusedSecondOpenClosesTheFirstFileToo) {
    openRequest(1, 0, "ONE");
    sender.frames.clear();
    openRequest(9, 0, "TWO");
    expectRefused(190);
}

// Data files.

struct FormRow {
    const char* name;
    int dataFileType;
    const char* file;
    const char* line;
};

class FtranDataFormTest : public FtranTest, public testing::WithParamInterface<FormRow> {};

TEST_P(FtranDataFormTest, RecordsAreSavedAndLoaded) {
    settings.DataFileType = GetParam().dataFileType;
    openRequest(1, 0, "MEMO");
    write("a\tx,y\tv;w");
    expectReply("");
    closeRequest();
    expectReply("");
    EXPECT_EQ(content(GetParam().file), std::string(GetParam().line) + "\r\n");

    openRequest(0, 0, "MEMO");
    read();
    expectReply("a\tx,y\tv;w");
}

INSTANTIATE_TEST_SUITE_P(Rows, FtranDataFormTest,
                         testing::Values(FormRow{"Odb", 0, "Memo.odb", "a\tx,y\tv;w"},
                                         FormRow{"Txt", 1, "Memo.txt", "a\tx,y\tv;w"},
                                         FormRow{"Comma", 2, "Memo.csv", "a,\"x,y\",v;w"},
                                         FormRow{"Semicolon", 3, "Memo.csv", "a;x,y;\"v;w\""}),
                         [](const auto& row) { return row.param.name; });

TEST_F(FtranTest, ANameWithItsOwnExtensionIsNeverConverted) {
    settings.DataFileType = 2;
    openRequest(1, 0, "MEMO.CSV");
    write("a\tb");
    EXPECT_EQ(content("Memo.csv"), "a\tb\r\n");
    startOver();
    openRequest(1, 0, "MEMO.DAT");
    write("a\tb");
    EXPECT_EQ(content("Memo.dat"), "a\tb\r\n");
}

TEST_F(FtranTest, EachOpenChoosesTheSeparatorAnew) {
    settings.DataFileType = 2;
    openRequest(1, 0, "ONE");
    settings.DataFileType = 0;
    write("a\tb");
    EXPECT_EQ(content("One.csv"), "a,b\r\n") << "the open file keeps its form";
    openRequest(1, 0, "TWO");
    write("a\tb");
    EXPECT_EQ(content("Two.odb"), "a\tb\r\n");
}

TEST_F(FtranTest, AppendingAddsRecords) {
    add("Memo.odb", "one\r\n");
    openRequest(4, 0, "MEMO");
    write("two");
    EXPECT_EQ(content("Memo.odb"), "one\r\ntwo\r\n");
}

// Counting.

TEST_F(FtranTest, ASavedFileIsCounted) {
    openRequest(1, 0, "MEMO");
    write("hello");
    closeRequest();
    EXPECT_EQ(window.stats[StatsFilesReceived], 1);
    EXPECT_EQ(window.stats[StatsFilesSent], 0);
    EXPECT_EQ(window.stats[StatsBytesReceived], 7);
    EXPECT_EQ(window.currentFile, "");
}

TEST_F(FtranTest, AnEmptySavedFileIsCounted) {
    openRequest(1, 0, "MEMO");
    closeRequest();
    EXPECT_EQ(window.stats[StatsFilesReceived], 1);
}

TEST_F(FtranTest, ALoadedFileIsCountedAtItsEnd) {
    add("Memo.odb", "one\r\n");
    openRequest(0, 0, "MEMO");
    read();
    expectReply("one");
    read();
    expectRefused(238);
    EXPECT_EQ(window.stats[StatsFilesSent], 1);
    EXPECT_EQ(window.stats[StatsBytesSent], 5);
}

TEST_F(FtranTest, AFileClosedBeforeItsEndIsCountedToo) {
    add("Memo.odb", "one\r\n");
    openRequest(0, 0, "MEMO");
    closeRequest();
    EXPECT_EQ(window.stats[StatsFilesSent], 1);
}

TEST_F(FtranTest, AppendingIsCountedOnlyWhenSomethingWasAppended) {
    add("Memo.odb", "one\r\n");
    openRequest(4, 0, "MEMO");
    closeRequest();
    EXPECT_EQ(window.stats[StatsFilesReceived], 0);
    write("two");
    closeRequest();
    EXPECT_EQ(window.stats[StatsFilesReceived], 1);
    openRequest(4, 0, "MEMO");
    closeRequest();
    EXPECT_EQ(window.stats[StatsFilesReceived], 1) << "a new open starts anew";
}

TEST_F(FtranTest, AClosedFileStaysOpen) {
    openRequest(1, 0, "MEMO");
    write("one");
    closeRequest();
    expectReply("");
    EXPECT_TRUE(file.isOpen());
    write("two");
    expectReply("");
    EXPECT_EQ(content("Memo.odb"), "one\r\ntwo\r\n");
    EXPECT_EQ(dispatcher.currentService(), "FTRAN");
}

struct FlushRow {
    const char* name;
    ErrorNumber failure;
    int code;
};

class FtranFlushTest : public FtranTest, public testing::WithParamInterface<FlushRow> {};

TEST_P(FtranFlushTest, AFailureIsTheAnswerToTheCloseRequest) {
    openRequest(1, 0, "MEMO");
    write("one");
    sender.frames.clear();
    files.failAtCall(FileCall::Flush, 1, GetParam().failure);
    closeRequest();
    expectRefused(GetParam().code);
    EXPECT_EQ(window.stats[StatsFilesReceived], 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, FtranFlushTest,
                         testing::Values(FlushRow{"FullDisk", ErrorNumber::DiskFull, 186},
                                         FlushRow{"BrokenDisk", ErrorNumber::DeviceIoError, 188}),
                         [](const auto& row) { return row.param.name; });

TEST_F(FtranTest, ABlockFileHasItsLengthWhenItsCloseIsAnswered) {
    openRequest(1, 3, "PIC");
    write("abc");
    closeRequest();
    EXPECT_EQ(content("Pic.ob3"), "ORG\0\x03\x83"s + "abc");
    write("de");
    EXPECT_EQ(content("Pic.ob3").substr(6), "abcde");
    dropLink();
    EXPECT_EQ(content("Pic.ob3"), "ORG\0\x05\x83"s + "abcde");
}

TEST_F(FtranTest, ABlockFileWhoseLengthCannotBeWrittenIsNotSaved) {
    openRequest(1, 3, "PIC");
    write("abc");
    sender.frames.clear();
    files.failAtCall(FileCall::Write, 1, ErrorNumber::DiskFull);
    closeRequest();
    expectRefused(186);
}

TEST_F(FtranTest, AFileThatWasReadIsNotFlushed) {
    add("Memo.odb", "one\r\n");
    openRequest(0, 0, "MEMO");
    closeRequest();
    expectReply("");
    EXPECT_EQ(files.calls(FileCall::Flush), 0);
}

TEST_F(FtranTest, ClosingNothingCountsNothing) {
    closeRequest();
    expectReply("");
    EXPECT_EQ(window.stats[StatsFilesSent] + window.stats[StatsFilesReceived], 0);
}

TEST_F(FtranTest, FileRequestsBeyondItsOwnAreRefused) {
    seek(0, "0");
    expectRefused(190);
}

// Block files.

TEST_F(FtranTest, ABlockFileIsSavedAndLoaded) {
    const std::string data = "\0\x10\x03"s + std::string(300, 'x');
    openRequest(1, 3, "PIC");
    write(data.substr(0, 200));
    write(data.substr(200));
    openRequest(0, 3, "PIC");
    expectReply("\x01\x2F\x83");
    read(200);
    expectReply(data.substr(0, 200));
    read(200);
    expectReply(data.substr(200));
    read(200);
    expectRefused(238);
    EXPECT_EQ(content("Pic.ob3"), "ORG\x01\x2F\x83" + data);
    EXPECT_EQ(window.stats[StatsBytesReceived], 303);
    EXPECT_EQ(window.stats[StatsBytesSent], 303);
}

TEST_F(FtranTest, TypeSixteenHasItsByteAndExtension) {
    openRequest(1, 16, "PIC");
    dropLink();
    EXPECT_EQ(content("Pic.ob10"), "ORG\0\0\x90"s);
}

class FtranBadBlockTest : public FtranTest, public testing::WithParamInterface<std::string> {};

TEST_P(FtranBadBlockTest, IsRefused) {
    add("Pic.ob3", GetParam());
    openRequest(0, 3, "PIC");
    expectRefused(190);
    EXPECT_EQ(window.states, std::vector<std::int32_t>{5}) << "no transfer was shown";
}

INSTANTIATE_TEST_SUITE_P(Contents, FtranBadBlockTest,
                         testing::Values("ORG\0\x02\x82xy"s, "ORG\0\x03\x83xy"s, "ORG\0\x01\x83xy"s,
                                         "ORG\0\x02"s, "OR"s, ""s));

TEST_F(FtranTest, TheMarkOfABlockFileIsNotChecked) {
    add("Pic.ob3", "xyz\0\x01\x83!"s);
    openRequest(0, 3, "PIC");
    expectReply("\0\x01\x83"s);
}

TEST_F(FtranTest, TheWriteThatOutgrowsABlockFileIsARunTimeError) {
    openRequest(1, 2, "PIC");
    write(std::string(65'535, 'x'));
    expectReply("");
    write("y");
    expectRefused(188);
    expectTraced("6: Overflow: block file above 65,535 bytes");
    EXPECT_EQ(content("Pic.ob2").size(), 65'541U);
    openService("FTRAN");
    openRequest(0, 2, "PIC");
    expectRefused(190);
}

// Procedures.

TEST_F(FtranTest, AProcedureIsSavedAsText) {
    openRequest(1, 1, "PROG");
    write("prog:\0print 1\0"s);
    expectReply("");
    EXPECT_EQ(content("Prog.opl"), "prog:\r\nprint 1\r\n");
    EXPECT_EQ(window.stats[StatsBytesReceived], 16) << "the bytes of the file";
}

TEST_F(FtranTest, AProcedureIsLoadedAsItsImage) {
    add("Prog.opl", "A\r\nBC\r\n");
    openRequest(0, 1, "PROG");
    expectReply("\0\x09\x81\0\0\0\x05"s);
    read();
    expectReply("A\0BC\0"s);
    EXPECT_EQ(window.stats[StatsBytesSent], 7);
    read();
    expectRefused(238);
}

TEST_F(FtranTest, AnEmptyProcedureIsItsHeader) {
    add("Prog.opl", "");
    openRequest(0, 1, "PROG");
    expectReply("\0\x04\x81\0\0\0\0"s);
    read();
    expectRefused(238);
}

TEST_F(FtranTest, AProcedureTooLargeIsARunTimeErrorOfTheOpen) {
    add("Prog.opl", std::string(70'000, 'x'));
    openRequest(0, 1, "PROG");
    expectRefused(188);
    expectTraced("6: Overflow: procedure above 64 KiB");
}

TEST_F(FtranTest, AProcedureInMode4IsOverwrittenFromItsStart) {
    add("Prog.opl", "0123456789");
    openRequest(4, 1, "PROG");
    write("A\0"s);
    EXPECT_EQ(content("Prog.opl"), "A\r\n3456789");
}

TEST_F(FtranTest, OnlyProceduresHaveTheirZerosReplaced) {
    openRequest(1, 0, "MEMO");
    write("a\0b"s);
    EXPECT_EQ(content("Memo.odb"), "a\0b\r\n"s);
}

// Who observes the transfers.

using Lines = std::vector<std::string>;

TEST_F(FtranTest, TheKindOfATransferIsThatOfTheFile) {
    const std::vector<std::pair<int, TransferKind>> kinds = {
        {0, TransferKind::Data}, {1, TransferKind::Procedure}, {2, TransferKind::Block}};
    for (const auto& [type, kind] : kinds) {
        openRequest(1, type, "MEMO");
        EXPECT_EQ(told.running.kind, kind);
    }
}

TEST_F(FtranTest, AnotherOpenEndsTheTransferBefore) {
    openRequest(1, 0, "MEMO");
    openRequest(1, 0, "OTHER");
    EXPECT_EQ(told.lines(), Lines{"save of Memo.odb incomplete: 0 bytes in 0.0 s, the link ended"});
    EXPECT_TRUE(transfers.underWay());
}

TEST_F(FtranTest, WhatIsWrittenAfterTheCloseIsAnotherTransfer) {
    openRequest(1, 0, "MEMO");
    write("one");
    closeRequest();
    write("three");
    closeRequest();
    EXPECT_EQ(told.lines(), (Lines{"saved Memo.odb 5 bytes in 0.0 s", "saved Memo.odb 7 bytes in 0.0 s"}));
}

TEST_F(FtranTest, AnImageThatWasReadWholeIsCompleteWithoutAClose) {
    add("Block.ob3", "ORG"s + "\x00\x04"s + "\x83" + "code");
    openRequest(0, 3, "BLOCK");
    EXPECT_EQ(told.running.size, 7U);
    EXPECT_EQ(told.running.bytes, 3U);
    read();
    EXPECT_EQ(told.running.bytes, 7U);
    dropLink();
    EXPECT_EQ(told.lines(), Lines{"loaded Block.ob3 7 bytes in 0.0 s"});
}

TEST_F(FtranTest, AnImageOfAnotherTypeIsToldAsRefused) {
    add("Block.ob3", "ORG"s + "\x00\x04"s + "\x84" + "code");
    openRequest(0, 3, "BLOCK");
    EXPECT_EQ(told.lines(), Lines{"load of Block.ob3 refused: invalid request (190)"});
}

TEST_F(FtranTest, AProcedureThatIsTooLargeForItsImageIsToldAsRefused) {
    add("Big.opl", std::string(70'000, 'x'));
    openRequest(0, 1, "BIG");
    EXPECT_EQ(told.lines(), Lines{"load of Big.opl refused: it failed"});
}

TEST_F(FtranTest, AReadBehindTheCloseOfALoadIsARequestOfItsOwn) {
    add("Memo.odb", "");
    openRequest(0, 0, "MEMO");
    closeRequest();
    read();
    EXPECT_EQ(told.lines(),
              (Lines{"loaded Memo.odb 0 bytes in 0.0 s", "request refused: end of file (238)"}));
}

}  // namespace
}  // namespace velmora
