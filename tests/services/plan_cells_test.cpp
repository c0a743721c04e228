#include "services/plan_cells.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

TEST(CellMessage, EachKindHasItsTypeAndText) {
    EXPECT_EQ(cellMessage(Cell(std::int16_t{-5})), (CellMessage{135, "-5"}));
    EXPECT_EQ(cellMessage(Cell(1234.5)), (CellMessage{135, "1.2345E3"}));
    EXPECT_EQ(cellMessage(Cell(-0.5)), (CellMessage{135, "-5.0E-1"}));
    EXPECT_EQ(cellMessage(Cell(Label{"Sum"})), (CellMessage{34, "Sum"}));
    EXPECT_EQ(cellMessage(Cell(Label{""})), (CellMessage{34, ""}));
    EXPECT_EQ(cellMessage(Cell(Formula{"A1+B1"})), (CellMessage{135, "=A1+B1"}));
}

TEST(CellMessage, WhatIsNoNumberIsTheFormulaErr) {
    EXPECT_EQ(cellMessage(Cell(std::numeric_limits<double>::infinity())), (CellMessage{135, "=ERR"}));
}

TEST(CellMessage, AnEmptyCellIsAnEmptyValue) {
    EXPECT_EQ(cellMessage(Cell()), (CellMessage{135, ""}));
}

TEST(NumberCell, WholeNumbersBelow32768AreIntegers) {
    EXPECT_EQ(numberCell("123"), Cell(std::int16_t{123}));
    EXPECT_EQ(numberCell("-32767"), Cell(std::int16_t{-32767}));
    EXPECT_EQ(numberCell("2E3"), Cell(std::int16_t{2000}));
}

TEST(NumberCell, OthersAreDoubles) {
    EXPECT_EQ(numberCell("1.0"), Cell(1.0)) << "it has a point";
    EXPECT_EQ(numberCell("40000"), Cell(40000.0));
    EXPECT_EQ(numberCell("-32768"), Cell(-32768.0));
    EXPECT_EQ(numberCell("5E-1"), Cell(0.5)) << "it is not whole";
    EXPECT_EQ(numberCell("1E999"), Cell(std::numeric_limits<double>::infinity()));
}

TEST(NumberCell, ATextWithoutANumberIsZero) {
    EXPECT_EQ(numberCell(""), Cell(std::int16_t{0}));
    EXPECT_EQ(numberCell("abc"), Cell(std::int16_t{0}));
}

}  // namespace
}  // namespace velmora
