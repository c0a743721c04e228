#include <gtest/gtest.h>
#include <windows.h>
// Above it they do not compile.
#include <shlobj.h>

#include <cctype>
#include <string>

#include "platform/win32/shell_folders.h"

namespace velmora {
namespace {

/// Sets the current folder of the process and puts the old one back.
class CurrentFolder {
  public:
    explicit CurrentFolder(const std::string& folder) : old_(currentFolder()) {
        EXPECT_NE(SetCurrentDirectoryA(folder.c_str()), 0);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { SetCurrentDirectoryA(old_.c_str()); }

  private:
    std::string old_;
};

void expectFolderPath(const std::string& path) {
    ASSERT_GT(path.size(), 3U);
    EXPECT_NE(std::isalpha(static_cast<unsigned char>(path[0])), 0) << path;
    EXPECT_EQ(path.substr(1, 2), ":\\") << path;
    EXPECT_NE(path.back(), '\\') << path;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    ASSERT_NE(attributes, INVALID_FILE_ATTRIBUTES) << path;
    EXPECT_NE(attributes & FILE_ATTRIBUTE_DIRECTORY, 0U) << path;
}

TEST(ShellFolders, AreAbsoluteAndThereAndEndInNoSeparator) {
    const ShellFolders folders;
    expectFolderPath(folders.applicationData());
    expectFolderPath(folders.documents());
    expectFolderPath(folders.temporary());
    EXPECT_NE(folders.applicationData(), folders.documents());
}

TEST(ShellFolders, ApplicationDataIsTheUsersOwn) {
    char fromEnvironment[MAX_PATH] = {};
    ASSERT_GT(GetEnvironmentVariableA("APPDATA", fromEnvironment, MAX_PATH), 0U);
    EXPECT_EQ(lstrcmpiA(ShellFolders().applicationData().c_str(), fromEnvironment), 0);
}

TEST(ShellFolders, WhatIsOursStaysOnThisMachine) {
    char fromEnvironment[MAX_PATH] = {};
    ASSERT_GT(GetEnvironmentVariableA("LOCALAPPDATA", fromEnvironment, MAX_PATH), 0U);
    const std::string expected = fromEnvironment + std::string("\\Velmora");
    EXPECT_EQ(lstrcmpiA(ShellFolders().programData().c_str(), expected.c_str()), 0);
}

TEST(ShellFolders, DocumentsAreWhereTheShellHasThem) {
    char documents[MAX_PATH] = {};
    ASSERT_EQ(SHGetFolderPathA(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, documents), S_OK);
    EXPECT_EQ(lstrcmpiA(ShellFolders().documents().c_str(), documents), 0) << documents;
}

TEST(ShellFolders, TheCurrentFolderIsFollowed) {
    const std::string folder = ShellFolders().temporary();
    const CurrentFolder there(folder);
    EXPECT_EQ(lstrcmpiA(currentFolder().c_str(), folder.c_str()), 0) << currentFolder();
}

TEST(ShellFolders, ARootKeepsItsSeparator) {
    const CurrentFolder root("C:\\");
    EXPECT_EQ(currentFolder(), "C:\\");
}

}  // namespace
}  // namespace velmora
