#include "files/sheet_command.h"

#include "base/system_text.h"
#include "files/tool_fixture.h"
#include "spreadsheet/spreadsheet.h"
#include "spreadsheet/wks_writer.h"

namespace velmora {
namespace {

class SheetCommandTest : public test::ToolTest {
  protected:
    SheetCommandTest() {
        sheet.at({0, 0}) = std::int16_t{5};
        sheet.at({0, 1}) = Formula{"(A1+1)*2"};
        sheet.at({0, 2}) = 0.5;
        memory.addFile("/w/in.wks", writeWks(sheet));
    }
    SheetGrid sheet{1, 3};
};

TEST_F(SheetCommandTest, WhatDoesNotFitIntoASheetIsTold) {
    std::string tall;
    for (int i = 1; i <= 101; ++i) {
        tall += std::to_string(i) + "\n";
    }
    std::string wide = std::string(251, 'x');
    for (int i = 1; i <= 28; ++i) {
        wide += "\t" + std::to_string(i);
    }
    memory.addFile("/w/tall.tab", tall + "\n \n");
    memory.addFile("/w/wide.tab", wide + "\t\n");
    EXPECT_EQ(run({"sheet", "/w/tall.tab", "/w/out.wks"}), kStatusDone);
    EXPECT_EQ(complaint, "velmora-files: /w/tall.tab: rows below 99 are left out: 2\n");
    EXPECT_EQ(run({"sheet", "/w/wide.tab", "/w/out.wks", "--strict"}), kStatusLeftOut);
    EXPECT_EQ(complaint,
              "velmora-files: /w/wide.tab: columns to the right of Z are left out: 3\n"
              "velmora-files: /w/wide.tab: texts are cut to 250 characters: 1\n");
}

TEST_F(SheetCommandTest, AWorksheetThatIsCutOffIsTold) {
    EXPECT_EQ(run({"sheet", "-", "/w/whole.wks", "--from=tab"}, "one\ttwo\n"), 0);
    const std::string whole = memory.content("/w/whole.wks");
    EXPECT_EQ(run({"sheet", "/w/whole.wks", "-", "--to=tab", "--strict"}), kStatusDone) << complaint;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        memory.addFile("/w/cut.wks", whole.substr(0, length));
        EXPECT_EQ(run({"sheet", "/w/cut.wks", "-", "--to=tab", "--strict"}), kStatusLeftOut) << length;
        EXPECT_EQ(complaint, "velmora-files: /w/cut.wks: the file is cut off; what follows is missing\n");
        EXPECT_EQ(run({"show", "/w/cut.wks"}), kStatusDone);
        EXPECT_NE(complaint, "");
    }
}

// The number comes back with an exponent, which the file cannot hold.
TEST_F(SheetCommandTest, AFormulaThatAWorksheetWillNotGiveBackIsTold) {
    SheetGrid half(1, 2);
    half.at({0, 1}) = Formula{"0.5*A1"};
    memory.addFile("/w/in.wks", writeWks(half, WksDialect::Own));
    EXPECT_EQ(run({"sheet", "/w/in.wks", "-", "--to=wks", "--strict"}), kStatusLeftOut);
    EXPECT_EQ(complaint, "velmora-files: standard output: B1: =5.0E-1*A1 comes back as =ERR\n");
}

TEST_F(SheetCommandTest, ControlBytesOfAFormulaAreShownAndNotSentToTheTerminal) {
    SheetGrid formulas(1, 1);
    formulas.at({0, 0}) = Formula{"A1=\"caf\xE9 \x1B[2J\""};
    memory.addFile("/w/common.wks", writeWks(formulas, WksDialect::Common));
    EXPECT_EQ(run({"sheet", "/w/common.wks", "/w/own.wks", "--from-dialect=common", "--strict"}),
              kStatusLeftOut);
    EXPECT_EQ(complaint, "velmora-files: /w/own.wks: A1: =A1=\"" + toSystemText("caf\xE9") +
                             " <1B>[2J\" comes back as =ERR\n");
}

TEST_F(SheetCommandTest, TextsOfThePcMayBeUtf8) {
    EXPECT_EQ(run({"sheet", "-", "/w/a.wks", "--from=tab"},
                  "\xEF\xBB\xBF"
                  "Caf\xC3\xA9\n"),
              0);
    EXPECT_EQ(run({"sheet", "/w/a.wks", "-", "--to=tab"}), 0);
    EXPECT_EQ(printed, "Caf\xE9\t\r\n");
    EXPECT_EQ(run({"sheet", "/w/a.wks", "-", "--to=tab", "--encoding=utf-8"}), 0);
    EXPECT_EQ(printed, "Caf\xC3\xA9\t\r\n");
    EXPECT_EQ(run({"sheet", "-", "-", "--from=csv", "--to=tab"}, "\"a\nb\";c\n"), 0);
    EXPECT_NE(complaint.find("line 1: a field in quotes goes on"), std::string::npos) << complaint;
}

TEST_F(SheetCommandTest, FormatsComeFromTheExtensions) {
    EXPECT_EQ(run({"sheet", "/w/in.wks", "/w/out.csv"}), 0) << complaint;
    EXPECT_EQ(memory.content("/w/out.csv"), "\"5\",\"(A1+1)*2\",\"0.5\",\r\n");
    EXPECT_EQ(run({"sheet", "/w/in.WKS", "/w/out.TAB"}), 0);
    EXPECT_EQ(memory.content("/w/out.TAB"), "5\t(A1+1)*2\t0.5\t\r\n");
    EXPECT_EQ(run({"sheet", "/w/in.wks", "/w/out.dif"}), 0);
    EXPECT_EQ(memory.content("/w/out.dif").substr(0, 5), "TABLE");
    EXPECT_EQ(run({"sheet", "/w/in.wks", "/w/out.txt"}), 0);
    EXPECT_EQ(memory.content("/w/out.txt"), "5  (A1+1)*20.5 \r\n");
    EXPECT_EQ(run({"sheet", "/w/in.wks", "/w/copy.wks"}), 0);
    EXPECT_EQ(memory.content("/w/copy.wks"), memory.content("/w/in.wks"));
}

TEST_F(SheetCommandTest, StandardStreamsNeedFormats) {
    EXPECT_EQ(run({"sheet", "-", "-", "--from", "csv", "--to", "tab"}, "1;2\n"), 0);
    EXPECT_EQ(printed, "1\t2\t\r\n");
    expectUsage({"sheet", "-", "/w/out.csv"}, "--from");
    expectUsage({"sheet", "/w/in.wks", "-"}, "--to");
}

TEST_F(SheetCommandTest, TheSeparatorOfCsvCanBeChosen) {
    const std::vector<std::string> command = {"sheet", "-", "-", "--from=csv", "--to=tab"};
    EXPECT_EQ(run(command, "1,2\n"), 0);
    EXPECT_EQ(printed, "1,2\t\r\n") << "commas do not separate what the server reads";
    for (const char* sign : {",", "auto"}) {
        std::vector<std::string> chosen = command;
        chosen.insert(chosen.end(), {"--separator", sign});
        EXPECT_EQ(run(chosen, "1,2\n"), 0);
        EXPECT_EQ(printed, "1\t2\t\r\n");
    }
    EXPECT_EQ(run({"sheet", "-", "-", "--from=csv", "--to=tab", "--separator=tab"}, "1\t2\n"), 0);
    EXPECT_EQ(printed, "1\t2\t\r\n");
    expectUsage({"sheet", "-", "-", "--from=csv", "--to=tab", "--separator=;;"}, "separator");
}

TEST_F(SheetCommandTest, TheLocaleSetsTheSignsOfNumbers) {
    EXPECT_EQ(run({"sheet", "/w/in.wks", "-", "--to=tab", "--locale", "de"}), 0);
    EXPECT_EQ(printed, "5\t(A1+1)*2\t0,5\t\r\n");
    EXPECT_EQ(run({"sheet", "-", "-", "--from=csv", "--to=dif", "--locale=de"}, "1.234,5"), 0);
    expectPrinted("0,1234.5\r\nV");
    expectUsage({"sheet", "/w/in.wks", "-", "--to=tab", "--locale", "qq"}, "locale");
}

TEST_F(SheetCommandTest, AFileOfNumbersAndLabelsComesBack) {
    EXPECT_EQ(run({"sheet", "-", "/w/a.dif", "--from=tab"}, "5\tx\t0.5\r\n"), 0);
    EXPECT_EQ(run({"sheet", "/w/a.dif", "-", "--to=tab"}), 0);
    EXPECT_EQ(printed, "5\tx\t0.5\t\r\n");
}

TEST_F(SheetCommandTest, TheDialectSetsTheTokensOfFormulas) {
    EXPECT_EQ(run({"sheet", "/w/in.wks", "/w/common.wks", "--to-dialect", "common"}), 0);
    EXPECT_EQ(memory.content("/w/common.wks"), writeWks(sheet, WksDialect::Common));
    EXPECT_EQ(run({"sheet", "/w/common.wks", "-", "--to=tab", "--wks-dialect=common"}), 0);
    EXPECT_EQ(printed, "5\t(A1+1)*2\t0.5\t\r\n");
    EXPECT_EQ(run({"sheet", "/w/common.wks", "-", "--to=tab"}), 0);
    EXPECT_EQ(printed, "5\tERR\t0.5\t\r\n");
    EXPECT_EQ(run({"sheet", "/w/common.wks", "/w/own.wks", "--from-dialect=common"}), 0);
    EXPECT_EQ(memory.content("/w/own.wks"), memory.content("/w/in.wks"));
    EXPECT_EQ(run({"sheet", "/w/in.wks", "-", "--to=tab", "--wks-dialect=own"}), 0);
    EXPECT_EQ(printed, "5\t(A1+1)*2\t0.5\t\r\n");
    expectUsage({"sheet", "/w/in.wks", "-", "--to=tab", "--wks-dialect=other"}, "dialect");
}

TEST_F(SheetCommandTest, SaysWhatIsWrong) {
    expectUsage({"sheet"}, "IN is required");
    expectUsage({"sheet", "/w/in.wks"}, "OUT is required");
    expectUsage({"sheet", "/w/in.wks", "/w/out.xls"}, "out.xls");
    expectUsage({"sheet", "/w/in.wks", "/w/out", "--to", "xls"}, "xls");
    expectUsage({"sheet", "/w/in.wks", "/w/out.csv", "--fast"}, "--fast");
    EXPECT_EQ(memory.paths().size(), 1U);
}

TEST_F(SheetCommandTest, AFailureLeavesTheOldFile) {
    memory.addFile("/w/out.csv", "old");
    EXPECT_EQ(run({"sheet", "/w/missing.wks", "/w/out.csv"}), 1);
    EXPECT_NE(complaint.find("File not found"), std::string::npos) << complaint;
    files.failAtCall(test::FileCall::Write, 1, ErrorNumber::DiskFull);
    EXPECT_EQ(run({"sheet", "/w/in.wks", "/w/out.csv"}), 1);
    EXPECT_NE(complaint.find("Disk full"), std::string::npos) << complaint;
    EXPECT_EQ(memory.content("/w/out.csv"), "old");
}

}  // namespace
}  // namespace velmora
