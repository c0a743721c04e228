// What one write does to a profile file, for every implementation of ProfileFiles.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

/// `key` and `value` are given to writeString for the section [S] of a file with the text `before`; without
/// them the key or the section is deleted. `after` is the file that our own writer leaves. Other writers may
/// leave out empty lines, blanks around the parts of a line, and bytes that are no text; the sections [R],
/// [S] and [T] of what they leave read as those of `after` all the same.
struct ProfileEdit {
    const char* name;
    std::string before;
    std::optional<std::string> key;
    std::optional<std::string> value;
    std::string after;
    bool sameLines = true;  ///< every writer leaves these lines in this order
};

inline std::vector<ProfileEdit> profileEdits() {
    return {
        {"ReplacesTheFirstLine", "; c\r\n\r\n[S]\r\n;A=0\r\nA = 1\r\nA=2\r\n", "A", "9",
         "; c\r\n\r\n[S]\r\n;A=0\r\nA=9\r\nA=2\r\n"},
        {"KeepsTheSpellingOfTheKey", "[S]\nbaud=1\n", "Baud", "2", "[S]\nbaud=2\n"},
        {"KeepsALastLineWithoutItsEnd", "[S]\r\nA=1", "A", "2", "[S]\r\nA=2"},
        {"AddsBehindTheLastEntry", "[S]\r\nA=1\r\n\r\n;***\r\n[T]\r\nA=3\r\n", "B", "2",
         "[S]\r\nA=1\r\nB=2\r\n\r\n;***\r\n[T]\r\nA=3\r\n", false},  // others add behind the comment too
        {"AddsToAnEmptySection", "[S]\r\n[T]\r\n", "B", "2", "[S]\r\nB=2\r\n[T]\r\n"},
        {"AddsBehindAnOpenLine", "[S]\nA=1", "B", "2", "[S]\nA=1\nB=2\n"},
        {"AddsBehindAnOpenHeader", "[S]", "B", "2", "[S]\r\nB=2\r\n"},
        {"AddsASectionAtTheEnd", "[T]\nA=1\n\n", "B", "2", "[T]\nA=1\n\n[S]\nB=2\n"},
        {"AddsASectionBehindAnOpenLine", "[T]\r\nA=1", "B", "2", "[T]\r\nA=1\r\n[S]\r\nB=2\r\n"},
        {"AddsASectionToAnEmptyFile", "", "B", "2", "[S]\r\nB=2\r\n"},
        {"AddsASectionToAFileOfOneByte", "x", "B", "2", "x\r\n[S]\r\nB=2\r\n"},
        {"AddsASectionBehindALoneMark", "\xEF\xBB\xBF", "B", "2", "\xEF\xBB\xBF[S]\r\nB=2\r\n"},
        {"WritesAnEmptyValue", "[S]\r\nA=1\r\n", "A", "", "[S]\r\nA=\r\n"},
        {"DeletesTheFirstSuchLine", "[S]\nA=1\n;c\nA=2\n", "A", std::nullopt, "[S]\n;c\nA=2\n"},
        {"DeletesNothingThatIsMissing", "[S]\nA=1\n", "B", std::nullopt, "[S]\nA=1\n"},
        {"DeletesASection", "[R]\nA=1\n[S]\nA=1\n;c\n\n[T]\n", std::nullopt, std::nullopt, "[R]\nA=1\n[T]\n"},
        {"DeletesTheLastSection", "[R]\nA=1\n[S]\nA=1", std::nullopt, std::nullopt, "[R]\nA=1\n"},
        {"KeepsMixedLineEndsAndOddBytes", std::string("[S]\nA=1\r\n\x01\x00\xFF\r\r\nB=2\n", 19), "A", "5",
         std::string("[S]\nA=5\r\n\x01\x00\xFF\r\r\nB=2\n", 19), false},
        {"SetsAKeyInAnyCaseOfTheSection", "[s]\r\nA=1\r\n", "A", "2", "[s]\r\nA=2\r\n"},
        {"SetsAKeyOfTheFirstOfTwoSections", "[S]\r\nA=1\r\n[s]\r\nA=2\r\n", "A", "3",
         "[S]\r\nA=3\r\n[s]\r\nA=2\r\n"},
        {"LosesBlanksAroundTheOldValueOnly", "[S]\r\nA=  1  \r\nB=  2\r\n", "A", "3",
         "[S]\r\nA=3\r\nB=  2\r\n"},
        {"WritesBlanksAsTheyAre", "[S]\r\nA=1\r\n", "A", "  2  ", "[S]\r\nA=  2  \r\n"},
        {"WritesQuotesAsTheyAre", "[S]\r\nA=1\r\n", "A", "\"  2 \"", "[S]\r\nA=\"  2 \"\r\n"},
        {"ReplacesAQuotedValue", "[S]\r\nA=\"1\",\"2\"\r\n", "A", "3", "[S]\r\nA=3\r\n"},
        {"WritesAComment", "[S]\r\nA=1\r\n", "A", "2 ; two", "[S]\r\nA=2 ; two\r\n"},
        {"WritesAnEqualsSign", "[S]\r\nA=1\r\n", "B", "x=y", "[S]\r\nA=1\r\nB=x=y\r\n"},
        {"DeletesAnOpenLine", "[S]\r\nA=1\r\nB=2", "B", std::nullopt, "[S]\r\nA=1\r\n"},
        {"DeletesTheFirstOfTwoSections", "[S]\r\nA=1\r\n[S]\r\nB=2\r\n", std::nullopt, std::nullopt,
         "[S]\r\nB=2\r\n"},
        {"DeletesNoMissingSection", "[R]\r\nA=1\r\n", std::nullopt, std::nullopt, "[R]\r\nA=1\r\n"},
        {"KeepsUtf8", "[S]\r\nA=\xC3\xA9\r\n", "B", "\xFC", "[S]\r\nA=\xC3\xA9\r\nB=\xC3\xBC\r\n"},
        {"KeepsTheMarkBeforeASection", "\xEF\xBB\xBF[S]\r\nA=1\r\n", "A", "\xE9",
         "\xEF\xBB\xBF[S]\r\nA=\xC3\xA9\r\n"},
        {"MatchesKeysInUtf8", "[S]\r\nSchl\xC3\xBCssel=1\r\n", "SCHL\xDCSSEL", "2",
         "[S]\r\nSchl\xC3\xBCssel=2\r\n"},
        {"WritesAsUtf8WhatLooksLikeIt", "[S]\r\n", "A", "\xC3\xA9", "[S]\r\nA=\xC3\x83\xC2\xA9\r\n"},
        {"DeletesASectionBehindTheMark", "\xEF\xBB\xBF[S]\r\nA=1\r\n[T]\r\n", std::nullopt, std::nullopt,
         "\xEF\xBB\xBF[T]\r\n"},
        {"WritesBytesAboveAscii", "[S]\r\nA=\xE9\r\n", "B", "\xFC", "[S]\r\nA=\xE9\r\nB=\xFC\r\n"},
    };
}

}  // namespace velmora::test
