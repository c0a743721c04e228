#include "platform/win32/win32_folder.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "platform/win32/ansi_text.h"
#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;
using testing::ElementsAre;

class Win32Folder : public testing::Test {
  protected:
    std::vector<Win32Entry> read() const { return readWin32Folder(folder.path() + "\\"); }
    std::vector<std::string> names() const { return folderNames(read()).names; }

    test::TempFolder folder;
};

WIN32_FIND_DATAW found(const std::wstring& name, const std::wstring& shortName) {
    WIN32_FIND_DATAW data{};
    std::copy(name.begin(), name.end(), data.cFileName);
    std::copy(shortName.begin(), shortName.end(), data.cAlternateFileName);
    return data;
}

TEST_F(Win32Folder, EntriesAreInTheOrderOfTheirBytes) {
    for (const char* name : {"b", "C", "a", "c1"}) {
        folder.write(name);
    }
    folder.makeFolder("B2");
    EXPECT_THAT(names(), ElementsAre("B2", "C", "a", "b", "c1"));
    for (const Win32Entry& entry : read()) {
        EXPECT_EQ(entry.isFile, entry.name != "B2") << entry.name;
    }
}

TEST_F(Win32Folder, AnEmptyFolderHasNoEntries) {
    EXPECT_THAT(names(), ElementsAre());
}

TEST_F(Win32Folder, WhatIsNoFolderCannotBeRead) {
    EXPECT_EQ(errorOf([&] { readWin32Folder(folder.path("none") + "\\"); }), 76);
    folder.write("file");
    EXPECT_EQ(errorOf([&] { readWin32Folder(folder.path("file") + "\\"); }), 76);
}

TEST_F(Win32Folder, ANameOutsideTheCodePageIsGivenByItsShortName) {
    EXPECT_EQ(narrowName(found(L"Memo.txt", L"")), "Memo.txt");
    EXPECT_EQ(narrowName(found(L"\u0394\u03B5\u03BB.txt", L"4B2C~1.TXT")), "4B2C~1.TXT");
}

TEST_F(Win32Folder, ANameThatWindowsWouldCutIsGivenByItsShortName) {
    EXPECT_EQ(narrowName(found(L"memo.", L"MEMO~1")), "MEMO~1");
    EXPECT_EQ(narrowName(found(L"memo.txt ", L"MEMO~1.TXT")), "MEMO~1.TXT");
    EXPECT_EQ(narrowName(found(L"memo ", L"")), std::nullopt);
}

TEST_F(Win32Folder, ANameThatCannotBeToldIsLeftOutInsteadOfGuessed) {
    EXPECT_EQ(narrowName(found(L"\u0394.txt", L"")), std::nullopt);
    EXPECT_EQ(narrowName(found(L"\u0100b.txt", L"")), std::nullopt)
        << "not Ab.txt, which may be another file";
}

}  // namespace
}  // namespace velmora
