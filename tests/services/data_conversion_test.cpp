#include "services/data_conversion.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

struct ConversionRow {
    const char* name;
    char separator;
    const char* from;
    const char* to;
};

class RecordToLineTest : public testing::TestWithParam<ConversionRow> {};

TEST_P(RecordToLineTest, GivesTheLine) {
    EXPECT_EQ(record_ToLine(GetParam().from, GetParam().separator), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RecordToLineTest,
    testing::Values(ConversionRow{"TwoFields", ',', "a\tb", "a,b"}, ConversionRow{"EmptyRecord", ',', "", ""},
                    ConversionRow{"OneField", ',', "a", "a"},
                    ConversionRow{"SeparatorIsQuoted", ',', "x,y\tz", "\"x,y\",z"},
                    ConversionRow{"LoneQuoteBecomesFour", ',', "\"", "\"\"\"\""},
                    ConversionRow{"CommaIsNoSeparatorAmongSemicolons", ';', "1,5\t2", "1,5;2"},
                    ConversionRow{"SemicolonIsQuotedAmongSemicolons", ';', "1;5\t2", "\"1;5\";2"},
                    ConversionRow{"EmptyFieldsStay", ',', "\ta\t\t", ",a,,"},
                    ConversionRow{"OnlyATab", ',', "\t", ","},
                    ConversionRow{"BlanksStayUnquoted", ',', " a \t b", " a , b"}),
    [](const auto& row) { return row.param.name; });

class LineToRecordTest : public testing::TestWithParam<ConversionRow> {};

TEST_P(LineToRecordTest, GivesTheRecord) {
    EXPECT_EQ(line_ToRecord(GetParam().from, GetParam().separator), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LineToRecordTest,
    testing::Values(ConversionRow{"TwoFields", ',', "a,b", "a\tb"}, ConversionRow{"EmptyLine", ',', "", ""},
                    ConversionRow{"QuotedFieldInTheMiddle", ',', "a,\"b,c\",d", "a\tb,c\td"},
                    ConversionRow{"QuotedFieldAtTheEnd", ',', "a,\"b,c\"", "a\tb,c"},
                    ConversionRow{"LeadingQuoteIsData", ',', "\"a,b\",c", "\"a\tb\"\tc"},
                    ConversionRow{"TrailingEmptyFieldsAreLost", ',', "a,b,,", "a\tb"},
                    ConversionRow{"LeadingEmptyFieldsStay", ',', ",,a", "\t\ta"},
                    ConversionRow{"DoubledQuoteInsideQuotes", ',', "a,\"b\"\"c\"", "a\tb\"c"},
                    ConversionRow{"LoneQuoteInsideQuotesStays", ',', "a,\"b\"c\",d", "a\tb\"c\td"},
                    ConversionRow{"DoubledQuoteOutsideQuotesIsOne", ',', "a\"\"b", "a\"b"},
                    ConversionRow{"LoneQuoteOutsideQuotesStays", ',', "a\"b", "a\"b"},
                    ConversionRow{"UnclosedQuotesTakeTheRest", ',', "a,\"b,c", "a\tb,c"},
                    ConversionRow{"EmptyQuotedField", ',', "a,\"\",b", "a\t\tb"},
                    ConversionRow{"Semicolons", ';', "1,5;\"a;b\"", "1,5\ta;b"},
                    ConversionRow{"OnlySeparators", ',', ",,,", ""}),
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
