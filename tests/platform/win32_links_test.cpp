#include "platform/win32/win32_links.h"

#include <gtest/gtest.h>

#include "platform/win32/win32_lookup.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

class Win32Links : public testing::Test {
  protected:
    std::optional<std::string> resolved(const std::string& name) const {
        return resolvedWin32Path(folder.path(name));
    }
    test::TempFolder folder;
};

TEST_F(Win32Links, AResolvedPathHasNoDotsAndTheLettersAsStored) {
    folder.makeFolder("Sub");
    const std::string stored = withStoredLetters(folder.write("Sub\\Memo.txt"));
    for (const char* name : {"Sub\\Memo.txt", "SUB\\MEMO.TXT", "Sub\\..\\sub\\.\\memo.txt"}) {
        EXPECT_EQ(resolved(name), stored) << name;
    }
}

TEST_F(Win32Links, ANewFileLiesInItsResolvedFolder) {
    const std::string stored = withStoredLetters(folder.makeFolder("Sub"));
    EXPECT_EQ(resolved("SUB\\New.txt"), stored + "\\New.txt");
    EXPECT_EQ(resolved("Sub\\..\\sub\\New.txt"), stored + "\\New.txt");
}

TEST_F(Win32Links, WhatLiesInNoFolderIsNotResolved) {
    folder.write("file");
    EXPECT_EQ(resolved("None\\New.txt"), std::nullopt);
    EXPECT_EQ(resolved("file\\New.txt"), std::nullopt);
}

}  // namespace
}  // namespace velmora
