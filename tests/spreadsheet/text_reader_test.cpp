#include "spreadsheet/text_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/number_text.h"
#include "spreadsheet/sample_file.h"
#include "spreadsheet/text_writer.h"
#include "support/number_cases.h"

namespace velmora {
namespace {

constexpr NumberLocale kEnglish{'.', ','};
constexpr NumberLocale kGerman{',', '.'};

SheetGrid delimited(const std::string& content, const std::string& separator = ";",
                    const NumberLocale& locale = kEnglish) {
    return test::readSample(content, [&](File& file) { return readDelimited(file, separator, locale); });
}

SheetGrid fixed(const std::string& content) {
    return test::readSample(content, [](File& file) { return readFixedText(file, kEnglish); });
}

/// A sheet from its rows.
SheetGrid grid(const std::vector<std::vector<Cell>>& rows) {
    SheetGrid sheet(static_cast<int>(rows.size()), static_cast<int>(rows[0].size()));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            sheet.at({static_cast<int>(row), static_cast<int>(column)}) = rows[row][column];
        }
    }
    return sheet;
}

Cell whole(int value) {
    return static_cast<std::int16_t>(value);
}

TEST(FieldCell, NumbersAreWholeOrDouble) {
    EXPECT_EQ(fieldCell("5", kEnglish), whole(5));
    EXPECT_EQ(fieldCell(" -5.0 ", kEnglish), whole(-5));
    EXPECT_EQ(fieldCell("32767", kEnglish), whole(32767));
    EXPECT_EQ(fieldCell("32768", kEnglish), Cell(32768.0));
    EXPECT_EQ(fieldCell("-32768", kEnglish), Cell(-32768.0));
    EXPECT_EQ(fieldCell("0.5", kEnglish), Cell(0.5));
    EXPECT_EQ(fieldCell("1,234", kEnglish), whole(1234));
    EXPECT_EQ(fieldCell("\"7\"", kEnglish), whole(7));
    EXPECT_EQ(fieldCell("0,5", kGerman), Cell(0.5));
}

TEST(FieldCell, ReadsEveryNumberThatIsWritten) {
    for (const test::NumberText& row : test::numberTexts()) {
        const double value = numericValue(row.plain);
        for (const NumberLocale& locale : {kEnglish, kGerman}) {
            const Cell cell = fieldCell(cellText(Cell(row.value), locale), locale);
            if (std::isinf(value)) {  // 15 digits of the largest number are larger than it
                EXPECT_TRUE(std::holds_alternative<Label>(cell)) << row.plain;
            } else if (value == std::floor(value) && std::abs(value) < 32768) {
                EXPECT_EQ(cell, whole(static_cast<int>(value))) << row.plain;
            } else {
                EXPECT_EQ(cell, Cell(value)) << row.plain;
            }
        }
    }
}

TEST(FieldCell, EverythingElseIsALabel) {
    EXPECT_EQ(fieldCell("", kEnglish), Cell(Label{""}));
    EXPECT_EQ(fieldCell("\"\"", kEnglish), Cell(Label{""}));
    EXPECT_EQ(fieldCell("\"", kEnglish), Cell(Label{"\""}));
    EXPECT_EQ(fieldCell(" \" a \" ", kEnglish), Cell(Label{" a "}));
    for (const char* text : {"abc", "nan", "inf", "0x10", "&H10", "1,5", "=A1"}) {
        EXPECT_EQ(fieldCell(text, kEnglish), Cell(Label{text}));
    }
    EXPECT_EQ(fieldCell(std::string(300, 'x'), kEnglish), Cell(Label{std::string(250, 'x')}));
}

TEST(DelimitedReader, TheWidestLineGivesTheColumns) {
    EXPECT_EQ(delimited("a;1\r\nb;2;3\nc"),
              grid({{Label{"a"}, whole(1), {}}, {Label{"b"}, whole(2), whole(3)}, {Label{"c"}, {}, {}}}));
}

TEST(DelimitedReader, SplitsInsideQuotesToo) {
    EXPECT_EQ(delimited("\"a;b\";2"), grid({{Label{"\"a"}, Label{"b\""}, whole(2)}}));
}

TEST(DelimitedReader, StopsAt99LinesAnd26Columns) {
    std::string content;
    for (int line = 0; line < 150; ++line) {
        for (int field = 0; field < 30; ++field) {
            content += std::to_string(line) + ";";
        }
        content += "\n";
    }
    const SheetGrid sheet = delimited(content);
    EXPECT_EQ(sheet.rows(), 99);
    EXPECT_EQ(sheet.columns(), 26);
    EXPECT_EQ(sheet.at({98, 25}), whole(98));
}

TEST(DelimitedReader, AFileWithoutLinesIsNoSheet) {
    EXPECT_FALSE(delimited("").exists());
    EXPECT_EQ(delimited("\n"), grid({{Label{""}}}));
}

TEST(DelimitedReader, WhatTheCsvWriterWroteComesBackAsOneLabelALine) {
    SheetGrid sheet(1, 2);
    sheet.at({0, 0}) = whole(5);
    sheet.at({0, 1}) = Label{"abc"};
    EXPECT_EQ(delimited(writeCsv(sheet)), grid({{Label{"\"5\",\"abc\","}}}));
}

TEST(DelimitedReader, ATabFileComesBackWithAnEmptyLastColumn) {
    EXPECT_EQ(delimited("5\tabc\t\r\n", "\t"), grid({{whole(5), Label{"abc"}, Label{""}}}));
}

TEST(DelimitedReader, FollowsTheLocale) {
    EXPECT_EQ(delimited("1.234,5;1.5", ";", kGerman), grid({{1234.5, Label{"1.5"}}}));
}

TEST(DetectSeparator, LooksBehindAQuotedFirstField) {
    EXPECT_EQ(detectSeparator("\"a,b\" ;c,d"), ";");
    EXPECT_EQ(detectSeparator("\"a\"\t1"), "\t");
    EXPECT_EQ(detectSeparator("\"a\""), "");
    EXPECT_EQ(detectSeparator("\"a;b"), "");
}

TEST(DetectSeparator, OtherwiseTheFirstOfBoth) {
    EXPECT_EQ(detectSeparator("a;b"), ";");
    EXPECT_EQ(detectSeparator("a,b"), ",");
    EXPECT_EQ(detectSeparator("a,b;c"), ",");
    EXPECT_EQ(detectSeparator("a;b,c"), ";");
    EXPECT_EQ(detectSeparator("abc"), "");
    EXPECT_EQ(detectSeparator(""), "");
}

TEST(DetectSeparator, IsFoundFromTheFirstLineThatShowsOne) {
    EXPECT_EQ(delimited("title\na,1\nb;2", ""),
              grid({{Label{"title"}, {}}, {Label{"a"}, whole(1)}, {Label{"b;2"}, {}}}));
    EXPECT_EQ(delimited("\"x,y\";2;3\n", ""), grid({{Label{"x,y"}, whole(2), whole(3)}}));
}

TEST(FixedReader, ColumnsBeginBehindBlanksThatAllLinesShare) {
    EXPECT_EQ(fixed("5      abc\n-0.125   x\n"), grid({{whole(5), Label{"abc"}}, {-0.125, Label{"x"}}}));
}

TEST(FixedReader, BlanksBetweenBelongToTheColumnOnTheirLeft) {
    EXPECT_EQ(fixed("aa bb\n   c d"), grid({{Label{"aa"}, Label{"bb"}}, {Label{""}, Label{"c d"}}}));
    EXPECT_EQ(fixed("  a\n  b"), grid({{Label{"a"}}, {Label{"b"}}}));
}

TEST(FixedReader, AShortLineHasEmptyLabels) {
    EXPECT_EQ(fixed("a b\nc"), grid({{Label{"a"}, Label{"b"}}, {Label{"c"}, Label{""}}}));
}

TEST(FixedReader, StopsAt99LinesAnd26Columns) {
    std::string line;
    for (int column = 0; column < 30; ++column) {
        line += "1 ";
    }
    std::string content;
    for (int row = 0; row < 150; ++row) {
        content += line + "\n";
    }
    const SheetGrid sheet = fixed(content);
    EXPECT_EQ(sheet.rows(), 99);
    EXPECT_EQ(sheet.columns(), 26);
    EXPECT_EQ(sheet.at({0, 25}), whole(1)) << "what stands behind the last column is dropped";
}

TEST(FixedReader, BlankLinesAloneAreNoSheet) {
    EXPECT_FALSE(fixed("").exists());
    EXPECT_FALSE(fixed("   \n \n").exists());
}

TEST(FixedReader, ReadsBackWhatTheWriterWrote) {
    SheetGrid sheet(2, 2);
    sheet.at({0, 0}) = whole(5);
    sheet.at({0, 1}) = Label{"abc"};
    sheet.at({1, 0}) = -0.125;
    sheet.at({1, 1}) = Label{"x"};
    EXPECT_EQ(fixed(writeFixedText(sheet, kEnglish)), sheet);
}

TEST(TextReaders, EveryPrefixAndAnyBytesAreSafe) {
    test::readEveryPrefix("\"a\",\"1\",\r\n\"b\",\"2\",\r\n",
                          [](File& file) { return readDelimited(file, "", kEnglish); });
    test::readEveryPrefix("a  1\r\nbb 2\r\n", [](File& file) { return readFixedText(file, kEnglish); });
    std::mt19937 random(13);
    const std::string likely = "a1 ;,\"\t\n\r.";
    for (int i = 0; i < 3000; ++i) {
        std::string content(random() % 200, '\0');
        for (char& c : content) {
            c = random() % 10 == 0 ? static_cast<char>(random()) : likely[random() % likely.size()];
        }
        ASSERT_NO_THROW(delimited(content, ""));
        ASSERT_NO_THROW(delimited(content, "\t"));
        ASSERT_NO_THROW(fixed(content));
    }
}

/// What a reader of separated fields, or else of columns, leaves out.
LeftOut leftOutOfText(const std::string& content, bool separated = true) {
    return test::readSample(content, [separated](File& file) {
        LeftOut leftOut;
        if (separated) {
            readDelimited(file, ";", kEnglish, &leftOut);
        } else {
            readFixedText(file, kEnglish, &leftOut);
        }
        return leftOut;
    });
}

std::string repeatedText(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

TEST(TextReaders, CountLinesThatHoldSomethingBelowTheSheet) {
    for (const bool separated : {true, false}) {
        EXPECT_EQ(leftOutOfText(repeatedText("1\n", 99), separated).rows, 0U);
        EXPECT_EQ(leftOutOfText(repeatedText("1\n", 101) + "\n  \n", separated).rows, 2U);
    }
}

TEST(TextReaders, CountColumnsBeyondTheSheetUpToTheLastThatHoldsSomething) {
    EXPECT_EQ(leftOutOfText(repeatedText("1;", 26)).columns, 0U) << "our own files end each cell so";
    EXPECT_EQ(leftOutOfText(repeatedText("1;", 26) + ";;").columns, 0U);
    EXPECT_EQ(leftOutOfText(repeatedText("1;", 26) + ";x;;\n" + repeatedText("1;", 27)).columns, 2U);
    EXPECT_EQ(leftOutOfText(repeatedText("1 ", 26), false).columns, 0U);
    EXPECT_EQ(leftOutOfText(repeatedText("1 ", 29), false).columns, 3U);
}

TEST(TextReaders, CountTextsThatAreCut) {
    const std::string text(250, 'x');
    EXPECT_EQ(leftOutOfText(text + ";\" " + text.substr(2) + " \"").texts, 0U);
    EXPECT_EQ(leftOutOfText(text + "y; " + text + "z").texts, 2U);
    EXPECT_EQ(leftOutOfText(std::string(251, '1')).texts, 0U) << "a number is not";
}

}  // namespace
}  // namespace velmora
