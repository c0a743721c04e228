#include "files/show_texts.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/system_text.h"

namespace velmora {
namespace {

using namespace std::string_literals;

TEST(Printable, HasTheSystemsEncodingAndNoControlCodes) {
    EXPECT_EQ(printable("a\x80\xE4\x07\x7F\0b"s), toSystemText("a\x80\xE4...b"));
}

TEST(PrintSheet, IsATableWithLettersAndNumbers) {
    SheetGrid sheet(2, 2);
    sheet.at({0, 0}) = Label{"Sum"};
    sheet.at({0, 1}) = Formula{"A2*2"};
    sheet.at({1, 0}) = std::int16_t{7};
    std::ostringstream out;
    printSheet(sheet, out);
    EXPECT_EQ(out.str(),
              "Worksheet, 2 rows, 2 columns\n"
              "   A    B    \n"
              "1  Sum  =A2*2\n"
              "2    7       \n");
}

TEST(PrintSheet, SaysWhenThereIsNone) {
    std::ostringstream out;
    printSheet(SheetGrid(), out);
    EXPECT_EQ(out.str(), "Worksheet, 0 rows, 0 columns\n");
}

TEST(PrintRecords, NumbersThem) {
    std::ostringstream out;
    printRecords({"a\tb", ""}, out);
    EXPECT_EQ(out.str(), "Data file, 2 records\n1  a | b\n2  \n");
}

TEST(PrintBlockFile, ShowsTheHeaderAndWhetherItFits) {
    std::ostringstream out;
    EXPECT_TRUE(printBlockFile("ORG\0\2\x83xy"s, out));
    EXPECT_EQ(out.str(),
              "Block file of type 3\nHeader:  4F 52 47 00 02 83\nLength:  2 bytes\nData:    78 79\n");
    EXPECT_FALSE(printBlockFile("ORG\0\3\x83xy"s, out));
    EXPECT_FALSE(printBlockFile("ORG\0\2\x10xy"s, out));
    for (std::size_t length = 0; length < 6; ++length) {
        EXPECT_FALSE(printBlockFile("ORG\0\0\x83"s.substr(0, length), out));
    }
}

TEST(PrintProcedure, ShowsTheHeaderAndTheLines) {
    std::ostringstream out;
    printProcedure("A\r\nBC", out);
    EXPECT_EQ(out.str(), "Procedure, 5 bytes of source\nHeader: 4F 52 47 00 09 81 00 00 00 05\n  A\n  BC\n");
}

}  // namespace
}  // namespace velmora
