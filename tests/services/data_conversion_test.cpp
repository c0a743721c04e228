#include "services/data_conversion.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

struct Row {
    const char* name;
    char separator;
    const char* from;
    const char* to;
};

class RecordToLineTest : public testing::TestWithParam<Row> {};

TEST_P(RecordToLineTest, GivesTheLine) {
    EXPECT_EQ(record_ToLine(GetParam().from, GetParam().separator), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(Rows, RecordToLineTest,
                         testing::Values(Row{"TwoFields", ',', "a\tb", "a,b"},
                                         Row{"EmptyRecord", ',', "", ""}, Row{"OneField", ',', "a", "a"},
                                         Row{"SeparatorIsQuoted", ',', "x,y\tz", "\"x,y\",z"},
                                         Row{"LoneQuoteBecomesFour", ',', "\"", "\"\"\"\""},
                                         Row{"CommaIsNoSeparatorAmongSemicolons", ';', "1,5\t2", "1,5;2"},
                                         Row{"SemicolonIsQuotedAmongSemicolons", ';', "1;5\t2", "\"1;5\";2"},
                                         Row{"EmptyFieldsStay", ',', "\ta\t\t", ",a,,"},
                                         Row{"OnlyATab", ',', "\t", ","},
                                         Row{"BlanksStayUnquoted", ',', " a \t b", " a , b"}),
                         [](const auto& row) { return row.param.name; });

class LineToRecordTest : public testing::TestWithParam<Row> {};

TEST_P(LineToRecordTest, GivesTheRecord) {
    EXPECT_EQ(line_ToRecord(GetParam().from, GetParam().separator), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(Rows, LineToRecordTest,
                         testing::Values(Row{"TwoFields", ',', "a,b", "a\tb"}, Row{"EmptyLine", ',', "", ""},
                                         Row{"QuotedFieldInTheMiddle", ',', "a,\"b,c\",d", "a\tb,c\td"},
                                         Row{"QuotedFieldAtTheEnd", ',', "a,\"b,c\"", "a\tb,c"},
                                         Row{"LeadingQuoteIsData", ',', "\"a,b\",c", "\"a\tb\"\tc"},
                                         Row{"TrailingEmptyFieldsAreLost", ',', "a,b,,", "a\tb"},
                                         Row{"LeadingEmptyFieldsStay", ',', ",,a", "\t\ta"},
                                         Row{"DoubledQuoteInsideQuotes", ',', "a,\"b\"\"c\"", "a\tb\"c"},
                                         Row{"LoneQuoteInsideQuotesStays", ',', "a,\"b\"c\",d", "a\tb\"c\td"},
                                         Row{"DoubledQuoteOutsideQuotesIsOne", ',', "a\"\"b", "a\"b"},
                                         Row{"LoneQuoteOutsideQuotesStays", ',', "a\"b", "a\"b"},
                                         Row{"UnclosedQuotesTakeTheRest", ',', "a,\"b,c", "a\tb,c"},
                                         Row{"EmptyQuotedField", ',', "a,\"\",b", "a\t\tb"},
                                         Row{"Semicolons", ';', "1,5;\"a;b\"", "1,5\ta;b"},
                                         Row{"OnlySeparators", ',', ",,,", ""}),
                         [](const auto& row) { return row.param.name; });

TEST(DataConversionTest, ARecordWithoutALeadingQuoteOrEmptyEndComesBack) {
    const std::string record = "plain\tx,y\tsay \"hi\"\t\tend";
    EXPECT_EQ(line_ToRecord(record_ToLine(record, ','), ','), record);
    EXPECT_EQ(line_ToRecord(record_ToLine(record, ';'), ';'), record);
}

TEST(DataConversionTest, BytesAboveAsciiAndZerosPass) {
    const std::string record("\xE4\0\xFF\tb", 5);
    EXPECT_EQ(line_ToRecord(record_ToLine(record, ','), ','), record);
}

}  // namespace
}  // namespace velmora
