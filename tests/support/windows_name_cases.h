// Names that an Organiser sends and the paths that they become on a system with drives. They are tried in
// memory on every system and on the disk of a real one; both must give the same.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace velmora::test {

/// One name, how it is asked for, and what comes out; an empty path is a refusal. In both texts "@" stands
/// for the folder that holds those below, with its drive, and "$" for the same without its drive.
struct NameCase {
    const char* title;
    std::string name;
    std::string path;
    bool resolveExisting = false;
    bool allowWildcards = false;
};

inline std::string titleOf(const testing::TestParamInfo<NameCase>& info) {
    return info.param.title;
}

inline void PrintTo(const NameCase& row, std::ostream* out) {
    *out << row.title;
}

/// What there is on drive C: the first folder is the download folder. There is no drive A.
constexpr const char* kNameCaseFolders[] = {"\\Psion", "\\Psion\\SUB", "\\TEMP", "\\TEMP\\A"};
constexpr const char* kNameCaseFiles[] = {"\\Psion\\MixedCase.TXT"};

/// A text of a case with the folder's path, "C:\…", in its place.
inline std::string placed(const std::string& text, const std::string& base) {
    std::string out;
    for (const char c : text) {
        out += c == '@' ? base : c == '$' ? base.substr(2) : std::string(1, c);
    }
    return out;
}

inline const std::vector<NameCase>& windowsNameCases() {
    // More steps up than any folder of a test is deep.
    static const std::string kFarUp = "..\\..\\..\\..\\..\\..\\..\\..\\..\\..\\..\\..";
    static const std::vector<NameCase> cases = {
        {"PercentBecomesUnderscore", "DATA%1", "@\\Psion\\Data_1"},
        {"GreaterBecomesTilde", "LONGER>1.TXT", "@\\Psion\\Longer~1.txt"},
        {"DriveRelativeOnTheOwnDrive", "C:LIST", "@\\Psion\\List"},
        {"OwnDriveInSmallLetter", "c:LIST", "@\\Psion\\List"},
        {"RootedOnTheOwnDrive", "@\\TEMP\\NOTE.TXT", "@\\TEMP\\Note.txt"},
        {"RootedWithSlashes", "@/TEMP/NOTE.TXT", "@\\TEMP\\Note.txt"},
        {"RootedWithoutADrive", "$\\TEMP\\A/B", "@\\TEMP\\A\\B"},
        {"AnotherDriveWithoutTheFolder", "A:NAME", ""},
        {"AnotherDriveRootedWithoutTheFolder", "A:\\SUB\\NAME", ""},
        {"InASubfolder", "SUB/FILE", "@\\Psion\\SUB\\File"},
        {"InAMissingSubfolder", "NOSUB/FILE", ""},
        {"FolderKeepsItsLettersAsWritten", "sub/FILE", "@\\Psion\\sub\\File"},
        {"WildcardNotAllowed", "*", ""},
        {"WildcardInsideNotAllowed", "A*.TXT", ""},
        {"QuestionMarkPasses", "A?", "@\\Psion\\A?"},
        {"WildcardAllowed", "*", "@\\Psion\\*", false, true},
        {"WildcardMappedLikeAnyName", "*.TXT", "@\\Psion\\*.txt", false, true},
        {"BlanksAround", "   MEMO  ", "@\\Psion\\Memo"},
        {"BlanksInsideStay", "MY MEMO", "@\\Psion\\My memo"},
        {"AllCapitals", "MYFILE", "@\\Psion\\Myfile"},
        {"ExtensionIsRecasedToo", "NOTES.TXT", "@\\Psion\\Notes.txt"},
        {"ASmallLetterKeepsTheName", "MyFile.TXT", "@\\Psion\\MyFile.TXT"},
        {"ASmallLetterInTheExtensionDoesNot", "MYFILE.txT", "@\\Psion\\Myfile.txt"},
        {"NoLettersAtAll", "123.ODB", "@\\Psion\\123.odb"},
        {"AccentedCapitals", "\xC4RGER\xD6.TXT", "@\\Psion\\\xC4rger\xF6.txt"},
        {"AccentedSmallLetter", "M\xFCLL.TXT", "@\\Psion\\M\xFCLL.TXT"},
        {"OnlyAnExtension", ".TXT", "@\\Psion\\.txt"},
        {"AFinalDotIsAnEmptyExtension", "MEMO.", "@\\Psion\\Memo."},
        {"BaseEndsAtTheLastDot", "A.b.TXT", "@\\Psion\\A.b.TXT"},
        {"ExistingIsGivenAsStored", "MIXEDCASE.TXT", "@\\Psion\\MixedCase.TXT", true},
        {"ExistingIsNotLookedUpUnasked", "MIXEDCASE.TXT", "@\\Psion\\Mixedcase.txt"},
        {"ExistingIsNotLookedUpWithWildcards", "MIXEDCASE.TXT", "@\\Psion\\Mixedcase.txt", true, true},
        {"MissingStaysAsMapped", "NOSUCH.TXT", "@\\Psion\\Nosuch.txt", true},
        {"DotsAreResolved", "SUB\\..\\.\\MEMO", "@\\Psion\\Memo"},
        {"AboveTheDownloadFolder", "..\\TEMP\\MEMO", "@\\TEMP\\Memo"},
        {"AboveTheRootStaysThere", kFarUp + "$\\TEMP\\MEMO", "@\\TEMP\\Memo"},
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
        {"NetworkPathThatIsNotThere", "\\\\server\\share\\X", ""},
        {"OtherDriveWithAFolderOfTheOwn", "A:$\\TEMP\\NOTE.TXT", ""},
        {"FileTakenForAFolder", "MixedCase.TXT\\MEMO", ""},
    };
    return cases;
}

}  // namespace velmora::test
