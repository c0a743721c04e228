#include "spreadsheet/sheet_format.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(SheetFormat, NamesAreExtensionsToo) {
    EXPECT_EQ(FormatName(1, false), "XLS");
    EXPECT_EQ(FormatName(2, false), "WKS");
    EXPECT_EQ(FormatName(3, false), "DIF");
    EXPECT_EQ(FormatName(4, false), "CSV");
    EXPECT_EQ(FormatName(5, false), "TXT");
    EXPECT_EQ(FormatName(6, false), "TXT");
}

TEST(SheetFormat, OnlyTheLongFormTellsTheTextFormsApart) {
    EXPECT_EQ(FormatName(5, true), "TXT");
    EXPECT_EQ(FormatName(6, true), "TXT(tab)");
    EXPECT_EQ(FormatName(2, true), "WKS");
}

TEST(SheetFormat, OtherNumbersHaveNoName) {
    for (const int format : {-1, 0, 7, 127}) {
        EXPECT_EQ(FormatName(format, true), "");
        EXPECT_EQ(FormatName(format, false), "");
    }
}

TEST(SheetFormat, OnlyTheFirstTwoKeepFormulas) {
    for (int format = 0; format <= 7; ++format) {
        EXPECT_EQ(KeepsFormulas(format), format == 1 || format == 2) << format;
    }
}

TEST(SheetFormat, XlsIsNeverAvailable) {
    EXPECT_FALSE(XlsAvailable());
}

}  // namespace
}  // namespace velmora
