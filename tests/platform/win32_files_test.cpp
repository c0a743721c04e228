#include "platform/win32/win32_files.h"

#include <gmock/gmock.h>
#include <windows.h>

#include <functional>
#include <map>
#include <memory>

#include "platform/win32/ansi_text.h"
#include "platform/win32/win32_handle.h"
#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;
using testing::ElementsAre;
using testing::Pair;

class Win32FilesTest : public testing::Test {
  protected:
    std::string path(const std::string& name) const { return folder.path() + "\\" + name; }
    int openError(const std::string& name, OpenMode mode = OpenMode::Read) {
        return errorOf([&] { files.open(path(name), mode); });
    }
    /// Makes a file whose name may hold any character.
    void makeWide(const std::wstring& name, const std::string& bytes) const {
        const Win32Handle file(CreateFileW((wideFromAnsi(folder.path()) + L"\\" + name).c_str(),
                                           GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
        DWORD written = 0;
        ASSERT_NE(WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr),
                  0);
    }
    std::string contentOf(const std::string& file) {
        const auto opened = files.open(file, OpenMode::Read);
        std::string bytes(opened->size(), '\0');
        opened->read(bytes.data(), bytes.size());
        return bytes;
    }
    /// Short names of a folder by its long ones.
    std::map<std::string, std::string> listShort() const {
        std::map<std::string, std::string> names;
        files.listFiles(folder.path(), ShortNames::Include,
                        [&](const FolderEntry& entry) { names[entry.name] = entry.shortName; });
        return names;
    }

    test::TempFolder folder;
    int waits = 0;
    std::function<void()> whileWaiting;
    Win32Files files{folder.path(), [this](std::chrono::milliseconds) {
                         ++waits;
                         if (whileWaiting) {
                             whileWaiting();
                         }
                     }};
};

/// The file as another program has it open.
Win32Handle heldOpen(const std::string& path, DWORD access, DWORD share) {
    return Win32Handle(CreateFileA(path.c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr));
}

// Names.

TEST_F(Win32FilesTest, CaseIsIgnoredInEveryComponent) {
    folder.makeFolder("Sub/Deeper");
    folder.write("Sub/Deeper/File");
    EXPECT_EQ(files.storedPath(path("SUB\\DEEPER\\FILE")), files.storedPath(path("Sub\\Deeper\\File")));
    EXPECT_THAT(files.storedPath(path("SUB\\DEEPER\\FILE")), testing::EndsWith("\\Sub\\Deeper\\File"));
    EXPECT_TRUE(files.folderExists(path("sub\\deeper\\")));
    EXPECT_FALSE(files.fileExists(path("sub\\deeper\\file\\")));
}

TEST_F(Win32FilesTest, AccentedLettersHaveACaseToo) {
    files.open(path("\xC4rger.txt"), OpenMode::CreateNew);
    EXPECT_TRUE(files.fileExists(path("\xE4RGER.TXT")));
    EXPECT_FALSE(files.fileExists(path("Arger.txt")));
    EXPECT_THAT(files.storedPath(path("\xE4RGER.TXT")), testing::EndsWith("\\\xC4rger.txt"));
}

TEST_F(Win32FilesTest, AFolderIsFoundByAShortNameThatWasMadeUp) {
    // No volume keeps a short name for it, since Windows allows "%" in one; the Organiser cannot write it.
    folder.makeFolder("50%");
    files.open(path("50%\\Memo"), OpenMode::CreateNew)->write("x");
    EXPECT_TRUE(files.fileExists(path("50_~1\\MEMO")));
    EXPECT_EQ(files.storedPath(path("50_~1\\MEMO")), files.storedPath(path("50%\\Memo")));
    EXPECT_EQ(openError("50_~2\\MEMO"), 76);
}

TEST_F(Win32FilesTest, ANameOutsideTheCodePageIsNeverAnotherFile) {
    makeWide(L"\u0100b.txt", "with a line above");
    EXPECT_FALSE(files.fileExists(path("Ab.txt"))) << "the similar name that Windows tells for it";
    folder.write("Ab.txt", "another");
    const auto names = listShort();
    EXPECT_EQ(names.count("Ab.txt"), 1U);
    for (const auto& [name, shortName] : names) {
        EXPECT_EQ(contentOf(path(name)), name == "Ab.txt" ? "another" : "with a line above") << name;
        EXPECT_EQ(contentOf(path(shortName)), name == "Ab.txt" ? "another" : "with a line above") << name;
    }
}

TEST_F(Win32FilesTest, ANameOutsideTheCodePageIsListedAndStoredByItsShortName) {
    makeWide(L"Fili\u00E1le \u0394.txt", "Greek");
    const auto names = listShort();
    if (names.empty()) {
        GTEST_SKIP() << "this volume keeps no short names";
    }
    const auto& [name, shortName] = *names.begin();
    EXPECT_EQ(name.find('?'), std::string::npos) << name;
    EXPECT_EQ(contentOf(path(name)), "Greek");
    EXPECT_EQ(contentOf(path(shortName)), "Greek");
    EXPECT_EQ(contentOf(files.storedPath(path(name))), "Greek");
}

TEST_F(Win32FilesTest, NamesThatCannotBeAreRefused) {
    EXPECT_EQ(openError(std::string(256, 'x'), OpenMode::Create), 64);
    EXPECT_EQ(openError(std::string("a\0b", 3), OpenMode::Create), 64);
    EXPECT_EQ(openError("a?", OpenMode::Create), 64);
    EXPECT_EQ(openError("*", OpenMode::Read), 64);
    EXPECT_EQ(openError("Memo:stream", OpenMode::Create), 64);
    EXPECT_EQ(errorOf([&] { files.open("", OpenMode::Read); }), 64);
    EXPECT_FALSE(files.fileExists(""));
    EXPECT_FALSE(files.fileExists(path("*")));
    EXPECT_EQ(files.storedPath(""), "");
    EXPECT_THAT(folder.names(), ElementsAre());
}

TEST_F(Win32FilesTest, APatternDeletesNothing) {
    folder.write("Memo");
    EXPECT_EQ(errorOf([&] { files.deleteFile(path("*")); }), 64);
    EXPECT_EQ(errorOf([&] { files.deleteFile(path("Mem?")); }), 64);
    EXPECT_THAT(folder.names(), ElementsAre("Memo"));
}

TEST_F(Win32FilesTest, AFileOnTheWayIsAMissingFolder) {
    folder.write("file");
    EXPECT_EQ(openError("file\\x"), 76);
    EXPECT_EQ(openError("file\\x", OpenMode::Create), 76);
}

TEST_F(Win32FilesTest, ADriveOrServerThatIsNotThereIsAMissingFolder) {
    EXPECT_FALSE(files.folderExists("A:\\"));
    EXPECT_EQ(errorOf([&] { files.open("A:\\Memo", OpenMode::Create); }), 76);
    EXPECT_EQ(errorOf([&] { files.createFolder("A:\\Sub"); }), 76);
    const std::string server = "\\\\velmora-no-such-server\\share\\X";
    EXPECT_FALSE(files.fileExists(server));
    EXPECT_EQ(errorOf([&] { files.open(server, OpenMode::Create); }), 76);
}

// What is no file.

TEST_F(Win32FilesTest, DevicesAreNotOpened) {
    for (const char* name : {"NUL", "\\\\.\\NUL", "CON", "\\\\.\\pipe\\velmora"}) {
        EXPECT_FALSE(files.fileExists(name)) << name;
        EXPECT_FALSE(files.folderExists(name)) << name;
        EXPECT_EQ(errorOf([&] { files.open(name, OpenMode::ReadWrite); }), 75) << name;
        EXPECT_EQ(errorOf([&] { files.deleteFile(name); }), 75) << name;
    }
}

TEST_F(Win32FilesTest, FoldersAreNotDeletedOrReplaced) {
    folder.makeFolder("sub");
    folder.write("file");
    EXPECT_EQ(errorOf([&] { files.deleteFile(path("sub")); }), 75);
    EXPECT_EQ(errorOf([&] { files.replaceFile(path("file"), path("sub")); }), 75);
    EXPECT_EQ(errorOf([&] { files.replaceFile(path("sub"), path("file")); }), 75);
    EXPECT_THAT(folder.names(), ElementsAre("file", "sub"));
}

// Failures of the system.

TEST_F(Win32FilesTest, AReadOnlyFileIsAPathAccessErrorAndKept) {
    const std::string file = folder.write("fixed", "content");
    ASSERT_NE(SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_EQ(errorOf([&] { files.deleteFile(file); }), 75);
    EXPECT_EQ(openError("fixed", OpenMode::Read), 0);
    if (heldOpen(file, GENERIC_WRITE, 0).isValid()) {
        GTEST_SKIP() << "this system lets its administrator write what is read-only";
    }
    EXPECT_EQ(openError("fixed", OpenMode::ReadWrite), 75);
    EXPECT_EQ(openError("fixed", OpenMode::Create), 75);
    EXPECT_EQ(folder.read("fixed"), "content");
    SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Win32FilesTest, AFileHeldByAnotherProgramIsDeniedAndKept) {
    const Win32Handle held = heldOpen(folder.write("held", "content"), GENERIC_READ | GENERIC_WRITE, 0);
    ASSERT_TRUE(held.isValid());
    for (const OpenMode mode : {OpenMode::Read, OpenMode::ReadWrite, OpenMode::Create}) {
        EXPECT_EQ(openError("held", mode), 70);
    }
    EXPECT_EQ(errorOf([&] { files.deleteFile(path("held")); }), 70);
    EXPECT_TRUE(files.fileExists(path("held")));
    EXPECT_EQ(files.fileSize(path("held")), 7U);
}

TEST_F(Win32FilesTest, AFileHeldByAnotherProgramIsNotReplaced) {
    folder.write("new", "new");
    const Win32Handle held = heldOpen(folder.write("held", "old"), GENERIC_READ, FILE_SHARE_READ);
    EXPECT_EQ(errorOf([&] { files.replaceFile(path("new"), path("held")); }), 70);
    EXPECT_GT(waits, 1);
    EXPECT_LT(waits, 100);
    EXPECT_EQ(folder.read("held"), "old");
    EXPECT_EQ(folder.read("new"), "new");
}

TEST_F(Win32FilesTest, AFileThatIsHeldForAMomentIsReplaced) {
    for (const char* heldName : {"old", "new"}) {
        folder.write("new", "new");
        folder.write("old", "old");
        auto held =
            std::make_unique<Win32Handle>(heldOpen(path(heldName), GENERIC_READ, FILE_SHARE_READ).handOn());
        ASSERT_TRUE(held->isValid());
        waits = 0;
        whileWaiting = [&] {
            if (waits == 2) {
                held.reset();
            }
        };
        EXPECT_EQ(errorOf([&] { files.replaceFile(path("new"), path("old")); }), 0) << heldName;
        EXPECT_EQ(waits, 2) << heldName;
        EXPECT_EQ(folder.read("old"), "new") << heldName;
    }
}

TEST_F(Win32FilesTest, AFileThatOthersReadAndShareIsReplacedAtOnce) {
    folder.write("old", "old");
    const Win32Handle held = heldOpen(folder.write("new", "new"), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    files.replaceFile(path("new"), path("old"));
    EXPECT_EQ(waits, 0);
}

TEST_F(Win32FilesTest, AReaderThatLetsOthersWriteDoesNoHarm) {
    const Win32Handle held =
        heldOpen(folder.write("shown", "old"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(openError("shown", OpenMode::Create), 0);
}

TEST_F(Win32FilesTest, AFileThatAnotherProgramWritesAndSharesIsRead) {
    const Win32Handle writer =
        heldOpen(folder.write("log", "so far"), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_TRUE(writer.isValid());
    EXPECT_EQ(openError("log", OpenMode::ReadWrite), 70);
    EXPECT_EQ(contentOf(path("log")), "so far");
}

TEST_F(Win32FilesTest, AFileThatIsReadCannotBeWrittenByOthers) {
    folder.write("memo", "x");
    const auto reading = files.open(path("memo"), OpenMode::Read);
    EXPECT_FALSE(heldOpen(path("memo"), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE)
                     .isValid());
}

TEST_F(Win32FilesTest, WhatIsBeingWrittenIsHeldAgainstOthers) {
    const auto writing = files.open(path("memo"), OpenMode::Create);
    EXPECT_EQ(openError("MEMO", OpenMode::Create), 70);
    EXPECT_EQ(MoveFileA(path("memo").c_str(), path("elsewhere").c_str()), 0);
    EXPECT_TRUE(writing->isInPlace());
    const Win32Handle looking = heldOpen(path("memo"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_TRUE(looking.isValid()) << "a program that lets others write may look on";
}

TEST_F(Win32FilesTest, AHiddenFileIsWrittenAnew) {
    const std::string file = folder.write("hidden", "old content");
    ASSERT_NE(SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
    files.open(file, OpenMode::Create)->write("new");
    EXPECT_EQ(folder.read("hidden"), "new");
}

// Replacing, temporary files, listing.

TEST_F(Win32FilesTest, ReplacingByAShortNameKeepsTheLongOne) {
    folder.write("Settings of Velmora.ini", "old");
    folder.write("new", "new");
    const std::string shortName = listShort()["Settings of Velmora.ini"];
    files.replaceFile(path("new"), path(shortName));
    EXPECT_EQ(folder.read("Settings of Velmora.ini"), "new");
    EXPECT_THAT(folder.names(), ElementsAre("Settings of Velmora.ini"));
}

TEST_F(Win32FilesTest, TheFileBehindALinkIsReplacedAndTheLinkStays) {
    folder.write("real", "old");
    folder.write("new", "new");
    // Wine tells of success and makes nothing.
    if (CreateSymbolicLinkA(path("link").c_str(), path("real").c_str(), 0) == 0 ||
        GetFileAttributesA(path("link").c_str()) == INVALID_FILE_ATTRIBUTES) {
        GTEST_SKIP() << "this system lets this user make no links";
    }
    files.replaceFile(path("new"), path("link"));
    EXPECT_EQ(folder.read("real"), "new");
    EXPECT_NE(GetFileAttributesA(path("link").c_str()) & FILE_ATTRIBUTE_REPARSE_POINT, 0U);
}

TEST_F(Win32FilesTest, ATemporaryFileInUseIsNoLeftover) {
    const std::string temporary = files.createTemporaryFile(folder.path());
    {
        const auto writing = files.open(temporary, OpenMode::ReadWrite);
        files.removeLeftovers(folder.path());
        EXPECT_TRUE(files.fileExists(temporary));
    }
    files.removeLeftovers(folder.path());
    EXPECT_FALSE(files.fileExists(temporary));
}

TEST_F(Win32FilesTest, TemporaryFilesLieInTheirFolder) {
    const std::string file = files.createTemporaryFile();
    EXPECT_EQ(file.substr(0, file.rfind('\\')), folder.path());
    EXPECT_EQ(errorOf([&] { files.createTemporaryFile(path("none")); }), 76);
}

TEST_F(Win32FilesTest, AFolderIsListedWithAndWithoutAFinalSeparator) {
    folder.write("a");
    for (const char* end : {"", "\\", "/"}) {
        std::vector<std::string> names;
        files.listFiles(folder.path() + end, ShortNames::Omit,
                        [&](const FolderEntry& entry) { names.push_back(entry.name); });
        EXPECT_THAT(names, ElementsAre("a")) << end;
    }
}

TEST_F(Win32FilesTest, AFileDeletedWhileItIsListedDoesNoHarm) {
    folder.write("a");
    folder.write("b");
    std::vector<std::string> seen;
    files.listFiles(folder.path(), ShortNames::Include, [&](const FolderEntry& entry) {
        seen.push_back(entry.name);
        DeleteFileA(path("b").c_str());
        folder.write("c");
    });
    EXPECT_EQ(seen.front(), "a");
    EXPECT_LE(seen.size(), 2U);
}

TEST_F(Win32FilesTest, ThousandsOfFilesWithoutShortNamesAreListedAndFound) {
    constexpr int kCount = 2'000;
    for (int i = 0; i < kCount; ++i) {
        folder.write(std::to_string(i) + "%");  // none has a short name of the volume's
    }
    EXPECT_EQ(listShort().size(), static_cast<std::size_t>(kCount));
    EXPECT_TRUE(files.fileExists(path("1711_~1")));
    EXPECT_FALSE(files.fileExists(path("NO~1")));
}

}  // namespace
}  // namespace velmora
