#include "spreadsheet/sheet_grid.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace velmora {
namespace {

TEST(SheetGrid, OneThatWasNeverFilledIsNoSheet) {
    EXPECT_FALSE(SheetGrid().exists());
    EXPECT_FALSE(SheetGrid(0, 5).exists());
    EXPECT_FALSE(SheetGrid(5, 0).exists());
    EXPECT_FALSE(SheetGrid(-1, -1).exists());
    EXPECT_EQ(SheetGrid(0, 5), SheetGrid());
}

TEST(SheetGrid, ANewOneHoldsEmptyCells) {
    const SheetGrid sheet(2, 3);
    EXPECT_TRUE(sheet.exists());
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            EXPECT_TRUE(isEmpty(sheet.at({row, column})));
        }
    }
}

TEST(SheetGrid, KeepsEachKindOfCellApart) {
    SheetGrid sheet(1, 5);
    sheet.at({0, 0}) = std::int16_t{7};
    sheet.at({0, 1}) = 7.0;
    sheet.at({0, 2}) = Label{"7"};
    sheet.at({0, 3}) = Formula{"7"};
    EXPECT_TRUE(isNumber(sheet.at({0, 0})));
    EXPECT_TRUE(isNumber(sheet.at({0, 1})));
    EXPECT_NE(sheet.at({0, 0}), sheet.at({0, 1}));
    EXPECT_FALSE(isNumber(sheet.at({0, 2})));
    EXPECT_NE(sheet.at({0, 2}), sheet.at({0, 3}));
    EXPECT_TRUE(isEmpty(sheet.at({0, 4})));
}

TEST(SheetGrid, ACellOutsideIsSubscriptOutOfRange) {
    SheetGrid sheet(2, 3);
    for (const CellPosition at : {CellPosition{2, 0}, {0, 3}, {-1, 0}, {0, -1}}) {
        EXPECT_FALSE(sheet.contains(at));
        try {
            sheet.at(at);
            ADD_FAILURE() << at.row << "," << at.column;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 9);
        }
    }
}

TEST(SheetGrid, TheOrganisersSheetEndsAtZ99) {
    EXPECT_TRUE(isInSheet({98, 25}));
    EXPECT_FALSE(isInSheet({99, 0}));
    EXPECT_FALSE(isInSheet({0, 26}));
    EXPECT_FALSE(isInSheet({-1, 0}));
    EXPECT_FALSE(isInSheet({0, -1}));
}

}  // namespace
}  // namespace velmora
