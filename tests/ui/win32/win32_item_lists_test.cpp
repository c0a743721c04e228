#include <gtest/gtest.h>

#include "ui/win32/item_lists.h"

namespace velmora {
namespace {

TEST(ItemLists, ASpecialFolderHasItsPath) {
    char windows[MAX_PATH];
    GetWindowsDirectoryA(windows, sizeof windows);
    const ItemList item = specialFolderItem(nullptr, CSIDL_WINDOWS);
    ASSERT_NE(item, nullptr);
    EXPECT_STRCASEEQ(pathOfItem(item.get()).value_or("nothing").c_str(), windows);
}

TEST(ItemLists, ANumberOfNoFolderHasNoItem) {
    EXPECT_EQ(specialFolderItem(nullptr, 9999), nullptr);
}

TEST(ItemLists, WhatIsNoFolderOfTheFileSystemHasAnEmptyPath) {
    const ItemList item = specialFolderItem(nullptr, CSIDL_DRIVES);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(pathOfItem(item.get()), std::string());
}

TEST(ItemLists, APathOfTheCodePageStaysAsItIs) {
    EXPECT_EQ(exactPath(L"C:\\B\u00FCcher \u20AC"),
              "C:\\B\xFC"
              "cher \x80");
}

TEST(ItemLists, APathThatIsNotThereAndHasNoAnsiNameHasNone) {
    // The code page puts "L" and "o" for the first two letters when it is let.
    EXPECT_EQ(exactPath(L"C:\\\u0141\u00F3d\u017A-missing"), std::nullopt);
}

TEST(ItemLists, AFolderWithOtherLettersIsGivenByItsShortNameAndNoOther) {
    wchar_t temporary[MAX_PATH];
    ASSERT_NE(GetTempPathW(MAX_PATH, temporary), 0U);
    const std::wstring folder =
        std::wstring(temporary) + L"\u0141\u00F3d\u017A " + std::to_wstring(GetCurrentProcessId());
    ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
    const auto path = exactPath(folder);
    if (path) {
        // Whether it is the same folder shows in what is made inside.
        const std::string inside = *path + "\\inside";
        EXPECT_TRUE(CreateDirectoryA(inside.c_str(), nullptr)) << *path;
        EXPECT_TRUE(RemoveDirectoryW((folder + L"\\inside").c_str()));
    }
    EXPECT_TRUE(RemoveDirectoryW(folder.c_str()));
}

}  // namespace
}  // namespace velmora
