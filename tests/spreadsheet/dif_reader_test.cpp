#include "spreadsheet/dif_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "spreadsheet/dif_writer.h"
#include "spreadsheet/sample_file.h"
#include "support/number_cases.h"

namespace velmora {
namespace {

SheetGrid read(const std::string& content) {
    return test::readSample(content, [](File& file) { return readDif(file); });
}

/// A file that announces a size and holds the data lines.
std::string dif(int columns, int rows, const std::string& data) {
    return "TABLE\n0,1\n\"MADE BY HAND\"\nVECTORS\n0," + std::to_string(columns) + "\n\"\"\nTUPLES\n0," +
           std::to_string(rows) + "\n\"\"\nDATA\n0,0\n\"\"\n" + data;
}

const std::string kRow = "-1,0\nBOT\n";
const std::string kEnd = "-1,0\nEOD\n";

/// One row of one cell read from its item.
Cell cellOf(const std::string& item) {
    return read(dif(1, 1, kRow + item + kEnd)).at({0, 0});
}

TEST(DifReader, TheHeaderGivesTheSize) {
    EXPECT_EQ(read(dif(3, 2, kEnd)), SheetGrid(2, 3));
    EXPECT_EQ(read(dif(26, 150, kEnd)), SheetGrid(99, 26)) << "150 rows are clamped";
    EXPECT_EQ(read(dif(300, 1, kEnd)), SheetGrid(1, 26));
    EXPECT_FALSE(read(dif(0, 0, kEnd)).exists());
    EXPECT_FALSE(read(dif(-3, 5, kEnd)).exists());
}

TEST(DifReader, AHeaderWithoutBothCountsGivesNoSheet) {
    EXPECT_FALSE(
        read("TABLE\n0,1\n\"\"\nVECTORS\n0,2\n\"\"\nDATA\n0,0\n\"\"\n" + kRow + "0,5\nV\n").exists());
    EXPECT_FALSE(read("TABLE\n0,1\n\"\"\nTUPLES\n0,2\n\"\"\nDATA\n0,0\n\"\"\n" + kRow + "0,5\nV\n").exists());
}

TEST(DifReader, TopicsAreComparedInCapitalsAndOthersPassedOver) {
    EXPECT_EQ(
        read("Table\n0,1\n\"\"\nLabel\n1,0\n\"x\"\nvectors\n0,2\n\"\"\ntuples\n0,1\n\"\"\nData\n0,0\n\"\"\n" +
             kRow + "0,5\nV\n"),
        read(dif(2, 1, kRow + "0,5\nV\n")));
}

TEST(DifReader, AFileWithoutDataHasNoSheet) {
    EXPECT_FALSE(read("").exists());
    EXPECT_FALSE(read("TABLE\n0,1\n\"\"\nVECTORS\n0,2\n\"\"\nTUPLES\n0,2\n\"\"\n").exists());
}

TEST(DifReader, TextsStandInQuotes) {
    EXPECT_EQ(cellOf("1,0\n\"abc\"\n"), Cell(Label{"abc"}));
    EXPECT_EQ(cellOf("1,0\n\"a \"b\" c\"\n"), Cell(Label{"a \"b\" c"})) << "up to the last quote";
    EXPECT_EQ(cellOf("1,0\n\"" + std::string(300, 'x') + "\"\n"), Cell(Label{std::string(250, 'x')}));
}

TEST(DifReader, ReadsEveryNumberThatIsWritten) {
    for (const test::NumberText& row : test::numberTexts()) {
        const double value = numericValue(row.plain);
        if (std::isfinite(value)) {
            EXPECT_EQ(cellOf(std::string("0,") + row.plain + "\nV\n"), Cell(value)) << row.plain;
        }
    }
}

TEST(DifReader, EmptyTextsAndTextsWithoutQuotesStoreNothing) {
    for (const char* item : {"1,0\n\"\"\n", "1,0\nabc\n", "1,0\n\"abc\n", "1,0\n\n", "1,0\n\"\n"}) {
        EXPECT_TRUE(isEmpty(cellOf(item))) << item;
    }
}

TEST(DifReader, OnlyStoredItemsTakeAColumn) {
    const SheetGrid sheet = read(dif(3, 1, kRow + "0,1\nV\n1,0\n\"\"\n0,2\nV\n" + kEnd));
    EXPECT_EQ(sheet.at({0, 0}), Cell(1.0));
    EXPECT_EQ(sheet.at({0, 1}), Cell(2.0)) << "the empty text between them takes none";
    EXPECT_TRUE(isEmpty(sheet.at({0, 2})));
}

TEST(DifReader, NumbersAreDoubles) {
    EXPECT_EQ(cellOf("0,12\nV\n"), Cell(12.0));
    EXPECT_EQ(cellOf("0,-1.5E3\nV\n"), Cell(-1500.0));
    EXPECT_EQ(cellOf("0, 2\nv\n"), Cell(2.0));
}

TEST(DifReader, OtherIndicatorsAreFormulas) {
    EXPECT_EQ(cellOf("0,0\nERROR\n"), Cell(Formula{"ERR"}));
    EXPECT_EQ(cellOf("0,0\nNA\n"), Cell(Formula{"NA"}));
    EXPECT_EQ(cellOf("0,1\nTRUE\n"), Cell(Formula{"TRUE"}));
}

TEST(DifReader, CellsOutsideTheSizeAreDropped) {
    EXPECT_EQ(read(dif(1, 1, "0,7\nV\n" + kRow + "0,1\nV\n0,2\nV\n" + kRow + "0,3\nV\n" + kEnd)),
              read(dif(1, 1, kRow + "0,1\nV\n" + kEnd)))
        << "before the first row, right of the last column, below the last row";
}

TEST(DifReader, ReadingEndsAtTheMarkOrAfter99Rows) {
    EXPECT_TRUE(isEmpty(read(dif(1, 1, kEnd + kRow + "0,1\nV\n")).at({0, 0})));
    std::string rows;
    for (int row = 0; row < 150; ++row) {
        rows += kRow + "0," + std::to_string(row) + "\nV\n";
    }
    const SheetGrid sheet = read(dif(1, 150, rows));
    EXPECT_EQ(sheet.rows(), 99);
    EXPECT_EQ(sheet.at({98, 0}), Cell(98.0));
}

TEST(DifReader, ItemsOfOtherTypesArePassedOver) {
    EXPECT_EQ(cellOf("2,0\nV\n0,5\nV\n"), Cell(5.0));
    EXPECT_EQ(cellOf("-1,0\nXYZ\n0,5\nV\n"), Cell(5.0));
}

TEST(DifReader, ReadsBackASheetWithoutGaps) {
    SheetGrid sheet(2, 2);
    sheet.at({0, 0}) = 1.0;
    sheet.at({0, 1}) = Label{"say \"hi\""};
    sheet.at({1, 0}) = -0.25;
    sheet.at({1, 1}) = 1e20;
    EXPECT_EQ(read(writeDif(sheet)), sheet);
    test::readEveryPrefix(writeDif(sheet), [](File& file) { return readDif(file); });
}

TEST(DifReader, NoBytesThrowAnything) {
    std::mt19937 random(9);
    const char* pieces[] = {"-1,0\n",  "BOT\n", "EOD\n", "0,5\n", "V\n", "1,0\n",
                            "\"x\"\n", "\"",    "\n",    ",",     "\r"};
    for (int i = 0; i < 3000; ++i) {
        std::string data;
        while (random() % 30 != 0) {
            data += random() % 10 == 0 ? std::string(1, static_cast<char>(random())) : pieces[random() % 11];
        }
        ASSERT_NO_THROW(read(random() % 4 == 0 ? data : dif(5, 5, data)));
    }
}

LeftOut leftOutOfDif(const std::string& content) {
    return test::readSample(content, [](File& file) {
        LeftOut leftOut;
        readDif(file, &leftOut);
        return leftOut;
    });
}

TEST(DifReader, CountsWhatItLeavesOut) {
    EXPECT_EQ(leftOutOfDif(dif(1, 1, kRow + "0,1\nV\n0,2\nV\n" + kRow + "0,3\nV\n" + kEnd)).cells, 2U);
    EXPECT_EQ(leftOutOfDif(dif(1, 1, kRow + "0,1\nV\n" + kEnd)).cells, 0U);
    std::string tall;
    for (int i = 0; i < 102; ++i) {
        tall += kRow + "0,1\nV\n";
    }
    EXPECT_EQ(leftOutOfDif(dif(1, 102, tall + kEnd)).cells, 3U);
    EXPECT_FALSE(leftOutOfDif(dif(1, 102, tall + kEnd)).end);
    const auto ofText = [](std::size_t length) {
        return dif(1, 1, kRow + "1,0\n\"" + std::string(length, 'x') + "\"\n" + kEnd);
    };
    EXPECT_EQ(leftOutOfDif(ofText(250)).texts, 0U);
    EXPECT_EQ(leftOutOfDif(ofText(251)).texts, 1U);
}

TEST(DifReader, TellsAFileThatEndsBeforeItsData) {
    const std::string whole = dif(1, 1, kRow + "0,1\nV\n" + kEnd);
    EXPECT_FALSE(leftOutOfDif(whole).end);
    for (std::size_t length = 0; length + 2 < whole.size(); ++length) {
        EXPECT_TRUE(leftOutOfDif(whole.substr(0, length)).end) << length;
    }
}

}  // namespace
}  // namespace velmora
