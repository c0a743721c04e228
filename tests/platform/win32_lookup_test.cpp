#include "platform/win32/win32_lookup.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/win32_folder.h"
#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;

int lookUpError(const std::string& path) {
    return errorOf([&] { Win32Lookup().lookUp(path); });
}

class Win32LookupTest : public testing::Test {
  protected:
    /// The status of a path; `error` is 0 or the system's number.
    Win32Status statusOf(const std::string& path) {
        Win32Status status;
        error = readWin32Status(path, status);
        return status;
    }
    test::TempFolder folder;
    std::uint32_t error = 0;
};

TEST_F(Win32LookupTest, APathThatTheSystemFindsIsLeftAsItIs) {
    const std::string path = folder.write("Memo.txt");
    EXPECT_EQ(Win32Lookup().lookUp(path), path);
    EXPECT_EQ(Win32Lookup().lookUp(folder.path("MEMO.TXT")), folder.path("MEMO.TXT"));
    EXPECT_EQ(Win32Lookup().lookUp(folder.path("none.txt")), folder.path("none.txt"));
    EXPECT_EQ(Win32Lookup().lookUp(folder.path("NONE~1.TXT")), folder.path("NONE~1.TXT"));
    EXPECT_EQ(Win32Lookup().lookUp("relative"), "relative");
}

TEST_F(Win32LookupTest, TellsThePathOfAGivenShortNameOnly) {
    const Win32Lookup lookup;
    EXPECT_EQ(lookup.pathOfShortName(folder.path("Longer~1")), folder.path("Longer~1"));
    const auto shorts = lookup.shortNames(folder.path() + "\\", {{"Longer name", "", true}});
    ASSERT_EQ(shorts, std::vector<std::string>{"LONGER~1"});
    EXPECT_EQ(lookup.pathOfShortName(folder.path("Longer~1")), folder.path("Longer name"));
    EXPECT_EQ(lookup.lookUp(folder.path("LONGER~1")), folder.path("Longer name")) << "to be made again";
    EXPECT_EQ(lookup.pathOfShortName(folder.path("none\\Longer~1")), folder.path("none\\Longer~1"));
}

TEST_F(Win32LookupTest, CharactersOfAPatternFindNoOtherFile) {
    folder.write("Memo.txt");
    for (const char* name : {"*", "Mem?.txt", "Memo.<", "Memo>txt", "Memo\".txt", "Memo|txt"}) {
        EXPECT_EQ(lookUpError(folder.path() + "\\" + name), 64) << name;
    }
    EXPECT_EQ(lookUpError("\\\\?\\C:\\Memo.txt"), 64);
}

TEST_F(Win32LookupTest, NamesThatCannotBeAreRefused) {
    EXPECT_EQ(lookUpError(""), 64);
    EXPECT_EQ(lookUpError(std::string("C:\\a\0b", 6)), 64);
    EXPECT_EQ(lookUpError("C:\\Memo.txt:stream"), 64);
    EXPECT_EQ(lookUpError("C:\\D:\\Memo.txt"), 64);
    EXPECT_EQ(lookUpError(":x"), 64);
}

TEST_F(Win32LookupTest, PathsHaveLessThan260BytesWhenTheyAreAbsolute) {
    const std::string start = folder.path() + "\\";
    EXPECT_EQ(lookUpError(start + std::string(259 - start.size(), 'x')), 0);
    EXPECT_EQ(lookUpError(start + std::string(260 - start.size(), 'x')), 64);
    EXPECT_EQ(lookUpError(std::string(259, 'x')), 64) << "relative";
    EXPECT_EQ(lookUpError(start + std::string(40'000, 'x')), 64);
}

TEST_F(Win32LookupTest, DevicesAndPipesAreNoFiles) {
    for (const char* path : {"\\\\.\\COM1", "//./PhysicalDrive0", "\\\\.\\pipe\\x", "\\\\server\\pipe\\x",
                             "\\\\server\\PIPE", "\\\\localhost\\mailslot\\x"}) {
        EXPECT_EQ(lookUpError(path), 75) << path;
    }
}

TEST_F(Win32LookupTest, StatusTellsFilesFromFoldersAndTheirSize) {
    EXPECT_EQ(statusOf(folder.write("file", "12345")).size, 5U);
    EXPECT_EQ(error, 0U);
    EXPECT_TRUE(statusOf(folder.path()).isFolder);
    EXPECT_TRUE(statusOf(folder.path() + "\\").isFolder);
    EXPECT_EQ(error, 0U);
    statusOf(folder.path("file"));
    EXPECT_EQ(error, 0U);
}

TEST_F(Win32LookupTest, StatusTellsWhatIsMissing) {
    statusOf(folder.path("none"));
    EXPECT_EQ(error, DWORD{ERROR_FILE_NOT_FOUND});
    statusOf(folder.path("none/none"));
    EXPECT_EQ(error, DWORD{ERROR_PATH_NOT_FOUND});
    folder.write("file");
    statusOf(folder.path("file") + "\\");
    EXPECT_NE(error, 0U) << "a file in a folder's place";
}

TEST_F(Win32LookupTest, StoredLettersAreGivenForEveryComponent) {
    folder.makeFolder("Sub/Deeper");
    folder.write("Sub/Deeper/File.Txt");
    const std::string base = withStoredLetters(folder.path());
    EXPECT_EQ(withStoredLetters(folder.path() + "\\SUB\\deeper\\FILE.TXT"), base + "\\Sub\\Deeper\\File.Txt");
    EXPECT_EQ(withStoredLetters(folder.path() + "\\SUB\\..\\sub/deeper\\.\\FILE.TXT"),
              base + "\\Sub\\..\\Sub/Deeper\\.\\File.Txt");
    std::string small = base;
    small[0] = 'c';
    EXPECT_EQ(withStoredLetters(small), "C" + base.substr(1));
}

}  // namespace
}  // namespace velmora
