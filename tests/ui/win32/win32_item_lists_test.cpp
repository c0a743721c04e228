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

TEST(ItemLists, AFolderWithOtherLettersIsNeverGivenByASimilarName) {
    wchar_t temporary[MAX_PATH];
    ASSERT_NE(GetTempPathW(MAX_PATH, temporary), 0U);
    const std::wstring number = std::to_wstring(GetCurrentProcessId());
    // The code page makes the second of the first when it is let.
    const std::wstring folder = std::wstring(temporary) + L"\u0141\u00F3d\u017A " + number;
    const std::wstring similar = std::wstring(temporary) + L"L\u00F3dz " + number;
    ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
    ASSERT_TRUE(CreateDirectoryW(similar.c_str(), nullptr));
    const ItemList item(ILCreateFromPathW(folder.c_str()));
    const auto path = item ? pathOfItem(item.get()) : std::nullopt;
    EXPECT_NE(path, std::string());
    if (path && !path->empty()) {
        // Whether it is the same folder shows in what is made inside.
        EXPECT_TRUE(CreateDirectoryA((*path + "\\inside").c_str(), nullptr)) << *path;
        EXPECT_TRUE(RemoveDirectoryW((folder + L"\\inside").c_str())) << *path;
    }
    EXPECT_TRUE(RemoveDirectoryW(similar.c_str()));
    EXPECT_TRUE(RemoveDirectoryW(folder.c_str()));
    ASSERT_NE(item, nullptr);
    if (!path) {
        GTEST_SKIP() << "this volume keeps no short names";
    }
}

}  // namespace
}  // namespace velmora
