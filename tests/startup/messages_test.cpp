#include "startup/messages.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/ini_rig.h"

namespace velmora {
namespace {

struct ValueCase {
    const char* name;
    std::string value;
    DisplayText text;
};
class DisplayValue : public ::testing::TestWithParam<ValueCase> {};

TEST_P(DisplayValue, IsTakenApart) {
    const DisplayText text = parse_DisplayValue(GetParam().value);
    EXPECT_EQ(text.line1, GetParam().text.line1);
    EXPECT_EQ(text.line2, GetParam().text.line2);
}

INSTANTIATE_TEST_SUITE_P(
    All, DisplayValue,
    ::testing::Values(ValueCase{"TwoLines", R"("a","b")", {"a", "b"}}, ValueCase{"Empty", "", {"", ""}},
                      ValueCase{"OneQuotedText", R"("Server offline")", {"Server offline", ""}},
                      ValueCase{"EmptyFirstLine", R"("","  Connecting...")", {"", "  Connecting..."}},
                      ValueCase{"NoQuotes", "Hello", {"Hello", ""}},
                      ValueCase{"CommaInLine1", R"("Sending, now","dir")", {"Sending, now", ","}},
                      ValueCase{"CommentBehindLine2", R"("","x"    ;first, "do not use")", {"", "x"}},
                      ValueCase{"BlanksAreKept", R"("  a ", " b ")", {"  a ", " b "}},
                      ValueCase{"OnlyAQuote", "\"", {"", ""}}, ValueCase{"OnlyAComma", ",", {",", ""}},
                      ValueCase{"Line2WithoutQuotes", R"("a",b)", {"a", ""}},
                      ValueCase{"Line2WithoutQuotesBehindHalfALine1", R"(a",b)", {"a", ""}},
                      ValueCase{"Line2NeverClosed", R"("a","b)", {"a", ""}},
                      ValueCase{"Line1NeverClosed", R"("a)", {"a", ""}},
                      ValueCase{"Line1WithoutQuotes", R"(a,"b")", {"a,", "b"}},
                      ValueCase{"TextBeforeTheFirstQuote", R"(a "b","c")", {"a ", "c"}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(StripQuotes, RemovesOneAtEachEnd) {
    const std::pair<const char*, const char*> rows[] = {
        {"", ""},     {"\"", ""},       {"\"\"", ""},           {"\"a\"", "a"}, {"\"a", "a"},
        {"a\"", "a"}, {"a\"b", "a\"b"}, {"\"\"a\"\"", "\"a\""}, {"'a'", "'a'"}, {" \"a\" ", " \"a\" "}};
    for (const auto& [text, stripped] : rows) {
        EXPECT_EQ(strip_Quotes(text), stripped) << text;
    }
}

class Messages : public ::testing::Test, protected test::IniRig {
  protected:
    const Strings& read(const std::string& contents) {
        given(contents);
        get_Messages(ini, strings_);
        return strings_;
    }
    Strings strings_;
    const Strings builtIn_;
};

TEST_F(Messages, AFileWithoutTextsLeavesTheBuiltInOnes) {
    const Strings& texts = read("[Settings]\r\n");
    EXPECT_EQ(texts.DisplayStrings, builtIn_.DisplayStrings);
    EXPECT_EQ(texts.PortStatus, builtIn_.PortStatus);
    EXPECT_EQ(texts.Files, "Files");
    EXPECT_EQ(texts.FolderCaption, "Select folder");
    EXPECT_EQ(texts.LineDown, "Lost contact to Organiser!");
}

TEST_F(Messages, TheCatalogueIsFilledAfresh) {
    strings_.DisplayStrings[5].line1 = "old";
    EXPECT_EQ(read("").DisplayStrings, builtIn_.DisplayStrings);
}

TEST_F(Messages, ADisplayTextReplacesBothLines) {
    EXPECT_EQ(read("[DisplayStrings]\r\nOffline=\"gone\"\r\n").DisplayStrings[4], (DisplayText{"gone", ""}));
}

TEST_F(Messages, EveryDisplayKeyHasItsIndex) {
    const std::pair<const char*, std::size_t> keys[] = {
        {"Welcome", 0},    {"NoPort", 1}, {"OnExit", 3}, {"Offline", 4},  {"WaitLink", 5},  {"Connect", 6},
        {"FileAccess", 7}, {"Upload", 8}, {"Downld", 9}, {"SendDir", 10}, {"SendMenu", 11}, {"Error", 14}};
    for (const auto& [key, index] : keys) {
        const Strings& texts = read(std::string("[displaystrings]\r\n") + key + " = \"1\",\"2\"\r\n");
        for (std::size_t i = 0; i < texts.DisplayStrings.size(); ++i) {
            EXPECT_EQ(texts.DisplayStrings[i] == (DisplayText{"1", "2"}), i == index) << key << " " << i;
        }
    }
}

TEST_F(Messages, TheBootTextHasNoKey) {
    const Strings& texts =
        read("[DisplayStrings]\r\nServiceBusy=\"x\"\r\nSending code=\"y\"\r\n12=\"z\"\r\n");
    EXPECT_EQ(texts.DisplayStrings, builtIn_.DisplayStrings);
}

TEST_F(Messages, AKeyWithoutAValueGivesTwoEmptyLinesAndOneWithoutEqualsNothing) {
    const Strings& texts = read("[DisplayStrings]\r\nOffline=\r\nWaitLink\r\n");
    EXPECT_EQ(texts.DisplayStrings[4], DisplayText());
    EXPECT_EQ(texts.DisplayStrings[5], builtIn_.DisplayStrings[5]);
}

TEST_F(Messages, StatisticsCaptionsAreReplaced) {
    const Strings& texts =
        read("[InfoStrings]\r\nFiles=\"F\"\r\nBytes=B\r\nReceived=\"R\r\nSent=S\"\r\nError=\r\n");
    EXPECT_EQ(texts.Files, "F");
    EXPECT_EQ(texts.Bytes, "B");
    EXPECT_EQ(texts.Received, "R");
    EXPECT_EQ(texts.Sent, "S");
    EXPECT_EQ(texts.Error, "");
}

TEST_F(Messages, DialogAndErrorTextsAreReplaced) {
    const Strings& texts = read(
        "[Dialogs]\r\nFolderCaption=\"c\"\r\nDownloadPath=d\r\n"
        "[ErrorMessages]\r\nBadBlockFile=1\r\nBadBootFile=2\r\nFileNotFound=3\r\n"
        "TooManyErrors=4\r\nUserInterrupt=5\r\nLineDown=6\r\nOnExitAskText=7\r\n"
        "OnShutdownAskText=\"8\"\r\n");
    EXPECT_EQ(texts.FolderCaption, "c");
    EXPECT_EQ(texts.DownloadPath, "d");
    EXPECT_EQ(texts.BadBlockFile + texts.BadBootFile + texts.FileNotFound + texts.TooManyErrors, "1234");
    EXPECT_EQ(texts.UserInterrupt + texts.LineDown + texts.OnExitAskText + texts.OnShutdownAskText, "5678");
}

TEST_F(Messages, EntriesForTheReaderOnlyHaveNoEffect) {
    const Strings& texts = read(
        "[InfoStrings]\r\nInUse=\"x\"\r\nModem=\"x\"\r\nNoPort=\"x\"\r\nPortError=\"x\"\r\n"
        "Warning=\"x\"\r\n[ErrorMessages]\r\nDLPathNotFound1=\"x\"\r\n");
    EXPECT_EQ(texts.PortStatus, builtIn_.PortStatus);
    EXPECT_EQ(texts.Error, "Error");
    EXPECT_STREQ(Strings::kDLPathNotFound1, "The downloadpath specified in Velmora.INI does not exist:");
}

TEST_F(Messages, LikeKeysOfTwoSectionsAreTwo) {
    const Strings& texts = read(
        "[Settings]\r\nDownloadPath=/x\r\n[DisplayStrings]\r\nError=\"d\"\r\n"
        "[InfoStrings]\r\nError=\"i\"\r\n");
    EXPECT_EQ(texts.DownloadPath, builtIn_.DownloadPath);
    EXPECT_EQ(texts.DisplayStrings[14].line1, "d");
    EXPECT_EQ(texts.Error, "i");
}

TEST_F(Messages, TextsInUtf8AreConverted) {
    EXPECT_EQ(read("[DisplayStrings]\r\nOffline=\"g\xC3\xA9n\",\"\xE2\x98\x83\"\r\n").DisplayStrings[4],
              (DisplayText{"g\xE9n", "?"}));
}

TEST_F(Messages, AnUnreadableFileIsAnError) {
    files.failAtCall(test::FileCall::Open, 1, ErrorNumber::PathFileAccess);
    EXPECT_THROW(read(""), RunTimeError);
}

}  // namespace
}  // namespace velmora
