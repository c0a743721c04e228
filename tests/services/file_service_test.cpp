#include "services/file_service.h"

#include "services/service_fixture.h"

namespace velmora {
namespace {

using namespace test;

class FileServiceTest : public ServiceFixture {
  protected:
    void SetUp() override { openService("FILE"); }
    void add(const std::string& name, const std::string& bytes) { memory.addFile("/psion/" + name, bytes); }
    const std::string& content(const std::string& name) { return memory.content("/psion/" + name); }
    void openHundredBytes() {
        std::string bytes;
        for (int i = 0; i < 100; ++i) {
            bytes += static_cast<char>(i);
        }
        add("Data.bin", bytes);
        openRequest(0, 0, "DATA.BIN");
        sender.frames.clear();
    }
};

TEST_F(FileServiceTest, KindsAboveThreeAreRefused) {
    for (const int kind : {4, 128, 255}) {
        openRequest(1, kind, "F");
        expectRefused(190);
        openService("FILE");
    }
}

TEST_F(FileServiceTest, NamesGetNoExtension) {
    openRequest(1, 1, "MEMO");
    EXPECT_EQ(memory.paths(), std::vector<std::string>{"/psion/Memo"});
}

TEST_F(FileServiceTest, ASecondOpenIsRefused) {
    openRequest(1, 1, "ONE");
    sender.frames.clear();
    openRequest(1, 1, "TWO");
    expectRefused(199);
    EXPECT_FALSE(memory.fileExists("/psion/Two"));
}

struct StateRow {
    const char* name;
    int kind;
    std::int32_t state;
};

class FileStateTest : public FileServiceTest, public testing::WithParamInterface<StateRow> {};

TEST_P(FileStateTest, IsShown) {
    add("Memo", "x");
    openRequest(0, GetParam().kind, "MEMO");
    expectReply("");
    EXPECT_EQ(window.current, GetParam().state);
    EXPECT_EQ(window.currentFile, "/psion/Memo");
}

INSTANTIATE_TEST_SUITE_P(Kinds, FileStateTest,
                         testing::Values(StateRow{"Binary", 0, 7}, StateRow{"Text", 1, 7},
                                         StateRow{"ShortListing", 2, 10}, StateRow{"LongListing", 3, 10}),
                         [](const auto& row) { return row.param.name; });

TEST_F(FileServiceTest, ClosingEndsTheService) {
    openRequest(1, 1, "MEMO");
    write("x");
    sender.frames.clear();
    closeRequest();
    expectReply("");
    expectClean();
    EXPECT_EQ(window.current, 5);
    EXPECT_EQ(content("Memo"), "x\r\n");
    EXPECT_EQ(window.stats[StatsFilesReceived] + window.stats[StatsFilesSent], 0) << "FILE counts bytes only";
}

TEST_F(FileServiceTest, TextIsReadToItsEnd) {
    add("Memo", "one\r\ntwo\r\n");
    openRequest(0, 1, "MEMO");
    read();
    expectReply("one");
    read();
    expectReply("two");
    read();
    expectRefused(238);
    EXPECT_EQ(window.stats[StatsFilesSent], 0);
    EXPECT_EQ(window.stats[StatsBytesSent], 10);
}

TEST_F(FileServiceTest, BytesAreReadToTheirEnd) {
    openHundredBytes();
    read(99);
    sender.frames.clear();
    read(255);
    expectReply("\x63");
    read();
    expectRefused(238);
}

TEST_F(FileServiceTest, ZerosAreWrittenAsTheyAre) {
    openRequest(1, 0, "DATA");
    write("a\0b"s);
    expectReply("");
    EXPECT_EQ(content("Data"), "a\0b"s);
}

TEST_F(FileServiceTest, BytesInMode4StartAtTheFirstUnlessSought) {
    add("Data", "0123456789");
    openRequest(4, 0, "DATA");
    write("ab");
    seek(2, "0");
    write("cd");
    EXPECT_EQ(content("Data"), "ab23456789cd");
}

TEST_F(FileServiceTest, TheSeparatorOfTheLastTransferIsKept) {
    settings.DataFileType = 2;
    dropLink();
    openService("FTRAN");
    openRequest(1, 0, "MEMO");
    dropLink();
    openService("FILE");
    openRequest(1, 1, "OTHER.TXT");
    write("a\tb");
    EXPECT_EQ(content("Other.txt"), "a,b\r\n");
}

// Seeking.

struct SeekRow {
    const char* name;
    int mode;
    const char* offset;
    const char* reply;
};

class SeekTest : public FileServiceTest, public testing::WithParamInterface<SeekRow> {};

TEST_P(SeekTest, AnswersThePosition) {
    openHundredBytes();
    read(20);
    seek(GetParam().mode, GetParam().offset);
    expectReply(GetParam().reply);
    EXPECT_EQ(window.stats[StatsBytesReceived], static_cast<long>(std::string(GetParam().offset).size()));
    EXPECT_EQ(window.stats[StatsBytesSent], 20 + 8);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SeekTest,
    testing::Values(SeekRow{"FromStart", 0, "10", "00000010"}, SeekRow{"ToStart", 0, "0", "00000000"},
                    SeekRow{"FromPosition", 1, "5", "00000025"}, SeekRow{"Back", 1, "-20", "00000000"},
                    SeekRow{"FromEnd", 2, "-10", "00000090"}, SeekRow{"ToEnd", 2, "0", "00000100"},
                    SeekRow{"BehindTheEnd", 2, "50", "00000150"},
                    SeekRow{"NoOffsetIsZero", 1, "", "00000020"},
                    SeekRow{"NoNumberIsZero", 0, "abc", "00000000"},
                    SeekRow{"BlanksAreIgnored", 0, " 1 2 ", "00000012"},
                    SeekRow{"OnlyTheNumericPrefixCounts", 0, "12abc", "00000012"},
                    SeekRow{"HalvesGoToTheEvenPosition", 0, "0.5", "00000001"},
                    SeekRow{"AsFarAsPositionsGo", 0, "2147483646", "2147483646"}),
    [](const auto& row) { return row.param.name; });

TEST_F(FileServiceTest, ReadingGoesOnWhereItWasSought) {
    openHundredBytes();
    seek(2, "-10");
    sender.frames.clear();
    read(2);
    expectReply("\x5A\x5B");
    seek(2, "1");
    sender.frames.clear();
    read();
    expectRefused(238);
}

TEST_F(FileServiceTest, WritingBehindTheEndExtendsTheFile) {
    openRequest(1, 0, "DATA");
    seek(0, "3");
    write("x");
    EXPECT_EQ(content("Data"), "\0\0\0x"s);
}

TEST_F(FileServiceTest, SeekingBeforeTheStartIsRefused) {
    openHundredBytes();
    seek(2, "-101");
    expectRefused(188);
    EXPECT_EQ(window.stats[StatsBytesReceived], 4) << "the offset was received all the same";
    EXPECT_EQ(window.stats[StatsBytesSent], 0);
}

TEST_F(FileServiceTest, AnOffsetThatNoPositionHoldsIsARunTimeError) {
    for (const char* offset : {"2147483647", "1E300", "-1E999", "3000000000"}) {
        openHundredBytes();
        trace.entries.clear();
        seek(0, offset);
        expectRefused(188);
        expectTraced("6: Overflow");
        openService("FILE");
    }
}

TEST_F(FileServiceTest, SeekModesAboveTwoAreRefused) {
    for (const int mode : {3, 255}) {
        openHundredBytes();
        seek(mode, "0");
        expectRefused(190);
        openService("FILE");
    }
}

TEST_F(FileServiceTest, SeekingWithoutAModeIsRefused) {
    openHundredBytes();
    message({kSeek});
    expectRefused(190);
}

TEST_F(FileServiceTest, SeekingInTextIsRefused) {
    add("Memo", "one\r\n");
    openRequest(0, 1, "MEMO");
    sender.frames.clear();
    seek(0, "0");
    expectRefused(190);
    openService("FILE");
    openRequest(1, 1, "NEW");
    sender.frames.clear();
    seek(0, "0");
    expectRefused(190);
}

TEST_F(FileServiceTest, SeekingNothingIsRefused) {
    seek(0, "0");
    expectRefused(188);
}

// Listings.

TEST_F(FileServiceTest, AFolderIsListed) {
    add("Shopping list.odb", "");
    memory.setShortName("/psion/Shopping list.odb", "SHOPPI~1.ODB");
    add("Zebra.odb", "");
    openRequest(0, 2, "*.ODB");
    expectReply("");
    read();
    expectReply("SHOPPI>1.ODB");
    read();
    expectReply("ZEBRA.ODB");
    read();
    expectRefused(238);
    EXPECT_EQ(window.stats[StatsBytesSent], 14 + 11);
}

TEST_F(FileServiceTest, AListedShortNameOpensItsFile) {
    add("Shopping list.odb", "milk\r\n");
    memory.setShortName("/psion/Shopping list.odb", "SHOPPI~1.ODB");
    openRequest(0, 1, "SHOPPI>1.ODB");
    expectReply("");
    read();
    expectReply("milk");
    EXPECT_EQ(window.currentFile, "/psion/Shopping list.odb");
}

TEST_F(FileServiceTest, LongNamesAreListed) {
    add("Shopping list.odb", "");
    openRequest(0, 3, "*");
    read();
    expectReply("Shopping list.odb");
}

TEST_F(FileServiceTest, AListingIsNeitherWrittenNorSought) {
    openRequest(1, 3, "*");
    sender.frames.clear();
    write("x");
    expectRefused(188);
    openService("FILE");
    openRequest(1, 3, "*");
    sender.frames.clear();
    seek(0, "0");
    expectRefused(190);
}

TEST_F(FileServiceTest, AListingOfAFolderThatIsMissingIsRefused) {
    openRequest(0, 3, "NOFOLDER/*");
    expectRefused(189);
}

TEST_F(FileServiceTest, AFolderThatFailsIsAnsweredByItsCode) {
    files.failAtCall(FileCall::List, 1, ErrorNumber::PermissionDenied);
    openRequest(0, 3, "*");
    expectRefused(199);
}

TEST_F(FileServiceTest, WildcardsAreForListingsOnly) {
    openRequest(0, 1, "*.ODB");
    expectRefused(189);
    openService("FILE");
    openRequest(0, 0, "*.ODB");
    expectRefused(189);
}

// Who observes the transfers.

TEST_F(FileServiceTest, TheKindOfATransferIsWhatItIsOpenedAs) {
    memory.addFile("/psion/Memo.txt", "x");
    const std::vector<std::pair<int, TransferKind>> kinds = {{0, TransferKind::Bytes},
                                                             {1, TransferKind::Text},
                                                             {2, TransferKind::Listing},
                                                             {3, TransferKind::Listing}};
    for (const auto& [kind, told_kind] : kinds) {
        openRequest(0, kind, "MEMO.TXT");
        EXPECT_EQ(told.running.kind, told_kind);
        EXPECT_EQ(told.running.direction, TransferDirection::Load);
        closeRequest();
        openService("FILE");
    }
}

TEST_F(FileServiceTest, AListingIsALoadInEveryMode) {
    openRequest(4, 3, "*.*");
    EXPECT_EQ(told.running.direction, TransferDirection::Load);
    EXPECT_EQ(told.running.name, "*.*");
}

}  // namespace
}  // namespace velmora
