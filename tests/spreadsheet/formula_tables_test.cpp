#include "spreadsheet/formula_tables.h"

#include <gtest/gtest.h>

#include <cctype>

#include "base/run_time_error.h"
#include "spreadsheet/tokens.h"

namespace velmora {
namespace {

using test::bytes;

TEST(OperatorPrecedence, RanksEveryOperator) {
    const struct {
        int code;
        const char* symbol;
        int precedence;
    } rows[] = {{8, "_", 6},  {9, "+", 4},  {10, "-", 4},  {11, "*", 5},  {12, "/", 5},
                {13, "^", 7}, {14, "=", 3}, {15, "<>", 3}, {16, "<=", 3}, {17, ">=", 3},
                {18, "<", 3}, {19, ">", 3}, {20, "&", 1},  {21, "|", 1},  {22, "!", 2}};
    for (const auto& row : rows) {
        EXPECT_EQ(operatorSymbol(row.code), row.symbol);
        EXPECT_EQ(operatorCode(row.symbol), row.code);
        EXPECT_EQ(OperatorPrecedence(row.symbol), row.precedence);
    }
}

TEST(OperatorPrecedence, AnythingElseHasNone) {
    for (const char* symbol : {"", " ", "**", "A1", "()", "<>="}) {
        EXPECT_EQ(OperatorPrecedence(symbol), 0) << symbol;
        EXPECT_EQ(operatorCode(symbol), std::nullopt) << symbol;
    }
}

struct Function {
    int code;
    const char* name;
    const char* token;  ///< as it is decoded with a count byte of 3 (where there is one)
};

const Function kFunctions[] = {
    {31, "NA", "NA(0)"},       {32, "ERR", "ERR(0)"},        {33, "ABS", "ABS(1)"},
    {34, "INT", "INT(1)"},     {35, "SQRT", "SQRT(1)"},      {36, "LOG", "LOG(1)"},
    {37, "LN", "LN(1)"},       {38, "PI", "PI(0)"},          {39, "SIN", "SIN(1)"},
    {40, "COS", "COS(1)"},     {41, "TAN", "TAN(1)"},        {42, "ATAN2", "ATAN2(2)"},
    {43, "ATAN", "ATAN(1)"},   {44, "ASIN", "ASIN(1)"},      {45, "ACOS", "ACOS(1)"},
    {46, "EXP", "EXP(1)"},     {47, "CHOOSE", "CHOOSE(3)"},  {48, "MOD", "MOD(2)"},
    {49, "ISNA", "ISNA(1)"},   {50, "ISERR", "ISERR(1)"},    {51, "FALSE", "FALSE(0)"},
    {52, "TRUE", "TRUE(0)"},   {53, "RAND", "RAND(0)"},      {54, "DATE", "DATE(3)"},
    {55, "TODAY", "TODAY(0)"}, {56, "PMT", "PMT(3)"},        {57, "PV", "PV(3)"},
    {58, "FV", "FV(3)"},       {59, "IF", "IF(3)"},          {60, "DAY", "DAY(1)"},
    {61, "MONTH", "MONTH(1)"}, {62, "YEAR", "YEAR(1)"},      {63, "ROUND", "ROUND(2)"},
    {80, "SUM", "SUM(3)"},     {81, "AVG", "AVG(3)"},        {82, "COUNT", "COUNT(3)"},
    {83, "MIN", "MIN(3)"},     {84, "MAX", "MAX(3)"},        {85, "VLOOKUP", "VLOOKUP(3)"},
    {86, "NPV", "NPV(2)"},     {87, "VAR", "VAR(3)"},        {88, "STD", "STD(3)"},
    {89, "IRR", "IRR(2)"},     {90, "HLOOKUP", "HLOOKUP(3)"}};

bool carriesCount(int code) {
    return code == 47 || (code >= 80 && code <= 84) || code == 87 || code == 88;
}

TEST(FunctionName, GivesEveryFunction) {
    for (const Function& row : kFunctions) {
        EXPECT_EQ(FunctionName(row.code, 3), row.token);
        EXPECT_TRUE(isFunctionCode(row.code));
    }
}

TEST(FunctionName, ACountThatWasNotGivenIsZero) {
    EXPECT_EQ(FunctionName(80), "SUM(0)");
    EXPECT_EQ(FunctionName(47), "CHOOSE(0)");
    EXPECT_EQ(FunctionName(63), "ROUND(2)");
}

TEST(FunctionName, AnyOtherCodeIsErr) {
    for (const int code : {-1, 0, 30, 64, 79, 91, 255}) {
        EXPECT_EQ(FunctionName(code), "ERR(0)");
        EXPECT_FALSE(isFunctionCode(code));
    }
}

TEST(FunctionCode, GivesEveryFunctionInAnyCase) {
    for (const Function& row : kFunctions) {
        std::string expected = bytes({row.code});
        if (carriesCount(row.code)) {
            expected += '\3';
        }
        EXPECT_EQ(FunctionCode(std::string(row.name) + "(3)"), expected) << row.name;
        std::string small = row.name;
        for (char& c : small) {
            c = static_cast<char>(std::tolower(c));
        }
        EXPECT_EQ(FunctionCode(small + "(3)"), expected) << small;
    }
}

TEST(FunctionCode, CountsAreReadOnlyWhereTheReaderExpectsThem) {
    for (int code = 0; code < 256; ++code) {
        EXPECT_EQ(readsArgumentCount(code), carriesCount(code) && code != 47) << code;
    }
}

TEST(FunctionCode, UnknownNamesAreErr) {
    for (const char* token : {"OPL(1)", "opl", "FOO(2)", "SUMME(1)", "A", "S(1)", "AN(0)", "(1)", "LO(1)"}) {
        EXPECT_EQ(FunctionCode(token), bytes({32})) << token;
    }
}

TEST(FunctionCode, FiveLettersAreEnough) {
    EXPECT_EQ(FunctionCode("CHOOS(2)"), bytes({47, 2}));
    EXPECT_EQ(FunctionCode("VLOOKAT(3)"), bytes({85}));
    EXPECT_EQ(FunctionCode("ISERROR(1)"), bytes({50}));
}

TEST(FunctionCode, ACountThatFitsNoByteIsAnInvalidCall) {
    EXPECT_EQ(FunctionCode("SUM(255)"), bytes({80, 255}));
    EXPECT_THROW(FunctionCode("SUM(256)"), RunTimeError);
    EXPECT_THROW(FunctionCode("SUM(-1)"), RunTimeError);
}

TEST(FunctionCode, ANameAloneHasNoArguments) {
    EXPECT_EQ(FunctionCode("SUM"), bytes({80, 0}));
}

TEST(BareFunctions, AreWholeNamesInAnyCase) {
    for (const char* name : {"PI", "RAND", "TODAY", "TRUE", "FALSE", "NA", "ERR", "pi", "Today"}) {
        EXPECT_TRUE(isBareFunction(name)) << name;
    }
    for (const char* name : {"", "P", "I", "PI RAND", "TODA", "ODAY", "SUM", "A1"}) {
        EXPECT_FALSE(isBareFunction(name)) << name;
    }
}

}  // namespace
}  // namespace velmora
