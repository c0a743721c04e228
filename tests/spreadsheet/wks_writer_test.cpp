#include "spreadsheet/wks_writer.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "spreadsheet/tokens.h"

namespace velmora {
namespace {

using namespace test;

/// A sheet of one row.
SheetGrid rowOf(std::vector<Cell> cells) {
    SheetGrid sheet(1, static_cast<int>(cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i) {
        sheet.at({0, static_cast<int>(i)}) = cells[i];
    }
    return sheet;
}

TEST(WksWriter, NoSheetIsTwoRecords) {
    EXPECT_EQ(writeWks(SheetGrid()), bytes({0, 0, 2, 0, 4, 4, 1, 0, 0, 0}));
}

TEST(WksWriter, OneFormulaInB1IsThreeRecords) {
    const std::string tokens = ref(-1, 0) + bytes({3});
    EXPECT_EQ(writeWks(rowOf({{}, Formula{"A1"}})),
              startRecord + bytes({16, 0, 15 + 6, 0, 241, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 6, 0}) +
                  tokens + endRecord);
}

TEST(WksWriter, EachKindHasItsRecord) {
    EXPECT_EQ(writeWks(rowOf({std::int16_t{-2}, 1.5, Label{"Sum"}, {}, Formula{"1"}})),
              startRecord + integerRecord(0, 0, -2) + numberRecord(1, 0, 1.5) + labelRecord(2, 0, "Sum") +
                  formulaRecord(4, 0, integer(1) + end) + endRecord);
}

TEST(WksWriter, BytesOfACellAreInOrder) {
    EXPECT_EQ(integerRecord(2, 1, 258), bytes({13, 0, 7, 0, 255, 2, 0, 1, 0, 2, 1}));
    EXPECT_EQ(labelRecord(0, 0, "x"), bytes({15, 0, 8, 0, 255, 0, 0, 0, 0, '\'', 'x', 0}));
    EXPECT_EQ(numberRecord(0, 0, 1), bytes({14, 0, 13, 0, 255, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));
}

TEST(WksWriter, GoesRowByRow) {
    SheetGrid sheet(2, 2);
    sheet.at({0, 1}) = Label{"b1"};
    sheet.at({1, 0}) = Label{"a2"};
    EXPECT_EQ(writeWks(sheet), startRecord + labelRecord(1, 0, "b1") + labelRecord(0, 1, "a2") + endRecord);
}

TEST(WksWriter, ReferencesAreRelativeToTheFormulasOwnCell) {
    SheetGrid sheet(3, 3);
    sheet.at({2, 2}) = Formula{"A1"};
    EXPECT_EQ(writeWks(sheet), startRecord + formulaRecord(2, 2, ref(-2, -2) + end) + endRecord);
}

TEST(WksWriter, ACellThatNoRecordCanHoldIsAnOverflow) {
    const std::size_t longest = 65'535 - 7;
    EXPECT_NO_THROW(writeWks(rowOf({Label{std::string(longest, 'x')}})));
    try {
        writeWks(rowOf({Label{std::string(longest + 1, 'x')}}));
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 6);
    }
}

TEST(WksWriter, ALabelOfNothingIsWritten) {
    EXPECT_EQ(writeWks(rowOf({Label{}})), startRecord + labelRecord(0, 0, "") + endRecord);
}

}  // namespace
}  // namespace velmora
