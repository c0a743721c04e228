// How one line of a section reads, as the Win32 profile functions read it. The rows hold for every
// implementation of ProfileFiles.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmora::test {

/// The lines `lines` stand alone in a section [S]; `key` is looked up with the string default "DEF", the
/// buffer size 255 and the integer default 42.
struct ProfileCase {
    const char* name;
    std::string lines;
    const char* key;
    std::string text;
    std::int32_t number;
    std::vector<std::string> entries;
};

inline std::vector<ProfileCase> profileCases() {
    const std::string longest(254, 'x');
    return {
        {"BlanksAroundEquals", "DataFileType = 0\r\n", "DataFileType", "0", 0, {"DataFileType=0"}},
        {"CommentBehindAValueIsPartOfIt",
         "Baud=9600 ; comment\r\n",
         "Baud",
         "9600 ; comment",
         9600,
         {"Baud=9600 ; comment"}},
        {"DoubleQuotesGo", "Q=\"Select folder\"\r\n", "Q", "Select folder", 0, {"Q=\"Select folder\""}},
        {"SingleQuotesGo", "Q='Select folder'\r\n", "Q", "Select folder", 0, {"Q='Select folder'"}},
        {"OnlyTheOuterQuotesGo", "QQ=\"a\",\"b\"\r\n", "QQ", "a\",\"b", 0, {"QQ=\"a\",\"b\""}},
        {"OnePairOfQuotesGoes", "Q=\"'a'\"\r\n", "Q", "'a'", 0, {"Q=\"'a'\""}},
        {"QuotesKeepBlanks", "Q=\"  a \"\r\n", "Q", "  a ", 0, {"Q=\"  a \""}},
        {"EmptyValue", "E=\r\n", "E", "", 42, {"E="}},
        {"BlankValue", "E=   \r\n", "E", "", 42, {"E="}},
        {"NegativeNumber", "N=-5\r\n", "N", "-5", -5, {"N=-5"}},
        {"SignedNumber", "P=+7\r\n", "P", "+7", 7, {"P=+7"}},
        {"HexadecimalNumber", "H=0x10\r\n", "H", "0x10", 16, {"H=0x10"}},
        {"BlanksAtTheEnds", "T=  lead trail  \r\n", "T", "lead trail", 0, {"T=lead trail"}},
        {"LoneQuote", "One=\"\r\n", "One", "\"", 0, {"One=\""}},
        {"DifferentQuotesAtTheEnds", "m=\"a'\r\n", "m", "\"a'", 0, {"m=\"a'"}},
        {"FirstOfTwo", "D=1\r\nD=2\r\n", "D", "1", 1, {"D=1", "D=2"}},
        {"NoEquals", "noval\r\n", "noval", "DEF", 42, {"noval"}},
        {"Comment", ";C=1\r\n", "C", "DEF", 42, {}},
        {"IndentedComment", "  ;C=1\r\n", "C", "DEF", 42, {}},
        {"EmptyLine", "\r\n", "X", "DEF", 42, {}},
        {"MissingKey", "A=1\r\n", "B", "DEF", 42, {"A=1"}},
        {"KeyInAnyCase", "bAuD=2400\r\n", "BAUD", "2400", 2400, {"bAuD=2400"}},
        {"SecondEqualsBelongsToTheValue", "A=b=c\r\n", "A", "b=c", 0, {"A=b=c"}},
        {"IndentedKey", "  A=1\r\n", "A", "1", 1, {"A=1"}},
        {"LineFeedOnly", "A=1\nB=2\n", "B", "2", 2, {"A=1", "B=2"}},
        {"NoLineEnd", "A=1", "A", "1", 1, {"A=1"}},
        {"LongestValue", "L=" + longest + "\r\n", "L", longest, 0, {"L=" + longest}},
        {"TooLongAValueIsCut", "L=" + longest + "y\r\n", "L", longest, 0, {"L=" + longest + "y"}},
    };
}

}  // namespace velmora::test
