#include "spreadsheet/formula_check.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "spreadsheet/repeated.h"
#include "spreadsheet/sheet_error.h"

namespace velmora {
namespace {

using test::repeated;

constexpr CellPosition kF11{10, 5};

std::string change(const std::string& text, WksDialect dialect = WksDialect::Own) {
    return formulaChange(text, kF11, dialect);
}

int errorOf(const std::string& text, WksDialect dialect = WksDialect::Own) {
    try {
        change(text, dialect);
        return 0;
    } catch (const RunTimeError& error) {
        return error.number();
    }
}

TEST(FormulaChange, NothingIsSaidOfWhatSaysTheSame) {
    for (const char* text :
         {"", "A1", "A1-B1-C1", "(A1-B1)-C1", "-A1**2", "SUM(A1:B9)*2.5E0", "2.5*A1", "40000", "((A1))",
          "a1+sum(b1)", "+A1", "NOT A1", "A1^2", "PI()*2", "PI*2", "IF(A1>B1,A1,B1)", "1.50", "A1 AND B1"}) {
        EXPECT_EQ(change(text), "") << text;
    }
}

TEST(FormulaChange, TellsWhatComesBackInstead) {
    const struct {
        const char* text;
        const char* back;
    } rows[] = {
        {"A1-(B1-C1)", "=A1-B1-C1"},
        {"A1/(B1*C1)", "=A1/B1*C1"},
        {"SUM(A1,MAX(B1,C1))", "=SUM(,,A1)"},
        {"5.0E-1*A1", "=ERR"},
        {"2**-A1", "=-A1"},
        {"A1>\"B1\"", "=A1>B1"},
        {"A1=\"two words\"", "=ERR"},
        {"CHOOSE(A1,2,3)", "=CHOOSE"},
        {"FOO(A1)", "=ERR"},
        {"FOO", "=ERR"},
        {"NOT(A1)", "=ERR"},
        {"AA1", "=ERR"},
        {"1.23456789012345", "=1.23456789012E0"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(change(row.text), std::string("=") + row.text + " comes back as " + row.back);
    }
}

TEST(FormulaChange, TellsWhatASecondSaveWouldLose) {
    EXPECT_EQ(change("0.5*A1"), "=0.5*A1 comes back as =5.0E-1*A1, and saved again, as =ERR");
}

TEST(FormulaChange, TellsWhatCouldNotBeSavedASecondTime) {
    const std::string sum = repeated("+1", 100);
    EXPECT_EQ(change("(1+1+1)" + sum),
              "=(1+1+1)" + sum + " comes back as =1+1+1" + sum + ", which cannot be saved");
}

TEST(FormulaChange, TheCommonDialectLosesLess) {
    for (const char* text : {"A1-(B1-C1)", "A1/(B1*C1)", "SUM(A1,MAX(B1,C1))", "5.0E-1*A1", "2**-A1",
                             "A1>\"B1\"", "A1=\"two words\"", "CHOOSE(A1,2,3)", "0.5*A1", "-A1**2"}) {
        EXPECT_EQ(change(text, WksDialect::Common), "") << text;
    }
    EXPECT_EQ(change("FOO(A1)", WksDialect::Common), "=FOO(A1) comes back as =ERR");
}

TEST(FormulaChange, WhatCannotBeConvertedIsAnError) {
    for (const char* text : {"A1+(", "A1)", "\"abc", "A1+?", "#", "()", "+"}) {
        for (const WksDialect dialect : {WksDialect::Own, WksDialect::Common}) {
            EXPECT_EQ(errorOf(text, dialect), 5) << text;
        }
    }
}

TEST(FormulaChange, WhatCouldNeverBeFetchedAgainIsAnError) {
    const auto nested = [](int depth) { return repeated("A1+(", depth) + "A1" + repeated(")", depth); };
    EXPECT_EQ(change(nested(100)), "=" + nested(100) + " comes back as =ERR") << "above 250 characters";
    EXPECT_EQ(errorOf(nested(101)), 9) << "101 operators wait, but 102 operands";
    EXPECT_EQ(errorOf(nested(102)), 9);
}

TEST(FormulaChange, WhatIsTooDeepToBeComparedIsTold) {
    const std::string sums = repeated("SUM(A1,", 102) + "A1" + repeated(")", 102);
    EXPECT_EQ(change(sums).substr(0, sums.size() + 16), "=" + sums + " comes back as ");
}

class CheckFormulasTest : public ::testing::Test {
  protected:
    void check(WksDialect dialect = WksDialect::Own) {
        checkFormulas(sheet, dialect, [this](const std::string& line) { remarks.push_back(line); });
    }
    SheetGrid sheet{3, 3};
    std::vector<std::string> remarks;
};

TEST_F(CheckFormulasTest, NamesEveryCellWhoseFormulaChanges) {
    sheet.at({0, 0}) = Label{"A1-(B1-C1)"};
    sheet.at({0, 1}) = 0.5;
    sheet.at({1, 2}) = Formula{"A1-(B1-C1)"};
    sheet.at({2, 0}) = Formula{"A1+B1"};
    sheet.at({2, 1}) = Formula{"MIN(A1,MAX(B1,C1))"};
    check();
    EXPECT_EQ(remarks, (std::vector<std::string>{"C2: =A1-(B1-C1) comes back as =A1-B1-C1",
                                                 "B3: =MIN(A1,MAX(B1,C1)) comes back as =MIN(,,A1)"}));
    remarks.clear();
    check(WksDialect::Common);
    EXPECT_TRUE(remarks.empty());
}

TEST_F(CheckFormulasTest, TheFirstFormulaThatCannotBeSavedIsTheErrorAndTheOthersAreNamed) {
    sheet.at({0, 1}) = Formula{"A1+("};
    sheet.at({1, 0}) = Formula{"A1-(B1-C1)"};
    sheet.at({2, 2}) = Formula{repeated("A1+(", 101) + "A1" + repeated(")", 101)};
    try {
        check();
        FAIL();
    } catch (const SheetError& error) {
        EXPECT_EQ(error.number(), 5);
        EXPECT_EQ(error.line(), "B1: =A1+( cannot be saved: Invalid procedure call: it cannot be converted");
    }
    ASSERT_EQ(remarks.size(), 2U);
    EXPECT_EQ(remarks[0].substr(0, 3), "A2:");
    EXPECT_EQ(remarks[1].substr(0, 3), "C3:");
}

TEST_F(CheckFormulasTest, ARemarkMayBeMissing) {
    sheet.at({0, 0}) = Formula{"A1-(B1-C1)"};
    EXPECT_NO_THROW(checkFormulas(sheet, WksDialect::Own, {}));
}

}  // namespace
}  // namespace velmora
