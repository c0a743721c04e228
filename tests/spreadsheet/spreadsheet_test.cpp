#include "spreadsheet/spreadsheet.h"

#include <gtest/gtest.h>

#include "spreadsheet/tokens.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/slash_path_rules.h"

namespace velmora {
namespace {

class SpreadsheetTest : public ::testing::Test {
  protected:
    SpreadsheetTest() {
        memory.addFolder("/folder");
        sample.at({0, 0}) = std::int16_t{7};
        sample.at({0, 1}) = Label{"text"};
        sample.at({1, 0}) = 0.5;
        sample.at({1, 1}) = Label{"more"};
    }
    SheetGrid imported(const std::string& path, int format) {
        SheetGrid sheet;
        EXPECT_EQ(spreadsheet.ImportSheet(sheet, path, format), 0);
        return sheet;
    }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    test::SlashPathRules rules;
    SpreadsheetSettings settings;
    Spreadsheet spreadsheet{files, rules, settings};
    SheetGrid sample{2, 2};
};

TEST_F(SpreadsheetTest, EachFormatHasItsWriter) {
    const struct {
        int format;
        const char* start;
    } rows[] = {{3, "TABLE\r\n"}, {4, "\"7\",\"text\","}, {5, "7    text"}, {6, "7\ttext\t"}};
    for (const auto& row : rows) {
        const std::string path = "/folder/out" + std::to_string(row.format);
        EXPECT_EQ(spreadsheet.ExportSheet(sample, path, row.format), 0);
        EXPECT_EQ(memory.content(path).substr(0, std::string(row.start).size()), row.start);
    }
    EXPECT_EQ(spreadsheet.ExportSheet(sample, "/folder/out2", 2), 0);
    EXPECT_EQ(memory.content("/folder/out2").substr(0, 6), test::startRecord);
}

TEST_F(SpreadsheetTest, FormatsThatAreNoneWriteNothing) {
    for (const int format : {0, 1, 7, 127}) {
        EXPECT_EQ(spreadsheet.ExportSheet(sample, "/folder/out", format), 0);
        EXPECT_EQ(sheetBytes(sample, format, settings), "");
    }
    EXPECT_TRUE(memory.paths().empty());
}

TEST_F(SpreadsheetTest, FormatsThatAreNoneLeaveTheSheetUntouched) {
    for (const int format : {0, 1, 7, 127}) {
        SheetGrid sheet = sample;
        EXPECT_EQ(spreadsheet.ImportSheet(sheet, "/folder/missing", format), 0);
        EXPECT_EQ(sheet, sample);
    }
}

TEST_F(SpreadsheetTest, FormatsThatAreNoneReadNothing) {
    memory.addFile("/folder/a", "7;text");
    for (const int format : {0, 1, 7, 127}) {
        const auto file = files.open("/folder/a", OpenMode::Read);
        EXPECT_FALSE(sheetFromFile(*file, format, settings).exists());
    }
    EXPECT_EQ(files.calls(test::FileCall::Read), 0);
}

TEST_F(SpreadsheetTest, WhatIsWrittenIsReadBack) {
    spreadsheet.ExportSheet(sample, "/folder/a.wks", 2);
    EXPECT_EQ(imported("/folder/a.wks", 2), sample);
    spreadsheet.ExportSheet(sample, "/folder/a.txt", 5);
    EXPECT_EQ(imported("/folder/a.txt", 5), sample);
    spreadsheet.ExportSheet(sample, "/folder/a.dif", 3);
    EXPECT_EQ(imported("/folder/a.dif", 3).at({0, 0}), Cell(7.0)) << "every number of a DIF file is a double";
    spreadsheet.ExportSheet(sample, "/folder/t.txt", 6);
    EXPECT_EQ(imported("/folder/t.txt", 6).at({1, 0}), Cell(0.5));
}

TEST_F(SpreadsheetTest, CsvIsWrittenWithCommasAndReadWithSemicolons) {
    spreadsheet.ExportSheet(sample, "/folder/a.csv", 4);
    EXPECT_EQ(imported("/folder/a.csv", 4).at({0, 0}), Cell(Label{"\"7\",\"text\","}));
    memory.addFile("/folder/b.csv", "7;text\r\n0.5;more\r\n");
    EXPECT_EQ(imported("/folder/b.csv", 4), sample);
}

TEST_F(SpreadsheetTest, AMissingFileIsError53AndLeavesTheSheet) {
    SheetGrid sheet = sample;
    EXPECT_EQ(spreadsheet.ImportSheet(sheet, "/folder/missing.wks", 2), 53);
    EXPECT_EQ(sheet, sample);
    EXPECT_EQ(spreadsheet.ImportSheet(sheet, "", 2), 64);
}

TEST_F(SpreadsheetTest, AFailureWhileReadingIsItsNumber) {
    memory.addFile("/folder/a.wks", test::startRecord);
    files.failAtCall(test::FileCall::Read, 1, ErrorNumber::DeviceIoError);
    SheetGrid sheet = sample;
    EXPECT_EQ(spreadsheet.ImportSheet(sheet, "/folder/a.wks", 2), 57);
    EXPECT_EQ(sheet, sample);
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(SpreadsheetTest, AFormulaTooDeepIsError9) {
    std::string tokens;
    for (int i = 0; i < 102; ++i) {
        tokens += test::integer(1);
    }
    memory.addFile("/folder/a.wks", test::formulaRecord(0, 0, tokens));
    SheetGrid sheet;
    EXPECT_EQ(spreadsheet.ImportSheet(sheet, "/folder/a.wks", 2), 9);

    SheetGrid deep(1, 1);
    deep.at({0, 0}) = Formula{std::string(102, '-') + "A1"};
    EXPECT_EQ(spreadsheet.ExportSheet(deep, "/folder/b.wks", 2), 9);
    EXPECT_FALSE(memory.fileExists("/folder/b.wks"));
}

TEST_F(SpreadsheetTest, RemarksNameTheCells) {
    std::vector<std::string> remarks;
    const CellRemark remark = [&](const std::string& line) { remarks.push_back(line); };
    SheetGrid sheet(1, 2);
    sheet.at({0, 0}) = Formula{"A1-(B1-C1)"};
    EXPECT_EQ(spreadsheet.ExportSheet(sheet, "/folder/a.csv", 4, remark), 0);
    EXPECT_TRUE(remarks.empty()) << "a text keeps the formula's text";
    EXPECT_EQ(spreadsheet.ExportSheet(sheet, "/folder/a.wks", 2, remark), 0);
    EXPECT_EQ(remarks, std::vector<std::string>{"A1: =A1-(B1-C1) comes back as =A1-B1-C1"});
    remarks.clear();
    sheet.at({0, 1}) = Formula{"?"};
    EXPECT_EQ(spreadsheet.ExportSheet(sheet, "/folder/a.wks", 2, remark), 5);
    EXPECT_EQ(remarks.back(), "B1: =? cannot be saved: Invalid procedure call: it cannot be converted");
    EXPECT_EQ(spreadsheet.ExportSheet(sheet, "/folder/a.wks", 2), 5) << "nobody need listen";
}

TEST_F(SpreadsheetTest, AFileAbove64MBIsError7AndNotRead) {
    memory.addFile("/folder/a.wks", test::startRecord + std::string(64 * 1024 * 1024, '\0'));
    for (int format = 2; format <= 6; ++format) {
        std::string said;
        SheetGrid sheet;
        EXPECT_EQ(spreadsheet.ImportSheet(sheet, "/folder/a.wks", format,
                                          [&](const std::string& line) { said = line; }),
                  7);
        EXPECT_EQ(said, "the file is larger than 64 MB");
    }
    EXPECT_EQ(files.calls(test::FileCall::Read), 0);
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(SpreadsheetTest, AFullDiskLeavesTheOldFile) {
    memory.addFile("/folder/a.wks", "old");
    files.failAfterBytes(10, ErrorNumber::DiskFull);
    EXPECT_EQ(spreadsheet.ExportSheet(sample, "/folder/a.wks", 2), 61);
    EXPECT_EQ(memory.content("/folder/a.wks"), "old");
    EXPECT_EQ(memory.paths().size(), 1U);
}

TEST_F(SpreadsheetTest, SettingsAreReadAtTheMomentOfUse) {
    SheetGrid sheet(1, 1);
    sheet.at({0, 0}) = Formula{"(A1+B1)*C1"};
    EXPECT_EQ(sheetBytes(sheet, 2, settings).find('\4', 10), std::string::npos);
    settings.wksDialect = WksDialect::Common;
    EXPECT_EQ(spreadsheet.ExportSheet(sheet, "/folder/c.wks", 2), 0);
    EXPECT_EQ(imported("/folder/c.wks", 2), sheet);
    settings.wksDialect = WksDialect::Own;
    EXPECT_EQ(imported("/folder/c.wks", 2).at({0, 0}), Cell(Formula{"ERR"}));

    settings.locale = {',', '.'};
    memory.addFile("/folder/d.csv", "0,5");
    EXPECT_EQ(imported("/folder/d.csv", 4).at({0, 0}), Cell(0.5));
}

TEST_F(SpreadsheetTest, CheckingThePathChangesNothing) {
    memory.addFile("/folder/a.wks", "old");
    spreadsheet.checkWritable("/folder/a.wks");
    spreadsheet.checkWritable("/folder/b.wks");
    EXPECT_EQ(memory.content("/folder/a.wks"), "old");
    EXPECT_EQ(memory.paths().size(), 1U);
    EXPECT_THROW(spreadsheet.checkWritable("/nowhere/b.wks"), RunTimeError);
}

}  // namespace
}  // namespace velmora
