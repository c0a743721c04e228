// How profile files read, as the Win32 profile functions read them. The rows hold for every implementation of
// ProfileFiles.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmora::test {

/// Whether Wine is known to read a row otherwise than Windows does.
enum class UnderWine { Alike, Differs };

/// The lines `lines` stand alone in a section [S]; `key` is looked up with the string default "DEF", the
/// buffer size 255 and the integer default 42.
struct ProfileCase {
    const char* name;
    std::string lines;
    const char* key;
    std::string text;
    std::int32_t number;
    std::vector<std::string> entries;
    UnderWine underWine = UnderWine::Alike;
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
        {"NumberInQuotes", "N=\"5\"\r\n", "N", "5", 5, {"N=\"5\""}},
        {"NumberBehindABlankInQuotes", "N=\" 5\"\r\n", "N", " 5", 5, {"N=\" 5\""}},
        {"NumberWithAFraction", "N=2.9\r\n", "N", "2.9", 2, {"N=2.9"}},
        {"NumberWithTwoSigns", "N=--5\r\n", "N", "--5", 0, {"N=--5"}},
        {"BlankBehindASign", "N=- 5\r\n", "N", "- 5", 0, {"N=- 5"}},
        {"LeadingZero", "N=010\r\n", "N", "010", 10, {"N=010"}},
        {"SignedNumber", "P=+7\r\n", "P", "+7", 7, {"P=+7"}},
        {"HexadecimalNumber", "H=0x10\r\n", "H", "0x10", 16, {"H=0x10"}},
        {"NegativeHexadecimalNumber", "H=-0x1f\r\n", "H", "-0x1f", -31, {"H=-0x1f"}},
        {"CapitalXIsNoPrefix", "H=0X10\r\n", "H", "0X10", 0, {"H=0X10"}},
        {"OctalNumber", "O=0o17\r\n", "O", "0o17", 15, {"O=0o17"}},
        {"BinaryNumber", "B=0b101\r\n", "B", "0b101", 5, {"B=0b101"}},
        {"BlanksAtTheEnds", "T=  lead trail  \r\n", "T", "lead trail", 0, {"T=lead trail"}},
        {"TabsAtTheEnds", "\tT\t=\tx\t\r\n", "T", "x", 0, {"T=x"}},
        {"EmptyQuotes", "Q=\"\"\r\n", "Q", "", 42, {"Q=\"\""}},
        {"CommentBehindQuotes", "Q=\"a\" ; b\r\n", "Q", "\"a\" ; b", 0, {"Q=\"a\" ; b"}},
        {"HashIsNoComment", "#C=1\r\n", "#C", "1", 1, {"#C=1"}},
        {"BlankInAKey", "A B=1\r\n", "A B", "1", 1, {"A B=1"}},
        // Names match in any case, but Wine knows the case of ASCII letters only.
        {"AccentInAKey", "K\xE4se=1\r\n", "K\xE4se", "1", 1, {"K\xE4se=1"}},
        {"AccentInAnotherCase", "K\xE4se=1\r\n", "K\xC4SE", "1", 1, {"K\xE4se=1"}, UnderWine::Differs},
        {"BytesAboveAscii", "A=caf\xE9 \x80\r\n", "A", "caf\xE9 \x80", 0, {"A=caf\xE9 \x80"}},
        {"BracketInAValue", "A=[T]\r\n", "A", "[T]", 0, {"A=[T]"}},
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
        {"CarriageReturnBeforeTheLineEnd", "A=1\r\r\nB=2\r\n", "B", "2", 2, {"A=1", "B=2"}},
        {"EmptyLineBetween", "A=1\r\n\r\nB=2\r\n", "B", "2", 2, {"A=1", "B=2"}},
        {"NoKey", "=1\r\n", "X", "DEF", 42, {"=1"}},
        {"NoLineEnd", "A=1", "A", "1", 1, {"A=1"}},
        {"LongestValue", "L=" + longest + "\r\n", "L", longest, 0, {"L=" + longest}},
        {"TooLongAValueIsCut", "L=" + longest + "y\r\n", "L", longest, 0, {"L=" + longest + "y"}},
    };
}

/// A whole file and one look-up in it, with the string default "DEF" and the buffer size 255.
struct ProfileFileCase {
    const char* name;
    std::string file;
    const char* section;
    const char* key;
    std::string text;
    std::vector<std::string> entries;  ///< of the section
    UnderWine underWine = UnderWine::Alike;
};

inline std::vector<ProfileFileCase> profileFileCases() {
    return {
        {"SectionInAnyCase", "[sEttings]\r\nA=1\r\n", "SETTINGS", "a", "1", {"A=1"}},
        {"FirstOfTwoLikeSections", "[S]\r\nA=1\r\n[T]\r\n[s]\r\nA=2\r\nB=3\r\n", "S", "A", "1", {"A=1"}},
        {"SecondOfTwoLikeSections", "[S]\r\nA=1\r\n[T]\r\n[s]\r\nB=3\r\n", "S", "B", "DEF", {"A=1"}},
        {"BlanksAroundASectionLine", "  [S]  \r\nA=1\r\n", "S", "A", "1", {"A=1"}},
        {"CommentBehindASection", "[S] ; comment\r\nA=1\r\n", "S", "A", "1", {"A=1"}},
        // Wine takes the last "]" of the line for the end of the name.
        {"BracketInACommentBehindASection",
         "[S] ; with a ] in it\r\nA=1\r\n",
         "S",
         "A",
         "1",
         {"A=1"},
         UnderWine::Differs},
        {"SectionNeverClosed", "[S]\r\nA=1\r\n[T\r\nB=2\r\n", "S", "B", "2", {"A=1", "[T", "B=2"}},
        {"EntryBeforeTheFirstSection", "A=1\r\n[S]\r\n", "S", "A", "DEF", {}},
        {"LikeKeysOfTwoSections", "[S]\r\nA=1\r\n[T]\r\nA=2\r\n", "T", "A", "2", {"A=2"}},
        {"MissingSection", "[S]\r\nA=1\r\n", "T", "A", "DEF", {}},
        {"CommentedSection", "[S]\r\nA=1\r\n;[T]\r\nB=2\r\n", "S", "B", "2", {"A=1", "B=2"}},
        {"AccentInASection", "[K\xE4se]\r\nA=1\r\n", "K\xE4se", "A", "1", {"A=1"}},
        {"AccentInAnotherCase", "[K\xE4se]\r\nA=1\r\n", "K\xC4SE", "A", "1", {"A=1"}, UnderWine::Differs},
        {"BlanksInBracketsDoNotCount", "[ S ]\r\nA=1\r\n", "S", "A", "1", {"A=1"}},
        {"ZeroBytes",
         std::string("[S]\r\nA=1\0\0\r\nB=2\r\n", 17),
         "S",
         "B",
         "2",
         {std::string("A=1"), "B=2"}},
        {"EndOfFileMark", "[S]\r\nA=1\r\n\x1A", "S", "A", "1", {"A=1"}},
        {"Utf8Mark", "\xEF\xBB\xBF;comment\r\n[S]\r\nA=1\r\n", "S", "A", "1", {"A=1"}},
        {"Utf8MarkBeforeASection", "\xEF\xBB\xBF[S]\r\nA=1\r\n", "S", "A", "1", {"A=1"}},
        {"ValidUtf8IsConverted",
         "[S]\r\nA=caf\xC3\xA9 \xE2\x82\xAC\r\n",
         "S",
         "A",
         "caf\xE9 \x80",
         {"A=caf\xE9 \x80"}},
        {"CharactersWithoutAByteBecomeQuestionMarks",
         "[S]\r\nA=\xE2\x98\x83 and \xF0\x9F\x98\x80\r\n",
         "S",
         "A",
         "? and ?",
         {"A=? and ?"}},
        {"AMarkMakesItUtf8EvenWithABrokenByte",
         "\xEF\xBB\xBF[S]\r\nA=\xC3\xA9 \xE9\r\n",
         "S",
         "A",
         "\xE9 ?",
         {"A=\xE9 ?"}},
        {"OverlongFormsAreNotUtf8", "[S]\r\nA=\xC0\xAF\r\n", "S", "A", "\xC0\xAF", {"A=\xC0\xAF"}},
        {"SurrogatesAreNotUtf8", "[S]\r\nA=\xED\xA0\x80\r\n", "S", "A", "\xED\xA0\x80", {"A=\xED\xA0\x80"}},
        {"NamesAreMatchedInUtf8",
         "[\xC3\x84]\r\nSchl\xC3\xBCssel=1\r\n",
         "\xE4",
         "SCHL\xDCSSEL",
         "1",
         {"Schl\xFCssel=1"}},
    };
}

}  // namespace velmora::test
