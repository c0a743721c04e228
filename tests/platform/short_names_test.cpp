#include "platform/short_names.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace velmora {
namespace {

using testing::ElementsAre;

/// A long name alone in its folder.
std::string alone(const std::string& name) {
    return shortNames({name}).front();
}

TEST(ShortNames, ValidNamesAreTheirOwnInCapitals) {
    EXPECT_EQ(ownShortName("Memo.txt"), "MEMO.TXT");
    EXPECT_EQ(ownShortName("A"), "A");
    EXPECT_EQ(ownShortName("12345678.123"), "12345678.123");
    EXPECT_EQ(ownShortName("a!#$&'()"), "A!#$&'()");
    EXPECT_EQ(ownShortName("-@^_`{}~"), "-@^_`{}~");
}

TEST(ShortNames, OtherNamesAreNotTheirOwn) {
    for (const char* name :
         {"",    ".",   "..",  ".txt", "a.",  "a.b.c", "a.text", "123456789", "a b",      "a+b",
          "a,b", "a;b", "a=b", "a[b]", "a%b", "a*b",   "a\\b",   "a\nb",      "\xC3\x84", "\xC4"}) {
        EXPECT_FALSE(ownShortName(name)) << name;
    }
}

TEST(ShortNames, LongNamesAreMadeFromWhatTheyHold) {
    struct {
        const char* name;
        const char* shortName;
    } const rows[] = {
        {"Longer file name.txt", "LONGER~1.TXT"},
        {"Memo.text", "MEMO~1.TEX"},
        {"a b.txt", "AB~1.TXT"},
        {"archive.tar.gz", "ARCHIV~1.GZ"},
        {"a+b,c;d=e[f].txt", "A_B_C_~1.TXT"},
        {".profile", "PROFIL~1"},
        {".config.ini", "CONFIG~1.INI"},
        {"name.", "NAME~1"},
        {"100%.txt", "100_~1.TXT"},
        {"Gr\xC3\xB6\xC3\x9F"
         "e.txt",
         "GR__E~1.TXT"},
        {"\xE4\xB8\xAD.txt", "_~1.TXT"},
        {"...", "~1"},
        {" . ", "~1"},
        {"a.t t", "A~1.TT"},
        {"a. ", "A~1"},
        {"123456789", "123456~1"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(alone(row.name), row.shortName) << row.name;
    }
}

TEST(ShortNames, EqualBeginningsAreNumberedInTheOrderOfTheNames) {
    EXPECT_THAT(shortNames({"Longer one.txt", "Longer three.txt", "Longer two.odb", "Longer two.txt"}),
                ElementsAre("LONGER~1.TXT", "LONGER~2.TXT", "LONGER~1.ODB", "LONGER~3.TXT"));
}

TEST(ShortNames, AGeneratedNameKeepsOffAFilesOwn) {
    EXPECT_THAT(shortNames({"Longer name.txt", "longer~1.txt"}), ElementsAre("LONGER~2.TXT", "LONGER~1.TXT"));
}

TEST(ShortNames, OfTwoThatDifferByCaseTheFirstIsItsOwn) {
    EXPECT_THAT(shortNames({"MEMO.TXT", "memo.txt"}), ElementsAre("MEMO.TXT", "MEMO~1.TXT"));
}

TEST(ShortNames, NoneIsItsOwnWhereAnotherIsWhatCapitalsBecome) {
    EXPECT_THAT(shortNames({"MEMO.TXT", "Memo.txt", "memo.txt"}),
                ElementsAre("MEMO~1.TXT", "MEMO~2.TXT", "MEMO~3.TXT"));
    EXPECT_THAT(shortNames({"1A", "1a"}), ElementsAre("1A~1", "1A~2"));
    EXPECT_THAT(shortNames({"Memo.txt", "memo.txt"}), ElementsAre("MEMO.TXT", "MEMO~1.TXT"));
}

TEST(ShortNames, WhatTheFileSystemKeepsIsTakenAndKeptOff) {
    EXPECT_THAT(shortNames({"Longer 1.txt", "Longer 2.txt", "Longer 3.txt", "memo"},
                           {"", "LONGER~1.TXT", "LO4711~1.TXT", ""}),
                ElementsAre("LONGER~2.TXT", "LONGER~1.TXT", "LO4711~1.TXT", "MEMO"));
    EXPECT_THAT(shortNames({"long name", "longna~1"}, {"LONGNA~1", ""}), ElementsAre("LONGNA~1", "LONGNA~2"))
        << "also from a name that would be its own";
}

TEST(ShortNames, OnlyShortNamesWithATildeCanBeMadeUp) {
    EXPECT_TRUE(mayBeMadeUp("LONGER~1.TXT"));
    EXPECT_TRUE(mayBeMadeUp("longer~1.txt"));
    EXPECT_FALSE(mayBeMadeUp("LONGER.TXT"));
    EXPECT_FALSE(mayBeMadeUp("Much longer~1.txt"));
    EXPECT_FALSE(mayBeMadeUp(""));
}

TEST(ShortNames, KeepOffWhatIsReserved) {
    EXPECT_THAT(shortNames({"Longer 1.txt", "MEMO"}, {}, {"LONGER~1.TXT", "MEMO"}),
                ElementsAre("LONGER~2.TXT", "MEMO~1"));
}

TEST(ShortNames, LongerNumbersTakeTheRoomOfCharacters) {
    std::vector<std::string> names;
    for (int i = 1000; i < 1100; ++i) {
        names.push_back("Letters " + std::to_string(i));
    }
    const std::vector<std::string> shorts = shortNames(names);
    EXPECT_EQ(shorts[8], "LETTER~9");
    EXPECT_EQ(shorts[9], "LETTE~10");
    EXPECT_EQ(shorts[99], "LETT~100");
}

TEST(ShortNames, BeginningsThatMeetWhenTheyAreCutStayDistinct) {
    std::vector<std::string> names;
    for (const char* base : {"LettersA", "LettexsB", "LettersC", "LettexsD"}) {
        for (int i = 100; i < 130; ++i) {
            names.push_back(base + std::to_string(i));
        }
    }
    std::sort(names.begin(), names.end());
    const std::vector<std::string> shorts = shortNames(names);
    EXPECT_EQ(std::set<std::string>(shorts.begin(), shorts.end()).size(), names.size());
}

/// Every name must be a valid 8.3 name that no other has. How long it takes is a figure of the benchmark of
/// files; a search that is quadratic would not end here.
void expectDistinct(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    const std::vector<std::string> shorts = shortNames(names);
    std::set<std::string> distinct;
    for (const std::string& name : shorts) {
        ASSERT_EQ(ownShortName(name), name);
        ASSERT_TRUE(distinct.insert(name).second) << name;
    }
}

TEST(ShortNames, AHundredThousandEqualBeginningsGetDistinctNames) {
    std::vector<std::string> names;
    for (int i = 0; i < 100'000; ++i) {
        names.push_back("measurement " + std::to_string(i) + ".txt");
    }
    expectDistinct(names);
}

TEST(ShortNames, ManyBeginningsThatMeetGetDistinctNames) {
    std::vector<std::string> names;
    for (int group = 0; group < 5'000; ++group) {
        for (int i = 0; i < 20; ++i) {
            names.push_back("AB" + std::to_string(1000 + group) + " number " + std::to_string(i));
        }
    }
    expectDistinct(names);
}

TEST(ShortNames, ManyOwnNamesInTheWayGetDistinctNames) {
    std::vector<std::string> names;
    for (int i = 1; i < 50'000; ++i) {
        const std::string number = std::to_string(i);
        names.push_back(std::string("LETTER").substr(0, 7 - number.size()) + "~" + number);
        names.push_back("Letters " + number);
    }
    expectDistinct(names);
}

}  // namespace
}  // namespace velmora
