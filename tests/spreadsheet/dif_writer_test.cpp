#include "spreadsheet/dif_writer.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/number_cases.h"

namespace velmora {
namespace {

std::string header(int columns, int rows) {
    return "TABLE\r\n0,1\r\n\"\"\r\nVECTORS\r\n0," + std::to_string(columns) + "\r\n\"\"\r\nTUPLES\r\n0," +
           std::to_string(rows) + "\r\n\"\"\r\nDATA\r\n0,0\r\n\"\"\r\n";
}

const std::string kBeginOfTuple = "-1,0\r\nBOT\r\n";
const std::string kEndOfData = "-1,0\r\nEOD\r\n";

TEST(DifWriter, NoSheetHasNoColumnsAndRows) {
    EXPECT_EQ(writeDif(SheetGrid()), header(0, 0) + kEndOfData);
}

TEST(DifWriter, EachKindOfCell) {
    SheetGrid sheet(2, 3);
    sheet.at({0, 0}) = std::int16_t{-5};
    sheet.at({0, 1}) = 0.5;
    sheet.at({0, 2}) = Label{"two words"};
    sheet.at({1, 1}) = Formula{"A1+1"};
    sheet.at({1, 2}) = 1e20;
    EXPECT_EQ(writeDif(sheet), header(3, 2) + kBeginOfTuple +
                                   "0,-5\r\nV\r\n0,0.5\r\nV\r\n1,0\r\n\"two words\"\r\n" + kBeginOfTuple +
                                   "1,0\r\n\"\"\r\n1,0\r\n\"A1+1\"\r\n0,1E+20\r\nV\r\n" + kEndOfData);
}

TEST(DifWriter, NumbersHaveTheirPlainForm) {
    for (const test::NumberText& row : test::numberTexts()) {
        SheetGrid sheet(1, 1);
        sheet.at({0, 0}) = row.value;
        EXPECT_EQ(writeDif(sheet),
                  header(1, 1) + kBeginOfTuple + "0," + row.plain + "\r\nV\r\n" + kEndOfData);
    }
}

TEST(DifWriter, WhatIsNoNumberIsAnError) {
    SheetGrid sheet(1, 1);
    sheet.at({0, 0}) = std::numeric_limits<double>::infinity();
    EXPECT_EQ(writeDif(sheet), header(1, 1) + kBeginOfTuple + "0,0\r\nERROR\r\n" + kEndOfData);
}

}  // namespace
}  // namespace velmora
