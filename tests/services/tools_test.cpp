#include "services/tools.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "platform/windows_paths.h"
#include "support/memory_files.h"
#include "support/plain_path_rules.h"
#include "support/windows_name_cases.h"
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

/// Of a system that holds names which it cannot give back to the Organiser: those with "!".
class OneWayRules : public test::PlainPathRules {
  public:
    std::optional<std::string> toOrganiser(std::string_view name) const override {
        return name.find('!') == std::string_view::npos ? std::optional(std::string(name)) : std::nullopt;
    }
};

TEST(FileNamed, IsTheNameWithTheLettersOfThisSystem) {
    const OneWayRules rules;
    EXPECT_EQ(fileNamed(rules, "MEMO.ODB"), "Memo.odb");
    EXPECT_EQ(fileNamed(rules, " DATA%1 "), "Data_1");
    EXPECT_EQ(fileNamed(rules, "MEMO!"), "MEMO!") << "what cannot be read back stays as it is";
}

TEST(FileNamed, IsNothingForWhatNamesNoFileOfAFolder) {
    const OneWayRules rules;
    for (const char* name : {"", ".", "..", "A*", "C:MEMO", "C:"}) {
        EXPECT_EQ(fileNamed(rules, name), std::nullopt) << name;
    }
    EXPECT_EQ(fileNamed(test::PlainPathRules('\\'), "SUB/MEMO"), std::nullopt);
}

using Row = test::NameCase;

/// What the mapping itself does, on every system: names with drives in a file system in memory.
class WindowsNames : public testing::TestWithParam<Row> {
  protected:
    WindowsNames() {
        for (const char* name : test::kNameCaseFolders) {
            files.addFolder(base + name);
        }
        for (const char* name : test::kNameCaseFiles) {
            files.addFile(base + name);
        }
        files.addFolder("C:\\Psion");
        files.addFolder("C:\\TEMP");
        files.addFile("C:\\Psion\\Longer file name.txt");
        files.setShortName("C:\\Psion\\Longer file name.txt", "LONGER~1.TXT");
        settings.DownloadPath = "C:\\Psion";
    }

    const std::string base = "C:\\Base";
    test::MemoryFiles files{'\\'};
    WindowsPaths rules{"C:\\Program Files\\Velmora"};
    TransferSettings settings;
    Tools tools{files, rules, settings};
};

TEST_P(WindowsNames, AreMapped) {
    const Row& row = GetParam();
    settings.DownloadPath = base + "\\Psion";
    EXPECT_EQ(tools.map_FileName(test::placed(row.name, base), row.resolveExisting, row.allowWildcards),
              test::placed(row.path, base));
}

INSTANTIATE_TEST_SUITE_P(Rows, WindowsNames, testing::ValuesIn(test::windowsNameCases()), test::titleOf);

TEST_F(WindowsNames, FindAFileByItsShortName) {
    EXPECT_EQ(tools.map_FileName("LONGER>1.TXT", true, false), "C:\\Psion\\Longer file name.txt");
    EXPECT_EQ(tools.map_FileName("LONGER>1.TXT", false, false), "C:\\Psion\\Longer~1.txt");
}

TEST_F(WindowsNames, ThatNameAServerAreKept) {
    files.addFolder("\\\\server\\share\\Psion");
    EXPECT_EQ(tools.map_FileName("\\\\server\\share\\Psion\\MEMO", false, false),
              "\\\\server\\share\\Psion\\Memo");
    EXPECT_EQ(tools.map_FileName("\\\\server\\other\\MEMO", false, false), "");
}

TEST_F(WindowsNames, AnotherDriveIsKeptWhereItsFolderExists) {
    files.addFolder("A:\\");
    EXPECT_EQ(tools.map_FileName("A:NAME", false, false), "A:\\Name");
}

TEST_F(WindowsNames, FollowAChangeOfTheDownloadFolder) {
    settings.DownloadPath = "C:\\TEMP";
    EXPECT_EQ(tools.map_FileName("MEMO", false, false), "C:\\TEMP\\Memo");
}

TEST_F(WindowsNames, AreRootedOnTheShareOfADownloadFolderInTheNetwork) {
    files.addFolder("\\\\server\\share\\Psion");
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

TEST_F(WindowsNames, ThatLeadOutAreRefusedWhereTheServerStaysInItsFolder) {
    files.addFolder("C:\\Psion\\Sub");
    files.addFolder("C:\\Psion2");
    files.addFolder("D:\\Other");
    settings.StayInFolder = true;
    for (const char* name : {"..\\MEMO", "\\MEMO", "C:\\TEMP\\MEMO", "D:\\Other\\MEMO", "..\\PSION2\\MEMO"}) {
        EXPECT_EQ(tools.map_FileName(name, false, false), "") << name;
        EXPECT_EQ(tools.map_FileName(name, true, false), "") << name;
        EXPECT_EQ(tools.map_FileName(name, false, true), "") << name;
    }
    EXPECT_EQ(tools.map_FileName("MEMO", false, false), "C:\\Psion\\Memo");
    EXPECT_EQ(tools.map_FileName("SUB\\MEMO", false, false), "C:\\Psion\\SUB\\Memo");
    EXPECT_EQ(tools.map_FileName("*", false, true), "C:\\Psion\\*");
    settings.DownloadPath = "C:\\";
    EXPECT_EQ(tools.map_FileName("\\TEMP\\MEMO", false, false), "C:\\TEMP\\Memo");
}

/// A disk on which the links of one path cannot be followed.
class UntraceableFiles : public test::MemoryFiles {
  public:
    using MemoryFiles::MemoryFiles;
    std::optional<std::string> resolvedPath(const std::string& path) const override {
        return path == untraceable ? std::nullopt : MemoryFiles::resolvedPath(path);
    }
    std::string untraceable;
};

TEST_F(WindowsNames, OfWhichNobodyCanTellWhereTheyLeadAreRefusedWhereTheServerStaysInItsFolder) {
    UntraceableFiles traced('\\');
    traced.addFolder("C:\\Psion");
    const Tools strict(traced, rules, settings);
    settings.StayInFolder = true;
    EXPECT_EQ(strict.map_FileName("MEMO", false, false), "C:\\Psion\\Memo");
    for (const char* path : {"C:\\Psion\\Memo", "C:\\Psion"}) {
        traced.untraceable = path;
        EXPECT_EQ(strict.map_FileName("MEMO", false, false), "") << path;
    }
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
INSTANTIATE_TEST_SUITE_P(Rows, PosixNames, testing::ValuesIn(kPosixRows), test::titleOf);

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

TEST_F(PosixNames, WithADriveAreRefusedInTheRootFolder) {
    settings.DownloadPath = "/";
    EXPECT_EQ(map("C:LIST"), "");
    EXPECT_EQ(map("LIST"), "/List");
}

TEST_F(PosixNames, FindAFileByItsShortNameInAFolderByItsShortName) {
    folder.makeFolder("Psion/Folder with blanks");
    const std::string file = folder.write("Psion/Folder with blanks/Report of May.txt");
    EXPECT_EQ(map("FOLDER>1\\REPORT>1.TXT", true), file);
}

TEST_F(PosixNames, ThatLeadOutByLinksAreRefusedWhereTheServerStaysInItsFolder) {
    folder.makeFolder("Outside");
    folder.write("Outside/File");
    std::filesystem::create_symlink(folder.path("Outside/File"), folder.path("Psion/Link"));
    std::filesystem::create_symlink(folder.path("Outside/New"), folder.path("Psion/Dangling"));
    std::filesystem::create_directory_symlink(folder.path("Outside"), folder.path("Psion/Folder"));
    std::filesystem::create_directory_symlink("Sub", folder.path("Psion/Within"));
    EXPECT_EQ(map("LINK", true), folder.path("Psion/Link"));
    settings.StayInFolder = true;
    for (const char* name : {"LINK", "DANGLING", "FOLDER\\FILE", "FOLDER\\NEW", "..\\OUTSIDE\\FILE"}) {
        EXPECT_EQ(map(name), "") << name;
        EXPECT_EQ(map(name, true), "") << name;
    }
    EXPECT_EQ(map("FOLDER\\*", false, true), "");
    EXPECT_EQ(map("WITHIN\\NEW"), folder.path("Psion/WITHIN/New"));
    EXPECT_EQ(map("MEMO"), folder.path("Psion/Memo"));
}

TEST_F(PosixNames, AreServedInADownloadFolderThatIsALinkItself) {
    std::filesystem::create_directory_symlink("Psion", folder.path("link"));
    settings.DownloadPath = folder.path("link");
    settings.StayInFolder = true;
    EXPECT_EQ(map("MEMO"), folder.path("link/Memo"));
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
