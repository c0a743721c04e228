#include "services/tools.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/windows_paths.h"
#include "support/memory_files.h"
#ifndef _WIN32
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_paths.h"
#include "support/temp_folder.h"
#endif

namespace velmora {
namespace {

TEST(TranslateChars, ReplacesByPositionInPlace) {
    std::string text = "A/B%C>D";
    std::string& result = translate_Chars(text, "/%>", "\\_~");
    EXPECT_EQ(text, "A\\B_C~D");
    EXPECT_EQ(&result, &text);
}

TEST(TranslateChars, TellsCapitalFromSmallLetters) {
    std::string text = "aAbB";
    EXPECT_EQ(translate_Chars(text, "ab", "xy"), "xAyB");
}

TEST(TranslateChars, DoesNotTranslateWhatItJustPutIn) {
    std::string text = "ab";
    EXPECT_EQ(translate_Chars(text, "ab", "ba"), "ba");
}

/// One name, how it is asked for, and what comes out; an empty path is a refusal.
struct Row {
    const char* title;
    std::string name;
    std::string path;
    bool resolveExisting = false;
    bool allowWildcards = false;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.title;
}

std::string titleOf(const testing::TestParamInfo<Row>& info) {
    return info.param.title;
}

class WindowsNames : public testing::TestWithParam<Row> {
  protected:
    WindowsNames() {
        files.addFolder("C:\\Psion");
        files.addFolder("C:\\TEMP\\A");
        files.addFolder("C:\\Psion\\SUB");
        files.addFolder("\\\\server\\share\\Psion");
        files.addFile("C:\\Psion\\MixedCase.TXT");
        files.addFile("C:\\Psion\\Longer file name.txt");
        files.setShortName("C:\\Psion\\Longer file name.txt", "LONGER~1.TXT");
        settings.DownloadPath = "C:\\Psion";
    }
    std::string map(const Row& row) const {
        return tools.map_FileName(row.name, row.resolveExisting, row.allowWildcards);
    }

    test::MemoryFiles files{'\\'};
    WindowsPaths rules{"C:\\Program Files\\Velmora"};
    TransferSettings settings;
    Tools tools{files, rules, settings};
};

TEST_P(WindowsNames, AreMapped) {
    EXPECT_EQ(map(GetParam()), GetParam().path);
}

const Row kWindowsRows[] = {
    {"PercentBecomesUnderscore", "DATA%1", "C:\\Psion\\Data_1"},
    {"GreaterBecomesTilde", "LONGER>1.TXT", "C:\\Psion\\Longer~1.txt"},
    {"DriveRelativeOnTheOwnDrive", "C:LIST", "C:\\Psion\\List"},
    {"OwnDriveInSmallLetter", "c:LIST", "C:\\Psion\\List"},
    {"RootedOnTheOwnDrive", "C:\\TEMP\\NOTE.TXT", "C:\\TEMP\\Note.txt"},
    {"RootedWithSlashes", "C:/TEMP/NOTE.TXT", "C:\\TEMP\\Note.txt"},
    {"RootedWithoutADrive", "\\TEMP\\A/B", "C:\\TEMP\\A\\B"},
    {"AnotherDriveWithoutTheFolder", "A:NAME", ""},
    {"AnotherDriveRootedWithoutTheFolder", "A:\\SUB\\NAME", ""},
    {"InASubfolder", "SUB/FILE", "C:\\Psion\\SUB\\File"},
    {"InAMissingSubfolder", "NOSUB/FILE", ""},
    {"FolderKeepsItsLettersAsWritten", "sub/FILE", "C:\\Psion\\sub\\File"},
    {"WildcardNotAllowed", "*", ""},
    {"WildcardInsideNotAllowed", "A*.TXT", ""},
    {"QuestionMarkPasses", "A?", "C:\\Psion\\A?"},
    {"WildcardAllowed", "*", "C:\\Psion\\*", false, true},
    {"WildcardMappedLikeAnyName", "*.TXT", "C:\\Psion\\*.txt", false, true},
    {"BlanksAround", "   MEMO  ", "C:\\Psion\\Memo"},
    {"BlanksInsideStay", "MY MEMO", "C:\\Psion\\My memo"},
    {"AllCapitals", "MYFILE", "C:\\Psion\\Myfile"},
    {"ExtensionIsRecasedToo", "NOTES.TXT", "C:\\Psion\\Notes.txt"},
    {"ASmallLetterKeepsTheName", "MyFile.TXT", "C:\\Psion\\MyFile.TXT"},
    {"ASmallLetterInTheExtensionDoesNot", "MYFILE.txT", "C:\\Psion\\Myfile.txt"},
    {"NoLettersAtAll", "123.ODB", "C:\\Psion\\123.odb"},
    {"AccentedCapitals", "\xC4RGER\xD6.TXT", "C:\\Psion\\\xC4rger\xF6.txt"},
    {"AccentedSmallLetter", "M\xFCLL.TXT", "C:\\Psion\\M\xFCLL.TXT"},
    {"OnlyAnExtension", ".TXT", "C:\\Psion\\.txt"},
    {"BaseEndsAtTheLastDot", "A.b.TXT", "C:\\Psion\\A.b.TXT"},
    {"ExistingIsGivenAsStored", "MIXEDCASE.TXT", "C:\\Psion\\MixedCase.TXT", true},
    {"ExistingIsNotLookedUpUnasked", "MIXEDCASE.TXT", "C:\\Psion\\Mixedcase.txt"},
    {"ExistingIsNotLookedUpWithWildcards", "MIXEDCASE.TXT", "C:\\Psion\\Mixedcase.txt", true, true},
    {"ExistingByItsShortName", "LONGER>1.TXT", "C:\\Psion\\Longer file name.txt", true},
    {"MissingStaysAsMapped", "NOSUCH.TXT", "C:\\Psion\\Nosuch.txt", true},
    {"DotsAreResolved", "SUB\\..\\.\\MEMO", "C:\\Psion\\Memo"},
    {"AboveTheDownloadFolder", "..\\TEMP\\MEMO", "C:\\TEMP\\Memo"},
    {"AboveTheRootStaysThere", "..\\..\\..\\TEMP\\MEMO", "C:\\TEMP\\Memo"},
    {"NetworkPathIsKept", "\\\\server\\share\\Psion\\MEMO", "\\\\server\\share\\Psion\\Memo"},
    {"NetworkPathWithoutTheFolder", "\\\\server\\other\\MEMO", ""},
    {"Empty", "", ""},
    {"OnlyBlanks", "   ", ""},
    {"OnlyADrive", "C:", ""},
    {"EndsInASeparator", "SUB\\", ""},
    {"Dot", ".", ""},
    {"DotDot", "..", ""},
    {"DotDotBehindAFolder", "SUB\\..", ""},
    {"DriveAndDotDot", "C:..", ""},
    {"ZeroByte", std::string("ME\0MO", 5), ""},
    {"ControlCode", "ME\nMO", ""},
    {"ByteWithoutACharacter", "ME\x81MO", ""},
    {"StreamOfAFile", "MEMO:SECRET", ""},
    {"SecondDrive", "C:D:MEMO", ""},
    {"DeviceName", "COM1", ""},
    {"DeviceNameWithExtension", "NUL.TXT", ""},
    {"DevicePath", "\\\\.\\PHYSICALDRIVE0", ""},
    {"NothingButDots", "...", ""},
};
INSTANTIATE_TEST_SUITE_P(Rows, WindowsNames, testing::ValuesIn(kWindowsRows), titleOf);

TEST_F(WindowsNames, AnotherDriveIsKeptWhereItsFolderExists) {
    files.addFolder("A:\\");
    EXPECT_EQ(tools.map_FileName("A:NAME", false, false), "A:\\Name");
}

TEST_F(WindowsNames, FollowAChangeOfTheDownloadFolder) {
    settings.DownloadPath = "C:\\TEMP";
    EXPECT_EQ(tools.map_FileName("MEMO", false, false), "C:\\TEMP\\Memo");
}

TEST_F(WindowsNames, AreRootedOnTheShareOfADownloadFolderInTheNetwork) {
    settings.DownloadPath = "\\\\server\\share\\Psion";
    EXPECT_EQ(tools.map_FileName("MEMO", false, false), "\\\\server\\share\\Psion\\Memo");
    EXPECT_EQ(tools.map_FileName("\\Psion\\MEMO", false, false), "\\\\server\\share\\Psion\\Memo");
    EXPECT_EQ(tools.map_FileName("C:\\TEMP\\MEMO", false, false), "C:\\TEMP\\Memo");
}

TEST_F(WindowsNames, WorkWithTheRootOfADriveAsTheDownloadFolder) {
    settings.DownloadPath = "C:\\";
    EXPECT_EQ(tools.map_FileName("MEMO", false, false), "C:\\Memo");
    EXPECT_EQ(tools.map_FileName("C:MEMO", false, false), "C:\\Memo");
}

TEST_F(WindowsNames, AreShownByTheirLastComponent) {
    EXPECT_EQ(tools.displayName("C:\\Psion\\Memo.txt"), "Memo.txt");
    EXPECT_EQ(tools.displayName("C:\\Psion\\\xC4rger\x81"), "\xC4rger?");
}

#ifndef _WIN32

/// The same on a disk of this machine; rows are relative to the download folder "Psion".
class PosixNames : public testing::TestWithParam<Row> {
  protected:
    PosixNames() {
        settings.DownloadPath = folder.makeFolder("Psion");
        folder.makeFolder("Psion/Sub");
        folder.write("Psion/MixedCase.TXT");
        folder.write("Psion/Longer file name.txt");
    }
    std::string map(const std::string& name, bool resolveExisting = false,
                    bool allowWildcards = false) const {
        return tools.map_FileName(name, resolveExisting, allowWildcards);
    }
    /// A path on this disk as the Organiser writes it.
    static std::string organiserForm(std::string path) { return translate_Chars(path, "/", "\\"); }

    test::TempFolder folder;
    PosixFiles files{folder.path()};
    PosixPaths rules{"/"};
    TransferSettings settings;
    Tools tools{files, rules, settings};
};

TEST_P(PosixNames, AreMapped) {
    const Row& row = GetParam();
    const std::string expected = row.path.empty() ? "" : settings.DownloadPath + "/" + row.path;
    EXPECT_EQ(map(row.name, row.resolveExisting, row.allowWildcards), expected);
}

const Row kPosixRows[] = {
    {"PercentBecomesUnderscore", "DATA%1", "Data_1"},
    {"BackslashIsTheSeparator", "SUB\\FILE", "SUB/File"},
    {"SlashIsTheSeparator", "Sub/FILE", "Sub/File"},
    {"InAMissingSubfolder", "NOSUB/FILE", ""},
    {"AFileIsNoFolder", "MixedCase.TXT/FILE", ""},
    {"WildcardNotAllowed", "*", ""},
    {"WildcardAllowed", "*.ODB", "*.odb", false, true},
    {"BlanksAround", " MEMO ", "Memo"},
    {"AllCapitals", "NOTES.TXT", "Notes.txt"},
    {"MixedIsKept", "MyFile.TXT", "MyFile.TXT"},
    {"AccentedCapitalsBecomeUtf8", "\xC4RGER\xD6.TXT", "\xC3\x84rger\xC3\xB6.txt"},
    {"EuroSign", "\x80", "\xE2\x82\xAC"},
    {"ExistingIsGivenAsStored", "MIXEDCASE.TXT", "MixedCase.TXT", true},
    {"ExistingByItsShortName", "LONGER>1.TXT", "Longer file name.txt", true},
    {"DotsAreResolved", "Sub\\..\\.\\MEMO", "Memo"},
    {"AnyDrive", "C:LIST", ""},
    {"AnyRootedDrive", "C:\\TEMP\\NOTE.TXT", ""},
    {"NotEvenALetterForADrive", "1:LIST", ""},
    {"ColonElsewhere", "LIST:2", "List:2"},
    {"NetworkPath", "\\\\server\\share\\MEMO", ""},
    {"Empty", "", ""},
    {"EndsInASeparator", "Sub\\", ""},
    {"Dot", ".", ""},
    {"DotDot", "..", ""},
    {"DotDotBehindAFolder", "Sub\\..", ""},
    {"ZeroByte", std::string("ME\0MO", 5), ""},
    {"LineEnd", "ME\nMO", ""},
    {"ByteWithoutACharacter", "ME\x9DMO", ""},
    {"FolderNameTooLong", std::string(300, 'A') + "\\MEMO", ""},
};
INSTANTIATE_TEST_SUITE_P(Rows, PosixNames, testing::ValuesIn(kPosixRows), titleOf);

TEST_F(PosixNames, RootedOnesAreRootedAtTheOneRoot) {
    folder.makeFolder("Other");
    EXPECT_EQ(map(organiserForm(folder.path("Other/NOTE.TXT"))), folder.path("Other/Note.txt"));
    EXPECT_EQ(map("\\MEMO"), "/Memo");
}

TEST_F(PosixNames, MayLeaveTheDownloadFolderUpwards) {
    EXPECT_EQ(map("..\\MEMO"), folder.path("Memo"));
}

TEST_F(PosixNames, WithADriveAreAcceptedIfTheDownloadFolderIsWrittenWithIt) {
    folder.makeFolder("C:/Psion");
    folder.makeFolder("C:/TEMP");
    const PosixPaths rulesHere(folder.path());
    settings.DownloadPath = "C:/Psion";
    test::MemoryFiles found;
    found.addFolder(folder.path("C:/Psion"));
    found.addFolder(folder.path("C:/TEMP"));
    const Tools toolsHere(found, rulesHere, settings);
    EXPECT_EQ(toolsHere.map_FileName("C:LIST", false, false), folder.path("C:/Psion/List"));
    EXPECT_EQ(toolsHere.map_FileName("C:\\TEMP\\NOTE.TXT", false, false), folder.path("C:/TEMP/Note.txt"));
    EXPECT_EQ(toolsHere.map_FileName("D:LIST", false, false), "");
}

TEST_F(PosixNames, FindAFileByItsShortNameInAFolderByItsShortName) {
    folder.makeFolder("Psion/Folder with blanks");
    const std::string file = folder.write("Psion/Folder with blanks/Report of May.txt");
    EXPECT_EQ(map("FOLDER>1\\REPORT>1.TXT", true), file);
}

TEST_F(PosixNames, AreShownWithAQuestionMarkForWhatHasNoByte) {
    EXPECT_EQ(tools.displayName("/psion/\xC3\x84rger.txt"), "\xC4rger.txt");
    EXPECT_EQ(tools.displayName("/psion/a\xE4\xB8\xAD"
                                "b"),
              "a?b");
    EXPECT_EQ(tools.displayName("/psion/\xF0\x9F\x98\x80.txt"), "?.txt");
    EXPECT_EQ(tools.displayName("/psion/\xFF\xFE"), "??");
    EXPECT_EQ(tools.displayName("/psion/cut\xC3"), "cut?");
    EXPECT_EQ(tools.displayName("/psion/"), "");
}

#endif

}  // namespace
}  // namespace velmora
