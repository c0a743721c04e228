#include "organiser/cells_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "organiser/local_files.h"

namespace velmora {
namespace {

using Cells = std::vector<SheetCell>;
constexpr auto kLabel = SheetCell::kLabel;
constexpr auto kNumber = SheetCell::kNumberOrFormula;

TEST(CellsFile, EachLineIsACell) {
    EXPECT_EQ(parseCells("s", "# prices\nA1 =B1*2\r\n\nb1\t3.5  \nZ99 'a label \nC1 '\n"),
              (Cells{{0, 0, kNumber, "=B1*2"},
                     {1, 0, kNumber, "3.5"},
                     {25, 98, kLabel, "a label "},
                     {2, 0, kLabel, ""}}));
}

TEST(CellsFile, NumbersMayHaveSignPointAndExponent) {
    for (const char* number : {"1", "-1", "+1.5", ".5", "5.", "1E5", "1.5e-3", "-0"}) {
        EXPECT_EQ(parseCells("s", std::string("A1 ") + number).at(0).text, number);
    }
}

struct BadCell {
    const char* name;
    std::string text;
    const char* problem;
};
class BadCells : public testing::TestWithParam<BadCell> {};

TEST_P(BadCells, AreToldWithFileAndLine) {
    try {
        parseCells("sheet.txt", GetParam().text);
        FAIL() << "accepted";
    } catch (const LocalFileError& error) {
        EXPECT_EQ(std::string(error.what()).rfind("sheet.txt", 0), 0U) << error.what();
        EXPECT_NE(std::string(error.what()).find(GetParam().problem), std::string::npos) << error.what();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadCells,
    testing::Values(
        BadCell{"Nothing", "", "holds no cell"}, BadCell{"OnlyComments", "# x\n", "holds no cell"},
        BadCell{"RowZero", "A0 1", "\"A0\" is no cell"}, BadCell{"RowHundred", "A100 1", "is no cell"},
        BadCell{"BehindZ", "[1 1", "\"[1\" is no cell"}, BadCell{"TwoLetters", "AA1 1", "is no cell"},
        BadCell{"NoReference", "1 1", "is no cell"}, BadCell{"NoRow", "A 1", "is no cell"},
        BadCell{"LeadingBlank", " A1 1", "is no cell"}, BadCell{"NoContent", "A1", "is no number"},
        BadCell{"Word", "A1 word", "is no number"}, BadCell{"Hexadecimal", "A1 0x10", "is no number"},
        BadCell{"Infinity", "A1 inf", "is no number"}, BadCell{"TwoPoints", "A1 1.2.3", "is no number"},
        BadCell{"BareExponent", "A1 1E", "is no number"}, BadCell{"OnlyASign", "A1 -", "is no number"},
        BadCell{"Twice", "A1 1\nB1 2\na1 3", "line 3: A1 was given before"},
        BadCell{"TooLong", "A1 '" + std::string(248, 'x'), "longer than the 247"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(CellsFile, LongestTextPasses) {
    EXPECT_EQ(parseCells("s", "A1 '" + std::string(247, 'x')).at(0).text.size(), 247U);
}

TEST(CellsFile, NumbersOfTheServerAreWrittenPlainly) {
    EXPECT_EQ(cellLines({{0, 0, kNumber, "3.5E0"},
                         {1, 0, kNumber, "1.0E-5"},
                         {2, 9, kNumber, "=A1*2"},
                         {3, 0, kLabel, "1.0E0"},
                         {4, 0, kNumber, "ERR"}}),
              (std::vector<std::string>{"A1 3.5", "B1 1E-05", "C10 =A1*2", "D1 '1.0E0", "E1 ERR"}));
}

TEST(CellsFile, ANumberThatIsTooLargeIsWrittenAsItCame) {
    const Cells cells = parseCells("s", "A1 1E999\nB1 -1E400\n");
    const std::vector<std::string> lines = cellLines(cells);
    EXPECT_EQ(lines, (std::vector<std::string>{"A1 1E999", "B1 -1E400"}));
    EXPECT_EQ(parseCells("again", joinLines(lines, false)), cells);
}

}  // namespace
}  // namespace velmora
