#include "services/plan_service.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/run_time_error.h"
#include "link/server_state.h"
#include "spreadsheet/tokens.h"
#include "spreadsheet/wks_writer.h"
#include "support/failing_files.h"
#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/recording_sender.h"
#include "support/recording_trace.h"
#include "support/recording_transfers.h"
#include "support/recording_window.h"
#include "support/slash_path_rules.h"

namespace velmora {
namespace {

using namespace std::string_literals;

/// Puts every name into the download folder; refuses those with "*".
class FolderNames : public FileNameMapper {
  public:
    explicit FolderNames(const Files& files) : files_(files) {}
    std::string map_FileName(std::string_view name, bool resolveExisting, bool) const override {
        resolved = resolveExisting;
        if (name.find('*') != std::string_view::npos) {
            return {};
        }
        const std::string path = "/folder/" + std::string(name);
        return resolveExisting ? files_.storedPath(path) : path;
    }
    std::string displayName(const std::string& path) const override {
        return path.substr(path.rfind('/') + 1);
    }
    mutable bool resolved = false;

  private:
    const Files& files_;
};

std::string message(int column, int row, int type, const std::string& text) {
    return std::string{static_cast<char>(column), static_cast<char>(row), static_cast<char>(type)} + text;
}
std::string label(int column, int row, const std::string& text) {
    return message(column, row, 34, text);
}
std::string value(int column, int row, const std::string& text) {
    return message(column, row, 135, text);
}

const std::string kEnd = "\xFE\0"s;
const std::string kOk = "\0"s;

class PlanServiceTest : public ::testing::Test {
  protected:
    PlanServiceTest() {
        memory.addFolder("/folder");
        transfers.observe(told);
    }

    /// Gives the service one event; its code afterwards.
    std::int32_t event(std::int32_t code, const std::string& payload = {}) {
        std::string copy = payload;
        service.handle(code, copy);
        return code;
    }
    void open() { EXPECT_EQ(event(kServiceOpened, "PLAN"), kServiceOpened); }
    /// Sends a message and gives the DATA frame that answers it.
    std::string ask(const std::string& data) {
        sender.frames.clear();
        EXPECT_EQ(event(PLP_EV_DATA, data), PLP_EV_DATA);
        EXPECT_EQ(sender.frames.size(), 1U);
        EXPECT_EQ(sender.frames.back().type, FrameType::Data);
        return sender.frames.back().data;
    }
    /// Sends a message that ends the service; the data of the DISCON frame.
    std::string refusal(const std::string& data) {
        sender.frames.clear();
        EXPECT_EQ(event(PLP_EV_DATA, data), PLP_EV_RESET);
        EXPECT_EQ(sender.frames.size(), 1U);
        EXPECT_EQ(sender.frames.back().type, FrameType::Discon);
        return sender.frames.back().data;
    }
    void expectRunTimeError(const std::string& data) {
        sender.frames.clear();
        EXPECT_THROW(event(PLP_EV_DATA, data), RunTimeError);
        EXPECT_TRUE(sender.frames.empty()) << "the dispatcher answers";
    }
    /// Asks for a file in a format: the PC sends.
    void load(int format, const std::string& name) {
        open();
        EXPECT_EQ(ask(static_cast<char>(format) + name), kOk);
    }
    /// Announces a file in a format: the Organiser sends.
    void save(int format, const std::string& name) {
        open();
        EXPECT_EQ(ask(static_cast<char>(128 + format) + name), kOk);
    }
    void announce(int columns, int rows) {
        EXPECT_EQ(ask({static_cast<char>(columns), static_cast<char>(rows)}), kOk);
    }
    void put(const std::string& cell) { EXPECT_EQ(ask(cell), kOk); }
    /// Sends a sheet of one cell where there is a file, but not its end.
    void sendOverOldFile() {
        memory.addFile("/folder/C.CSV", "old");
        save(4, "C");
        announce(1, 1);
        put(value(0, 0, "1"));
    }
    /// Trace and log were told these lines and no others.
    void expectReports(const std::vector<std::string>& lines) {
        EXPECT_EQ(window.reports, lines);
        ASSERT_EQ(trace.entries.size(), lines.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_EQ(trace.entries[i].data, lines[i]);
        }
    }
    SheetGrid sheetIn(const std::string& path, int format = 2) {
        SheetGrid sheet;
        EXPECT_EQ(spreadsheet.ImportSheet(sheet, path, format), 0);
        return sheet;
    }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    test::SlashPathRules rules;
    SpreadsheetSettings settings;
    Spreadsheet spreadsheet{files, rules, settings};
    test::RecordingSender sender;
    test::RecordingWindow window;
    test::RecordingTrace trace;
    FolderNames names{memory};
    test::FakeTime time;
    TransferLog log{window, trace, rules};
    EarlierCopiesSettings copiesSettings{"/copies"};
    EarlierCopies copies{files, rules, time, log, copiesSettings};
    Transfers transfers{time};
    test::RecordingTransfers told;  // of all transfers
    PlanService service{sender, window, names, spreadsheet, copies, log, transfers};
};

// Opening and header.

TEST_F(PlanServiceTest, OpeningIsAnsweredWithNothing) {
    open();
    EXPECT_EQ(sender.frames, (std::vector<test::RecordingSender::Frame>{{FrameType::Data, ""}}));
}

TEST_F(PlanServiceTest, TheHeaderNamesDirectionFormatAndFile) {
    memory.addFile("/folder/Sheet.csv", "1;2");
    load(4, "sheet.csv");
    EXPECT_TRUE(names.resolved);
    EXPECT_EQ(window.current, Upload);
    EXPECT_EQ(window.currentFile, "/folder/Sheet.csv");
    event(PLP_EV_RESET);

    save(2, "NEW.WKS");
    EXPECT_FALSE(names.resolved);
    EXPECT_EQ(window.current, Downld);
    EXPECT_EQ(window.currentFile, "/folder/NEW.WKS");
}

TEST_F(PlanServiceTest, ANameWithoutExtensionGetsThatOfTheFormat) {
    const struct {
        int format;
        const char* name;
        const char* file;
    } rows[] = {{2, "A", "A.WKS"},
                {3, "A", "A.DIF"},
                {6, "A", "A.TXT"},
                {2, "A.B", "A.B"},
                {2, "A.", "A."},
                {2, "A.ABCD", "A.ABCD"},
                {2, "A.ABCDE", "A.ABCDE.WKS"},
                {2, "A.B.C", "A.B.C"},
                {7, "A", "A."},
                {0, "A", "A."}};
    for (const auto& row : rows) {
        save(row.format, row.name);
        EXPECT_EQ(window.currentFile, std::string("/folder/") + row.file);
        event(PLP_EV_RESET);
    }
}

TEST_F(PlanServiceTest, AMissingFileIsRefusedInDecimalDigits) {
    open();
    EXPECT_EQ(refusal("\2MISSING"), "53");
}

TEST_F(PlanServiceTest, ARefusedNameIsABadFileName) {
    open();
    EXPECT_EQ(refusal("\2A*"), "64");
    open();
    EXPECT_EQ(refusal("\x82"
                      "A*"),
              "\xBD")
        << "189";
}

TEST_F(PlanServiceTest, APathThatCannotBeWrittenIsRefusedWithOneByte) {
    const struct {
        ErrorNumber error;
        const char* code;
    } rows[] = {{ErrorNumber::PathFileAccess, "\xBD"},
                {ErrorNumber::FileAlreadyExists, "\xBD"},
                {ErrorNumber::PermissionDenied, "\xC7"},
                {ErrorNumber::DiskFull, "\xBA"},
                {ErrorNumber::TooManyFiles, "\xBC"}};
    for (const auto& row : rows) {
        open();
        files.failAtCall(test::FileCall::Open, 1, row.error);
        EXPECT_EQ(refusal("\x82NEW"), row.code);
    }
    EXPECT_EQ(window.current, WaitLink) << "nothing was shown";
}

TEST_F(PlanServiceTest, CheckingThePathLeavesTheOldFileAlone) {
    memory.addFile("/folder/OLD.WKS", "old");
    save(2, "OLD");
    event(PLP_EV_RESET);
    EXPECT_EQ(memory.content("/folder/OLD.WKS"), "old");
    EXPECT_EQ(memory.paths().size(), 1U);
    save(2, "NEW");
    event(PLP_EV_RESET);
    EXPECT_EQ(memory.paths().size(), 1U) << "nor does a broken transfer leave a new one";
}

TEST_F(PlanServiceTest, AnEmptyHeaderIsARunTimeError) {
    open();
    expectRunTimeError("");
}

// The PC sends.

TEST_F(PlanServiceTest, SendsTheCellsRowByRowAndThenTheEnd) {
    SheetGrid sheet(2, 3);
    sheet.at({0, 0}) = std::int16_t{5};
    sheet.at({1, 2}) = Label{"text"};
    memory.addFile("/folder/S.WKS", writeWks(sheet));
    load(2, "S");
    EXPECT_EQ(ask(""), value(0, 0, "5"));
    EXPECT_EQ(ask("anything"), label(2, 1, "text"));
    EXPECT_EQ(ask(""), kEnd);
    EXPECT_EQ(window.stats[StatsBytesSent], 4 + 7);
    EXPECT_EQ(window.stats[StatsFilesSent], 1);
}

TEST_F(PlanServiceTest, TheEndIsSentAgainButCountedOnce) {
    memory.addFile("/folder/S.WKS", writeWks(SheetGrid(1, 1)));
    load(2, "S");
    EXPECT_EQ(ask(""), kEnd);
    EXPECT_EQ(ask(""), kEnd);
    EXPECT_EQ(ask(""), kEnd);
    EXPECT_EQ(window.stats[StatsFilesSent], 1);
}

TEST_F(PlanServiceTest, EachKindOfCellIsEncoded) {
    SheetGrid sheet(1, 4);
    sheet.at({0, 0}) = std::int16_t{-7};
    sheet.at({0, 1}) = 1234.5;
    sheet.at({0, 2}) = Label{"Sum"};
    sheet.at({0, 3}) = Formula{"A1+B1"};
    memory.addFile("/folder/S.WKS", writeWks(sheet));
    load(2, "S");
    EXPECT_EQ(ask(""), value(0, 0, "-7"));
    EXPECT_EQ(ask(""), value(1, 0, "1.2345E3"));
    EXPECT_EQ(ask(""), label(2, 0, "Sum"));
    EXPECT_EQ(ask(""), value(3, 0, "=A1+B1"));
}

TEST_F(PlanServiceTest, OnlyTheColumnsAToZAreSent) {
    std::string line;
    for (int column = 0; column < 30; ++column) {
        line += std::to_string(column) + ";";
    }
    memory.addFile("/folder/W.CSV", line);
    load(4, "W");
    for (int column = 0; column < 26; ++column) {
        EXPECT_EQ(ask(""), value(column, 0, std::to_string(column)));
    }
    EXPECT_EQ(ask(""), kEnd);
}

TEST_F(PlanServiceTest, AnEmptyFileIsTheEndAtOnce) {
    memory.addFile("/folder/E.CSV", "");
    load(4, "E");
    EXPECT_EQ(ask(""), kEnd);
}

TEST_F(PlanServiceTest, AFormatThatIsNoneHasNoCells) {
    load(1, "X");
    EXPECT_EQ(ask(""), kEnd);
}

TEST_F(PlanServiceTest, AcknowledgementsDoNothing) {
    memory.addFile("/folder/S.CSV", "5");
    load(4, "S");
    sender.frames.clear();
    EXPECT_EQ(event(PLP_EV_ACKED), PLP_EV_ACKED);
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_EQ(ask(""), value(0, 0, "5"));
}

// The Organiser sends.

TEST_F(PlanServiceTest, StoresTheCellsAndWritesTheFileAtTheEnd) {
    save(2, "S");
    announce(3, 2);
    put(label(0, 0, "Sum"));
    put(value(1, 0, "123"));
    put(value(2, 1, "=A1+B1"));
    EXPECT_FALSE(memory.fileExists("/folder/S.WKS"));
    EXPECT_EQ(ask("\xFE"), kEnd);
    SheetGrid expected(2, 3);
    expected.at({0, 0}) = Label{"Sum"};
    expected.at({0, 1}) = std::int16_t{123};
    expected.at({1, 2}) = Formula{"A1+B1"};
    EXPECT_EQ(sheetIn("/folder/S.WKS"), expected);
    EXPECT_EQ(window.stats[StatsBytesReceived], 2 + 6 + 6 + 9);
    EXPECT_EQ(window.stats[StatsFilesReceived], 1);
}

TEST_F(PlanServiceTest, NumbersAreIntegersOrDoubles) {
    save(2, "N");
    announce(4, 1);
    put(value(0, 0, "40000"));
    put(value(1, 0, "123"));
    put(value(2, 0, "1.0"));
    put(value(3, 0, "5E-1"));
    ask("\xFE");
    const SheetGrid sheet = sheetIn("/folder/N.WKS");
    EXPECT_EQ(sheet.at({0, 0}), Cell(40000.0));
    EXPECT_EQ(sheet.at({0, 1}), Cell(std::int16_t{123}));
    EXPECT_EQ(sheet.at({0, 2}), Cell(1.0));
    EXPECT_EQ(sheet.at({0, 3}), Cell(0.5));
}

TEST_F(PlanServiceTest, FormulasStayEmptyWhereTheFormatKeepsNone) {
    save(4, "C");
    announce(2, 1);
    put(value(0, 0, "=A1+1"));
    put(value(1, 0, "2"));
    ask("\xFE");
    EXPECT_EQ(memory.content("/folder/C.CSV"), "\"\",\"2\",\r\n");
}

TEST_F(PlanServiceTest, ALabelMayBeginWithAnEqualsSign) {
    save(4, "C");
    announce(1, 1);
    put(label(0, 0, "=A1"));
    ask("\xFE");
    EXPECT_EQ(memory.content("/folder/C.CSV"), "\"=A1\",\r\n");
}

TEST_F(PlanServiceTest, ASecondMessageForACellIsIgnoredButCounted) {
    save(4, "C");
    announce(1, 1);
    put(value(0, 0, "1"));
    put(value(0, 0, "2"));
    ask("\xFE");
    EXPECT_EQ(memory.content("/folder/C.CSV"), "\"1\",\r\n");
    EXPECT_EQ(window.stats[StatsBytesReceived], 2 + 4 + 4);
}

TEST_F(PlanServiceTest, AnOldFileIsReplacedOnlyByAWholeOne) {
    copiesSettings.days = 0;
    sendOverOldFile();
    files.failAtCall(test::FileCall::Write, 1, ErrorNumber::DiskFull);
    EXPECT_EQ(refusal("\xFE"), "=") << "61, the error number itself";
    EXPECT_EQ(memory.content("/folder/C.CSV"), "old");
    EXPECT_EQ(memory.paths().size(), 1U);
}

TEST_F(PlanServiceTest, WhatASheetReplacesIsKept) {
    sendOverOldFile();
    EXPECT_FALSE(memory.folderExists("/copies")) << "nothing is replaced yet";
    EXPECT_EQ(ask("\xFE"), kEnd);
    EXPECT_EQ(memory.content("/copies/C (2026-03-28 14.05.09).CSV"), "old");
    EXPECT_EQ(memory.content("/folder/C.CSV"), "\"1\",\r\n");
}

TEST_F(PlanServiceTest, WithoutRoomForTheCopyTheDiskIsFullAndTheOldFileStands) {
    sendOverOldFile();
    files.failAfterBytes(2, ErrorNumber::DiskFull);
    EXPECT_EQ(refusal("\xFE"), "=") << "61";
    EXPECT_EQ(memory.content("/folder/C.CSV"), "old");
    EXPECT_EQ(memory.paths().size(), 1U);
    expectReports({"C.CSV was not saved: Disk full"});
}

TEST_F(PlanServiceTest, WithoutItsCopyAFileIsNotReplacedEvenIfTheDiskHasRoomAgain) {
    sendOverOldFile();
    files.failAtCall(test::FileCall::Write, 1, ErrorNumber::DiskFull);
    EXPECT_EQ(refusal("\xFE"), "=") << "61";
    EXPECT_EQ(memory.content("/folder/C.CSV"), "old");
}

TEST_F(PlanServiceTest, AFormatThatIsNoneWritesNothing) {
    save(1, "X");
    announce(1, 1);
    put(value(0, 0, "1"));
    EXPECT_EQ(ask("\xFE"), kEnd);
    EXPECT_TRUE(memory.paths().empty());
}

TEST_F(PlanServiceTest, WithoutASizeThereIsNoSheet) {
    save(2, "E");
    announce(0, 5);
    expectRunTimeError(value(0, 0, "1"));
    EXPECT_EQ(ask("\xFE"), kEnd);
    EXPECT_EQ(sheetIn("/folder/E.WKS"), SheetGrid(1, 1));
}

TEST_F(PlanServiceTest, CellsOutsideTheSizeAreARunTimeError) {
    save(2, "S");
    announce(2, 3);
    expectRunTimeError(value(2, 0, "1"));
    expectRunTimeError(value(0, 3, "1"));
    expectRunTimeError(value(255, 255, "1"));
    put(value(1, 2, "1"));
}

TEST_F(PlanServiceTest, MessagesTooShortForACellAreARunTimeError) {
    save(2, "S");
    announce(1, 1);
    expectRunTimeError("");
    expectRunTimeError("\1");
    expectRunTimeError("\0\0"s);
    expectRunTimeError("\xFE\0"s);
    put(value(0, 0, ""));
}

TEST_F(PlanServiceTest, TheSizeIsTwoBytes) {
    save(2, "S");
    expectRunTimeError("");
    expectRunTimeError("\1");
    expectRunTimeError(value(0, 0, "a cell before any size"));
    announce(26, 99);
    put(value(25, 98, "1"));
}

TEST_F(PlanServiceTest, ASheetLargerThanTheOrganisersIsSavedWholeAndItsCellsUpToZ99ComeBack) {
    for (const int format : {2, 6}) {
        const std::string name = "L" + std::to_string(format) + ".X";
        save(format, name);
        announce(255, 255);
        put(value(0, 0, "1"));
        put(value(26, 0, "222"));
        put(value(0, 99, "333"));
        put(value(254, 254, "444"));
        EXPECT_EQ(ask("\xFE"), kEnd);
        event(PLP_EV_RESET);
        load(format, name);
        EXPECT_EQ(ask(""), value(0, 0, "1"));
        for (std::string cell = ask(""); cell != kEnd; cell = ask("")) {
            ASSERT_EQ(cell.substr(2), "\"") << "nothing but the empty labels of a text file";
        }
        event(PLP_EV_RESET);
    }
    EXPECT_NE(memory.content("/folder/L6.X").find("444"), std::string::npos);
}

TEST_F(PlanServiceTest, NumbersThatAreNotFiniteAreSentAsAFormula) {
    SheetGrid sheet(1, 3);
    sheet.at({0, 0}) = std::numeric_limits<double>::infinity();
    sheet.at({0, 1}) = -std::numeric_limits<double>::infinity();
    sheet.at({0, 2}) = std::numeric_limits<double>::quiet_NaN();
    memory.addFile("/folder/S.WKS", writeWks(sheet));
    load(2, "S");
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(ask(""), value(column, 0, "=ERR"));
    }
    EXPECT_EQ(ask(""), kEnd);
}

// What is told of the cells.

TEST_F(PlanServiceTest, FormulasThatWillNotComeBackAreNamedCellByCell) {
    save(2, "S");
    announce(3, 3);
    put(value(0, 0, "=A2-(B2-C2)"));
    put(value(1, 0, "=A2-B2-C2"));
    put(value(2, 2, "=5.0E-1*A1"));
    EXPECT_EQ(ask("\xFE"), kEnd) << "the sheet is saved";
    expectReports(
        {"S.WKS, A1: =A2-(B2-C2) comes back as =A2-B2-C2", "S.WKS, C3: =5.0E-1*A1 comes back as =ERR"});
}

TEST_F(PlanServiceTest, TheDialectDecidesWhichFormulasAreNamed) {
    settings.wksDialect = WksDialect::Common;
    save(2, "S");
    announce(1, 1);
    put(value(0, 0, "=A2-(B2-C2)"));
    EXPECT_EQ(ask("\xFE"), kEnd);
    expectReports({});
}

TEST_F(PlanServiceTest, AFormulaThatCannotBeConvertedFailsTheSaveAndIsNamed) {
    memory.addFile("/folder/S.WKS", "old");
    save(2, "S");
    announce(2, 2);
    put(value(1, 1, "=A1+("));
    EXPECT_EQ(refusal("\xFE"), "\5");
    EXPECT_EQ(memory.content("/folder/S.WKS"), "old");
    expectReports({"S.WKS, B2: =A1+( cannot be saved: Invalid procedure call: it cannot be converted",
                   "S.WKS was not saved: Invalid procedure call"});
}

TEST_F(PlanServiceTest, AFormulaThatCouldNeverBeFetchedAgainFailsTheSave) {
    std::string nested = "A1";
    for (int i = 0; i < 101; ++i) {
        nested = "A1+(" + nested + ")";
    }
    save(2, "S");
    announce(1, 1);
    put(value(0, 0, "=" + nested));
    EXPECT_EQ(refusal("\xFE"), "\t") << "9";
    EXPECT_TRUE(memory.paths().empty());
    ASSERT_EQ(window.reports.size(), 2U);
    EXPECT_EQ(window.reports.front().substr(0, 14), "S.WKS, A1: =A1");
}

TEST_F(PlanServiceTest, WhyASheetWasNotReadIsTold) {
    std::string tokens;
    for (int i = 0; i < 102; ++i) {
        tokens += test::integer(1);
    }
    memory.addFile("/folder/D.WKS", test::formulaRecord(1, 2, tokens));
    open();
    EXPECT_EQ(refusal("\2D"), "9");
    expectReports({"D.WKS, B3: its formula cannot be read: Subscript out of range: the formula is too deep",
                   "D.WKS was not read: Subscript out of range"});
}

// The end of the service.

TEST_F(PlanServiceTest, ALinkThatGoesDownForgetsTheSheet) {
    save(2, "S");
    announce(1, 1);
    put(value(0, 0, "1"));
    sender.frames.clear();
    EXPECT_EQ(event(PLP_EV_RESET), PLP_EV_RESET);
    EXPECT_EQ(event(PLP_EV_DATA, "\xFE"), PLP_EV_DATA);
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_TRUE(memory.paths().empty());
}

TEST_F(PlanServiceTest, ASaveThatBreaksOffIsTold) {
    save(4, "A");
    announce(1, 1);
    put(value(0, 0, "17"));
    event(PLP_EV_RESET);
    expectReports({"A.CSV was not saved: 7 bytes arrived."});
    EXPECT_EQ(window.lineDowns, 1);
}

TEST_F(PlanServiceTest, ASaveThatBreaksOffBeforeItsFirstCellIsTold) {
    save(4, "A");
    event(PLP_EV_RESET);
    expectReports({"A.CSV was not saved: 0 bytes arrived."});
}

TEST_F(PlanServiceTest, ASaveOrLoadThatIsCompleteIsNotTold) {
    save(4, "A");
    announce(1, 1);
    put(value(0, 0, "17"));
    ask("\xFE");
    event(PLP_EV_RESET);
    load(4, "A");
    event(PLP_EV_RESET);
    expectReports({});
    EXPECT_EQ(window.lineDowns, 0);
}

TEST_F(PlanServiceTest, ANewTransferStartsAfresh) {
    save(4, "A");
    announce(1, 1);
    put(value(0, 0, "1"));
    event(PLP_EV_RESET);
    save(4, "B");
    announce(1, 1);
    put(value(0, 0, "2"));
    ask("\xFE");
    EXPECT_EQ(memory.content("/folder/B.CSV"), "\"2\",\r\n");
}

TEST_F(PlanServiceTest, WhatIsSavedLoadsBackTheSame) {
    save(2, "R");
    announce(2, 2);
    const std::vector<std::string> cells = {label(0, 0, "Total"), value(1, 0, "=SUM(A1:A9)*2.0E0"),
                                            value(0, 1, "17"), value(1, 1, "2.5E-1")};
    for (const std::string& cell : cells) {
        put(cell);
    }
    ask("\xFE");
    event(PLP_EV_RESET);
    load(2, "R");
    for (const std::string& cell : cells) {
        EXPECT_EQ(ask(""), cell);
    }
    EXPECT_EQ(ask(""), kEnd);
}

// Who observes the transfers.

using Lines = std::vector<std::string>;

TEST_F(PlanServiceTest, ASavedSheetIsToldWithItsBytes) {
    save(2, "PLAN");
    announce(1, 1);
    put(label(0, 0, "one"));
    EXPECT_EQ(told.running.kind, TransferKind::Sheet);
    EXPECT_EQ(told.running.bytes, 8U);
    EXPECT_EQ(ask("\xFE"), kEnd);
    event(PLP_EV_RESET);
    EXPECT_EQ(told.lines(), Lines{"saved PLAN.WKS 8 bytes in 0.0 s"});
}

TEST_F(PlanServiceTest, ASavedSheetIsToldWithWhatItReplacedAndWhichFormulasChanged) {
    memory.addFile("/folder/S.WKS", "old");
    save(2, "S");
    announce(2, 1);
    put(value(0, 0, "=A2-(B2-C2)"));
    put(value(1, 0, "=A2-B2-C2"));
    EXPECT_EQ(ask("\xFE"), kEnd);
    ASSERT_EQ(told.ended.size(), 1U);
    EXPECT_EQ(told.ended[0].transfer.remarks, Lines{"A1: =A2-(B2-C2) comes back as =A2-B2-C2"});
    EXPECT_EQ(memory.content(told.ended[0].transfer.earlierCopy), "old");
    EXPECT_EQ(told.lines(), Lines{"saved S.WKS 28 bytes in 0.0 s, 1 formula changed"});
    save(2, "T");
    announce(1, 1);
    EXPECT_EQ(ask("\xFE"), kEnd);
    ASSERT_EQ(told.ended.size(), 1U);
    EXPECT_TRUE(told.ended[0].transfer.remarks.empty());
    EXPECT_EQ(told.ended[0].transfer.earlierCopy, "");
}

TEST_F(PlanServiceTest, ALoadedSheetIsToldWithItsBytes) {
    memory.addFile("/folder/PLAN.csv", "x;7\r\n");
    load(4, "PLAN");
    while (ask("next") != kEnd) {
    }
    EXPECT_EQ(ask("next"), kEnd);
    event(PLP_EV_RESET);
    EXPECT_EQ(told.lines(), Lines{"loaded PLAN.csv 8 bytes in 0.0 s"});
}

TEST_F(PlanServiceTest, ASheetThatBreaksOffIsToldAsIncomplete) {
    save(2, "PLAN");
    announce(1, 1);
    event(PLP_EV_RESET);
    EXPECT_EQ(told.lines(), Lines{"save of PLAN.WKS incomplete: 2 bytes in 0.0 s, the link ended"});
}

TEST_F(PlanServiceTest, WhyASheetIsRefusedIsToldInWords) {
    open();
    refusal("\x02NONE");
    EXPECT_EQ(told.lines(), Lines{"load of NONE.WKS refused: File not found (53)"});
    files.failAtCall(test::FileCall::Open, 1, ErrorNumber::PathFileAccess);
    open();
    refusal("\x82NONE");
    EXPECT_EQ(told.lines(), Lines{"save of NONE.WKS refused: Path/file access error (189)"});
}

TEST_F(PlanServiceTest, ASheetThatCannotBeWrittenInTheEndIsIncomplete) {
    save(2, "PLAN");
    announce(1, 1);
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    refusal("\xFE");
    EXPECT_EQ(told.lines(), Lines{"save of PLAN.WKS incomplete: 2 bytes in 0.0 s, Disk full (61)"});
}

}  // namespace
}  // namespace velmora
