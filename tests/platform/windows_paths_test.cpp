#include "platform/windows_paths.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

const WindowsPaths kWindowsRules("C:\\Users\\Anna");

TEST(WindowsPaths, HaveBackslashesAndDrives) {
    EXPECT_EQ(kWindowsRules.separator(), '\\');
    EXPECT_TRUE(kWindowsRules.hasDrives());
}

TEST(WindowsPaths, KeepOrganiserNamesAsTheyAre) {
    EXPECT_EQ(kWindowsRules.fromOrganiser("C:\\SUB\\\xC4RGER.TXT"), "C:\\SUB\\\xC4RGER.TXT");
    EXPECT_EQ(kWindowsRules.fromOrganiser("SUB/FILE"), "SUB\\FILE");
    EXPECT_EQ(kWindowsRules.fromOrganiser("..\\*.OD?"), "..\\*.OD?");
    EXPECT_EQ(kWindowsRules.fromOrganiser("\\\\server\\share\\X"), "\\\\server\\share\\X");
}

TEST(WindowsPaths, RefuseNamesThatNoFileCanHave) {
    const std::string names[] = {
        std::string("A\0B", 3),
        "A\tB",
        "A\x90",
        "A<B",
        "A>B",
        "A|B",
        "A\"B",
        "A:B:C",
        "AB:C",
        "1:X",
        "X\\C:Y",
        "CON",
        "con.txt",
        "NUL ",
        "SUB\\aux.odb",
        "LPT9",
        "COM\xB9",
        "CONIN$",
        "prn..x",
        "...",
        ". .",
        "SUB\\ \\X",
        "\\\\.",
        "\\\\.\\C:",
        "\\\\?\\X",
        "//./X",
        "C:COM1.X",
        "CLOCK$",
        "\\\\",
        "\\\\\\\\X",
        "\\\\server",
        "\\\\..\\share\\X",
        "\\\\server\\..\\X",
        "\\\\server\\\\X",
        "\\\\\\share\\X",
    };
    for (const std::string& name : names) {
        EXPECT_FALSE(kWindowsRules.fromOrganiser(name)) << name;
    }
}

TEST(WindowsPaths, TakeNamesThatOnlyLookLikeDevices) {
    for (const char* name :
         {"CONTACTS", "COM", "COM12", "LPTX", "NULL.TXT", "X.CON", ".", "..", "A.", "\xC7ON"}) {
        EXPECT_EQ(kWindowsRules.fromOrganiser(name), name);
    }
}

TEST(WindowsPaths, GiveOrganiserBytesOfWhatHasACharacter) {
    EXPECT_EQ(kWindowsRules.toOrganiser("\xC4rger"), "\xC4rger");
    EXPECT_FALSE(kWindowsRules.toOrganiser("\x81"));
}

TEST(WindowsPaths, JoinWithExactlyOneSeparator) {
    EXPECT_EQ(kWindowsRules.join("C:\\Psion", "Memo"), "C:\\Psion\\Memo");
    EXPECT_EQ(kWindowsRules.join("C:\\Psion\\", "\\Memo"), "C:\\Psion\\Memo");
    EXPECT_EQ(kWindowsRules.join("C:/Psion/", "Memo"), "C:/Psion\\Memo");
    EXPECT_EQ(kWindowsRules.join("C:", "\\TEMP\\X"), "C:\\TEMP\\X");
    EXPECT_EQ(kWindowsRules.join("C:\\", "X"), "C:\\X");
    EXPECT_EQ(kWindowsRules.join("", "X"), "X");
}

TEST(WindowsPaths, AreTakenApart) {
    struct {
        const char* path;
        const char* drive;
        const char* parent;
        const char* last;
    } const rows[] = {
        {"C:\\a\\b", "C:", "C:\\a", "b"},
        {"C:\\a", "C:", "C:\\", "a"},
        {"C:\\", "C:", "C:\\", ""},
        {"C:a", "C:", "C:", "a"},
        {"C:", "C:", "C:", ""},
        {"c:/a/b", "c:", "c:/a", "b"},
        {"\\a", "", "\\", "a"},
        {"a\\b", "", "a", "b"},
        {"a", "", "", "a"},
        {"", "", "", ""},
        {"C:\\a\\\\b", "C:", "C:\\a", "b"},
        {"1:\\a", "", "1:", "a"},
        {"\\\\s\\h\\a\\b", "\\\\s\\h", "\\\\s\\h\\a", "b"},
        {"\\\\s\\h\\a", "\\\\s\\h", "\\\\s\\h\\", "a"},
        {"\\\\s\\h", "\\\\s\\h", "\\\\s\\h", ""},
        {"\\\\s", "\\\\s", "\\\\s", ""},
        {"\\\\", "\\\\", "\\\\", ""},
        {"//s/h/a", "//s/h", "//s/h/", "a"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(kWindowsRules.drive(row.path), row.drive) << row.path;
        EXPECT_EQ(kWindowsRules.parentFolder(row.path), row.parent) << row.path;
        EXPECT_EQ(kWindowsRules.lastComponent(row.path), row.last) << row.path;
    }
}

TEST(WindowsPaths, BecomeAbsolute) {
    struct {
        const char* path;
        const char* absolute;
    } const rows[] = {
        {"C:\\a\\.\\b\\..\\c", "C:\\a\\c"},
        {"C:/a/b/", "C:\\a\\b"},
        {"C:\\..\\..", "C:\\"},
        {"C:\\", "C:\\"},
        {"b", "C:\\Users\\Anna\\b"},
        {"..\\b", "C:\\Users\\b"},
        {"", "C:\\Users\\Anna"},
        {"C:b", "C:\\Users\\Anna\\b"},
        {"c:b", "c:\\Users\\Anna\\b"},
        {"C:", "C:\\Users\\Anna"},
        {"D:b", "D:\\b"},
        {"D:", "D:\\"},
        {"\\b", "C:\\b"},
        {"\\\\s\\h\\a\\..\\..\\b", "\\\\s\\h\\b"},
        {"//s/h/a", "\\\\s\\h\\a"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(kWindowsRules.absolute(row.path), row.absolute) << row.path;
    }
}

TEST(WindowsPaths, StartAtAShareWhenTheProgramDoes) {
    const WindowsPaths rules("\\\\s\\h\\dir");
    EXPECT_EQ(rules.absolute("b"), "\\\\s\\h\\dir\\b");
    EXPECT_EQ(rules.absolute("\\b"), "\\\\s\\h\\b");
    EXPECT_EQ(rules.absolute("\\\\s\\h\\b"), "\\\\s\\h\\b");
    EXPECT_EQ(rules.absolute("C:b"), "C:\\b");
}

}  // namespace
}  // namespace velmora
