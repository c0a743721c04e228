#include "spreadsheet/text_writer.h"

#include <gtest/gtest.h>

#include "support/number_cases.h"

namespace velmora {
namespace {

SheetGrid sample() {
    SheetGrid sheet(2, 3);
    sheet.at({0, 0}) = std::int16_t{5};
    sheet.at({0, 1}) = Label{"abc"};
    sheet.at({0, 2}) = Formula{"A1*2"};
    sheet.at({1, 0}) = -0.125;
    sheet.at({1, 2}) = Label{"x"};
    return sheet;
}

TEST(TextWriter, CsvQuotesEveryCellAndEndsEachWithAComma) {
    EXPECT_EQ(writeCsv(sample()), "\"5\",\"abc\",\"A1*2\",\r\n\"-0.125\",\"\",\"x\",\r\n");
}

TEST(TextWriter, TabsFollowEveryCell) {
    EXPECT_EQ(writeTabText(sample()), "5\tabc\tA1*2\t\r\n-0.125\t\tx\t\r\n");
}

TEST(TextWriter, FixedColumnsPutNumbersLeftAndTheRestRight) {
    EXPECT_EQ(writeFixedText(sample()), "5       abc A1*2\r\n-0.125         x\r\n");
}

TEST(TextWriter, NoSheetIsAnEmptyFile) {
    EXPECT_EQ(writeCsv(SheetGrid()), "");
    EXPECT_EQ(writeTabText(SheetGrid()), "");
    EXPECT_EQ(writeFixedText(SheetGrid()), "");
}

TEST(TextWriter, TheLocaleGivesTheDecimalSign) {
    const NumberLocale german{',', '.'};
    EXPECT_EQ(cellText(Cell(1234.5), german), "1234,5");
    EXPECT_EQ(cellText(Cell(Label{"1.5"}), german), "1.5");
    EXPECT_EQ(writeTabText(sample(), german), "5\tabc\tA1*2\t\r\n-0,125\t\tx\t\r\n");
}

TEST(TextWriter, NumbersHaveTheirPlainForm) {
    for (const test::NumberText& row : test::numberTexts()) {
        SheetGrid sheet(1, 1);
        sheet.at({0, 0}) = row.value;
        const std::string plain = row.plain;
        EXPECT_EQ(cellText(Cell(row.value)), plain);
        EXPECT_EQ(writeCsv(sheet), '"' + plain + "\",\r\n");
        EXPECT_EQ(writeTabText(sheet), plain + "\t\r\n");
        EXPECT_EQ(writeFixedText(sheet), plain + " \r\n");
    }
    EXPECT_EQ(cellText(Cell(std::int16_t{-32768})), "-32768");
    EXPECT_EQ(cellText(Cell()), "");
}

}  // namespace
}  // namespace velmora
