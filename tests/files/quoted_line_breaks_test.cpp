#include "files/quoted_line_breaks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora {
namespace {

/// The numbers of the lines that are told of, as text.
std::string toldOf(std::string_view text, std::string_view separators = ",",
                   InnerQuotes innerQuotes = InnerQuotes::Doubled) {
    std::string lines;
    tellQuotedLineBreaks(text, separators, innerQuotes, [&lines](const std::string& what) {
        lines += what.substr(0, what.find(':')) + ";";
    });
    return lines;
}

TEST(QuotedLineBreaks, AreToldWithTheLineThatTheyAreIn) {
    EXPECT_EQ(toldOf("a,b\r\nc,\"d\r\ne\",f\r\n\"g\nh\nk\"\n"), "line 2;line 4;");
    EXPECT_EQ(toldOf("\"a\nb\"\n\"c\nd\""), "line 1;line 3;");
}

TEST(QuotedLineBreaks, QuotesThatCloseInTheirLineAreNone) {
    EXPECT_EQ(toldOf("\"a\",\"b,c\",\"say \"\"hello\"\"\"\r\n\"\"\"\"\n"), "");
    EXPECT_EQ(toldOf(""), "");
}

TEST(QuotedLineBreaks, AQuoteWithinAFieldIsPartOfIt) {
    EXPECT_EQ(toldOf("5\" disk,a 3\" one\nb,c"), "");
    EXPECT_EQ(toldOf("a;\"b\nc\"", ","), "") << "another separator";
    EXPECT_EQ(toldOf("a;\"b\nc\"", ";,"), "line 1;");
}

TEST(QuotedLineBreaks, WorksheetsOfOursLeaveInnerQuotesAsTheyAre) {
    const std::string labels = "\"5\"\",\"say \"hi\"\",\r\n\"3\"\"\r\n\"b\",\r\n";
    EXPECT_EQ(toldOf(labels, ",", InnerQuotes::AsTheyAre), "");
    EXPECT_EQ(toldOf("\"a,b\r\nc\",\"d\"\n", ",", InnerQuotes::AsTheyAre), "line 1;");
}

}  // namespace
}  // namespace velmora
