#include "spreadsheet/cell_reference.h"

#include <gtest/gtest.h>

#include "spreadsheet/tokens.h"

namespace velmora {
namespace {

using test::bytes;
using test::relative;

std::string words(int column, int row) {
    return int16ToBytes(column) + int16ToBytes(row);
}

constexpr CellPosition kA1{0, 0};
constexpr CellPosition kC5{4, 2};

TEST(DecodeCellRef, RelativeCountsFromTheFormulasCell) {
    EXPECT_EQ(DecodeCellRef(relative(0, 0), kC5), "C5");
    EXPECT_EQ(DecodeCellRef(relative(-2, -4), kC5), "A1");
    EXPECT_EQ(DecodeCellRef(relative(23, 94), kC5), "Z99");
}

TEST(DecodeCellRef, AbsoluteCarriesDollars) {
    EXPECT_EQ(DecodeCellRef(words(0, 0), kC5), "$A$1");
    EXPECT_EQ(DecodeCellRef(words(25, 98), kC5), "$Z$99");
    EXPECT_EQ(DecodeCellRef(words(1, 0x8001), kC5), "$B6");
    EXPECT_EQ(DecodeCellRef(words(0x8001, 1), kC5), "D$2");
}

TEST(DecodeCellRef, OutsideIsErr) {
    EXPECT_EQ(DecodeCellRef(words(26, 0), kA1), "ERR");
    EXPECT_EQ(DecodeCellRef(words(0, 99), kA1), "ERR");
    EXPECT_EQ(DecodeCellRef(relative(24, 0), kC5), "ERR");
    EXPECT_EQ(DecodeCellRef(relative(0, 95), kC5), "ERR");
    EXPECT_EQ(DecodeCellRef(words(0x7FFF, 0x7FFF), kA1), "ERR");
}

TEST(DecodeCellRef, OnlyTheUpperBoundIsChecked) {
    EXPECT_EQ(DecodeCellRef(relative(-1, 0), kA1), "@1") << "the byte before A";
    EXPECT_EQ(DecodeCellRef(relative(-65, 0), kA1), std::string(1, '\0') + "1");
    EXPECT_EQ(DecodeCellRef(relative(-66, 0), kA1), "ERR") << "no byte is that far";
    EXPECT_EQ(DecodeCellRef(relative(0, -1), kA1), "A0");
    EXPECT_EQ(DecodeCellRef(relative(0, -5), kA1), "A-4");
}

TEST(DecodeCellRef, KeepsTheBitsOfEachWord) {
    EXPECT_EQ(DecodeCellRef(words(0xBFFF, 0xBFFF), kC5), "B4") << "-1 as it is written here";
    EXPECT_EQ(DecodeCellRef(words(0xFFFF, 0xFFFF), kC5), "B4") << "-1 in 16 bits";
    EXPECT_EQ(DecodeCellRef(words(0x8101, 0x8001), kA1), "B2") << "a column keeps its low 8 bits";
    EXPECT_EQ(DecodeCellRef(words(0x8001, 0x8101), kA1), "ERR") << "a row keeps 15";
    EXPECT_EQ(DecodeCellRef(words(0xC001, 0x8001), kA1), "B2") << "bit 14 is not the sign";
    EXPECT_EQ(DecodeCellRef(words(0xA000, 0x8000), kA1), "ERR") << "-8192";
}

TEST(EncodeCellRef, RelativeAndAbsolute) {
    EXPECT_EQ(EncodeCellRef("C5", kC5), words(0x8000, 0x8000));
    EXPECT_EQ(EncodeCellRef("D7", kC5), words(0x8001, 0x8002));
    EXPECT_EQ(EncodeCellRef("B5", kC5), words(0xBFFF, 0x8000)) << "one column to the left";
    EXPECT_EQ(EncodeCellRef("A1", kC5), words(0xBFFE, 0xBFFC));
    EXPECT_EQ(EncodeCellRef("$B$3", kC5), words(1, 2));
    EXPECT_EQ(EncodeCellRef("$b5", kC5), words(1, 0x8000));
    EXPECT_EQ(EncodeCellRef("c$5", kC5), words(0x8000, 4));
}

TEST(EncodeRange, JoinsBothCorners) {
    EXPECT_EQ(EncodeRange("A1:$B$2", kA1), words(0x8000, 0x8000) + words(1, 1));
}

TEST(CellRefs, EveryOneOfTheSheetComesBack) {
    for (const CellPosition at : {kA1, kC5, CellPosition{98, 25}}) {
        for (char column = 'A'; column <= 'Z'; ++column) {
            for (int row = 1; row <= 99; ++row) {
                const std::string digits = std::to_string(row);
                for (const std::string& text : {column + digits, "$" + (column + digits),
                                                column + ("$" + digits), "$" + (column + ("$" + digits))}) {
                    ASSERT_TRUE(IsCellRef(text));
                    ASSERT_EQ(DecodeCellRef(EncodeCellRef(text, at), at), text);
                }
            }
        }
    }
}

TEST(CellName, CountsOnBehindZ) {
    EXPECT_EQ(cellName({0, 0}), "A1");
    EXPECT_EQ(cellName({98, 25}), "Z99");
    EXPECT_EQ(cellName({99, 26}), "AA100");
    EXPECT_EQ(cellName({254, 254}), "IU255");
}

TEST(IsCellRef, KnowsReferencesAndRanges) {
    for (const char* text :
         {"A1", "a1", "Z99", "$A1", "A$1", "$A$1", "A100", "A1:B2", "$A$1:b$2", "A0", "A32768"}) {
        EXPECT_TRUE(IsCellRef(text)) << text;
    }
    for (const char* text :
         {"",     "A",        "1",   "$",    "A$", "$1",     "AA1",           "A1B", "A1:", ":A1",
          "A1:B", "A1:B2:C3", "A-1", "A1.5", "PI", "A32769", "A999999999999", "A 1", "@1",  "$$A1"}) {
        EXPECT_FALSE(IsCellRef(text)) << text;
    }
}

}  // namespace
}  // namespace velmora
