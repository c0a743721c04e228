#include "startup/ini_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/ini_rig.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

int errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

class IniFile : public ::testing::Test, protected test::IniRig {
  protected:
    void givenEntry(const std::string& line) {
        given("[S]\r\n" + line + "\r\n");
        ini.setSectionName("S");
    }
};

TEST_F(IniFile, SettingTheFileSplitsItsPath) {
    ini.setIniFile("folder/my.old.ini");
    EXPECT_EQ(ini.IniFile(), "/current/folder/my.old.ini");
    EXPECT_EQ(ini.fileName(), ini.IniFile());
    EXPECT_EQ(ini.FilePath(), ini.IniFile());
    EXPECT_EQ(ini.PrivPath(), "/current/folder");
    EXPECT_EQ(ini.BaseName(), "my.old");
    EXPECT_EQ(ini.FileExt(), "ini");
}

// --- Values

TEST_F(IniFile, ASectionIsChosenByItsName) {
    given("[S]\r\nA=1\r\n[T]\r\nA=2\r\n");
    ini.setSectionName("T");
    EXPECT_EQ(ini.SectionName(), "T");
    EXPECT_EQ(ini.GetInt("A", 0), 2);
}

TEST_F(IniFile, AStringIsReadAndAnEmptyOneIsNotItsDefault) {
    givenEntry("A=text\r\nE=");
    EXPECT_EQ(ini.GetString("A", "default"), "text");
    EXPECT_EQ(ini.GetString("E", "default"), "");
    EXPECT_EQ(ini.GetString("missing", "default"), "default");
}

TEST_F(IniFile, AStringHasAtMost254Characters) {
    givenEntry("A=" + std::string(300, 'x'));
    EXPECT_EQ(ini.GetString("A", "").size(), 254U);
    EXPECT_EQ(ini.GetPath("A", "").size(), 300U);
}

TEST_F(IniFile, ANumberIsRead) {
    givenEntry("A=-32768\r\nB=0x10");
    EXPECT_EQ(ini.GetInt("A", 1), -32768);
    EXPECT_EQ(ini.GetInt("B", 1), 16);
    EXPECT_EQ(ini.GetInt("missing", -1), -1);
}

TEST_F(IniFile, ANumberBeyondSixteenBitsIsAnOverflow) {
    for (const std::string text : {"32768", "-32769", "115200", "99999999999999999999"}) {
        givenEntry("A=" + text);
        EXPECT_EQ(errorOf([&] { ini.GetInt("A", 1); }), 6) << text;
    }
}

TEST_F(IniFile, AFailedConversionNamesTheEntry) {
    givenEntry("A=115200");
    try {
        ini.GetInt("A", 1);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "Overflow: [S] A=115200");
    }
}

TEST_F(IniFile, WordsForTrueAndFalse) {
    for (const std::string word :
         {"YES", "y", "True", "t", "on", "1", "-1", "yes ", "  Yes", "2", "0.5", "-3E2", "+1"}) {
        givenEntry("A=\"" + word + "\"");
        EXPECT_TRUE(ini.GetBool("A", false)) << word;
    }
    for (const std::string word : {"NO", "n", "False", "f", "off", "0", " no ", "0.0", "0E5", "-0"}) {
        givenEntry("A=\"" + word + "\"");
        EXPECT_FALSE(ini.GetBool("A", true)) << word;
    }
}

TEST_F(IniFile, AMissingTruthValueIsItsDefault) {
    givenEntry("");
    EXPECT_TRUE(ini.GetBool("A", true));
    EXPECT_FALSE(ini.GetBool("A", false));
}

TEST_F(IniFile, AnyOtherTruthValueIsATypeError) {
    for (const std::string word :
         {"maybe", "", "1x", "1E", ".", "+", "yes no", "T rue", "inf", "nan", "0x1"}) {
        givenEntry("A=" + word);
        EXPECT_EQ(errorOf([&] { ini.GetBool("A", true); }), 13) << word;
    }
}

TEST_F(IniFile, ATruthValueBeyondAllNumbersIsAnOverflow) {
    givenEntry("A=1E999");
    EXPECT_EQ(errorOf([&] { ini.GetBool("A", true); }), 6);
}

TEST_F(IniFile, ValuesAreWritten) {
    givenEntry("A=1");
    ini.PutInt("A", -2);
    ini.PutString("B", "text");
    ini.PutBool("C", true);
    ini.PutBool("D", false);
    ini.PutPath("E", "/\xE2\x98\x83");
    ini.FlushCache();
    EXPECT_EQ(contents(), "[S]\r\nA=-2\r\nB=text\r\nC=True\r\nD=False\r\nE=/\xE2\x98\x83\r\n");
}

TEST_F(IniFile, EntriesAndSectionsAreDeleted) {
    givenEntry("A=1\r\nB=2\r\nC=3");
    ini.DeleteStrEntry("A");
    ini.DeleteNumEntry("B");
    EXPECT_EQ(contents(), "[S]\r\nC=3\r\n");
    ini.DeleteSection();
    EXPECT_EQ(contents(), "");
}

// --- Sections

TEST_F(IniFile, TheEntriesOfASection) {
    givenEntry("A = 1\r\n; c\r\nbare\r\na=b=c");
    EXPECT_EQ(ini.GetSectEntries(), std::string("A=1\0bare\0a=b=c\0", 15));
    EXPECT_THAT(ini.GetSectEntriesEx(), ElementsAre(Pair("A", "1"), Pair("a", "b=c")));
}

TEST_F(IniFile, ADictionaryKeepsTheFirstOfLikeKeysInAnyCase) {
    givenEntry("Key=1\r\nKEY=2\r\n\xE9=3");
    SectionDictionary dictionary;
    ini.GetSectEntriesDict(dictionary);
    EXPECT_EQ(dictionary.size(), 2U);
    EXPECT_EQ(dictionary.find("keY")->second, "1");
    EXPECT_EQ(dictionary.find("\xC9")->second, "3");
}

TEST_F(IniFile, KeysThatDifferInASignAreNotAlike) {
    givenEntry("A[=1\r\nA{=2\r\nA@=3\r\nA`=4");
    SectionDictionary dictionary;
    ini.GetSectEntriesDict(dictionary);
    EXPECT_THAT(dictionary, ElementsAre(Pair("A@", "3"), Pair("A[", "1"), Pair("A`", "4"), Pair("A{", "2")));
}

TEST_F(IniFile, KeysThatDifferInTheirFirstLetterOnlyAreNotAlike) {
    givenEntry("Port=1\r\nSort=2\r\nFort=3");
    SectionDictionary dictionary;
    ini.GetSectEntriesDict(dictionary);
    EXPECT_THAT(dictionary, ElementsAre(Pair("Fort", "3"), Pair("Port", "1"), Pair("Sort", "2")));
}

TEST_F(IniFile, SectionsAreListedWithoutTheirComments) {
    given(";[Not]\r\n[Settings] ; comment\r\n  [B]\nA=[x]\r\n[C]x\r\n[D]]\r\n[");
    ini.setSectionName("S");
    EXPECT_EQ(ini.GetSections(), std::string("Settings\0B\0\0", 12));
}

TEST_F(IniFile, AFileWithoutSectionsListsNone) {
    givenEntry("");
    given("A=1");
    EXPECT_EQ(ini.GetSections(), std::string(1, '\0'));
}

TEST_F(IniFile, ASectionExistsInAnyCaseAndEmpty) {
    given("[Settings] ; c\r\n[Other] text\r\nA=1\r\n");
    ini.setSectionName("S");
    EXPECT_TRUE(ini.SectExist("SETTINGS"));
    EXPECT_TRUE(ini.SectExist("other"));
    EXPECT_FALSE(ini.SectExist("S"));
}

// --- The system profile

TEST_F(IniFile, TheSystemProfileTakesTheFilesPlaceAndGivesItBack) {
    givenEntry("A=private");
    memory.addFile("/windows/win.ini", "[S]\r\nA=system\r\n");
    ini.setUseWinINI(true);
    ini.setUseWinINI(true);
    EXPECT_EQ(ini.IniFile(), "/windows/win.ini");
    EXPECT_EQ(ini.GetString("A", ""), "system");
    ini.PutString("A", "changed");
    ini.setUseWinINI(false);
    EXPECT_FALSE(ini.UseWinINI());
    EXPECT_EQ(ini.IniFile(), kPath);
    EXPECT_EQ(ini.GetString("A", ""), "private");
    EXPECT_EQ(memory.content("/windows/win.ini"), "[S]\r\nA=changed\r\n");
}

TEST_F(IniFile, AFileSetMeanwhileIsThePrivateOne) {
    givenEntry("A=private");
    ini.setUseWinINI(true);
    ini.setIniFile("/other.ini");
    EXPECT_EQ(ini.IniFile(), "/windows/win.ini");
    ini.setUseWinINI(false);
    EXPECT_EQ(ini.IniFile(), "/other.ini");
}

TEST_F(IniFile, WithoutAPrivateFileNoneComesBack) {
    ini.setSectionName("S");
    ini.setUseWinINI(true);
    EXPECT_EQ(ini.GetString("A", "default"), "default");
    ini.setUseWinINI(false);
    EXPECT_EQ(ini.IniFile(), "");
    EXPECT_EQ(ini.GetString("A", "default"), "");
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].title, "IniFile Logic Error");
    givenEntry("A=1");
    EXPECT_EQ(ini.GetString("A", "default"), "1");
}

TEST_F(IniFile, NoFileSetMeanwhileIsNoPrivateFile) {
    givenEntry("A=private");
    ini.setUseWinINI(true);
    ini.setIniFile("");
    EXPECT_EQ(ini.IniFile(), "/windows/win.ini");
    ini.setUseWinINI(false);
    EXPECT_EQ(ini.IniFile(), "");
    EXPECT_EQ(ini.GetString("A", "default"), "");
    EXPECT_EQ(box.shown.size(), 1U);
}

// --- Use without a file or section

struct Member {
    const char* name;
    std::function<void(clsIniFile&)> call;
};
class UnregisteredIniFile : public IniFile, public ::testing::WithParamInterface<Member> {};

TEST_P(UnregisteredIniFile, ComplainsAndDoesNothing) {
    memory.addFile(kPath, "[]\r\nA=1\r\n");
    const std::string before = contents();
    GetParam().call(ini);
    ini.setIniFile(kPath);
    GetParam().call(ini);
    ASSERT_EQ(box.shown.size(), 2U);
    EXPECT_EQ(box.shown[0].icon, BoxIcon::Information);
    EXPECT_EQ(box.shown[0].title, "IniFile Logic Error");
    EXPECT_EQ(box.shown[0].text, "[Section] and FileName Not Registered in Private.Ini!");
    EXPECT_EQ(contents(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Members, UnregisteredIniFile,
    ::testing::Values(Member{"GetInt", [](clsIniFile& ini) { EXPECT_EQ(ini.GetInt("A", 7), 0); }},
                      Member{"GetString", [](clsIniFile& ini) { EXPECT_EQ(ini.GetString("A", "d"), ""); }},
                      Member{"GetBool", [](clsIniFile& ini) { EXPECT_FALSE(ini.GetBool("A", true)); }},
                      Member{"GetPath", [](clsIniFile& ini) { EXPECT_EQ(ini.GetPath("A", "d"), ""); }},
                      Member{"PutInt", [](clsIniFile& ini) { ini.PutInt("A", 2); }},
                      Member{"PutString", [](clsIniFile& ini) { ini.PutString("A", "2"); }},
                      Member{"PutBool", [](clsIniFile& ini) { ini.PutBool("A", true); }},
                      Member{"PutPath", [](clsIniFile& ini) { ini.PutPath("A", "/"); }},
                      Member{"DeleteStrEntry", [](clsIniFile& ini) { ini.DeleteStrEntry("A"); }},
                      Member{"DeleteNumEntry", [](clsIniFile& ini) { ini.DeleteNumEntry("A"); }},
                      Member{"DeleteSection", [](clsIniFile& ini) { ini.DeleteSection(); }},
                      Member{"FlushCache", [](clsIniFile& ini) { ini.FlushCache(); }},
                      Member{"GetSectEntries", [](clsIniFile& ini) { EXPECT_EQ(ini.GetSectEntries(), ""); }},
                      Member{"GetSectEntriesEx",
                             [](clsIniFile& ini) { EXPECT_TRUE(ini.GetSectEntriesEx().empty()); }},
                      Member{"GetSectEntriesDict",
                             [](clsIniFile& ini) {
                                 SectionDictionary dictionary;
                                 ini.GetSectEntriesDict(dictionary);
                                 EXPECT_TRUE(dictionary.empty());
                             }},
                      Member{"GetSections", [](clsIniFile& ini) { EXPECT_EQ(ini.GetSections(), ""); }},
                      Member{"SectExist", [](clsIniFile& ini) { EXPECT_FALSE(ini.SectExist("")); }}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(IniFile, AFileWithoutASectionsNameIsNotRegistered) {
    given("[]\r\nA=1\r\n");
    ini.setSectionName("");
    EXPECT_EQ(ini.GetString("A", "default"), "");
    EXPECT_EQ(box.shown.size(), 1U);
}

TEST_F(IniFile, OnceRegisteredItStaysSo) {
    givenEntry("A=1");
    ini.setSectionName("");
    EXPECT_EQ(ini.GetString("A", "default"), "default");
    EXPECT_TRUE(box.shown.empty());
}

}  // namespace
}  // namespace velmora
