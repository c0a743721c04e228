#include "platform/posix/posix_paths.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

const PosixPaths kRules("/home/anna");

TEST(PosixPaths, HaveSlashesAndNoDrives) {
    EXPECT_EQ(kRules.separator(), '/');
    EXPECT_FALSE(kRules.hasDrives());
    EXPECT_EQ(kRules.drive("/home"), "");
    EXPECT_EQ(kRules.drive("C:/home"), "");
}

TEST(PosixPaths, TurnOrganiserNamesIntoUtf8WithSlashes) {
    EXPECT_EQ(kRules.fromOrganiser("SUB\\\xC4RGER"), "SUB/\xC3\x84RGER");
    EXPECT_EQ(kRules.fromOrganiser(""), "");
}

TEST(PosixPaths, RefuseOrganiserNamesThatNoFileCanHave) {
    EXPECT_FALSE(kRules.fromOrganiser(std::string_view("A\0B", 3)));
    EXPECT_FALSE(kRules.fromOrganiser("A\x8D"));
    EXPECT_FALSE(kRules.fromOrganiser("A\x1F"));
    EXPECT_TRUE(kRules.fromOrganiser("A\x7F"));
}

TEST(PosixPaths, TurnNamesIntoOrganiserBytes) {
    EXPECT_EQ(kRules.toOrganiser("\xC3\x84rger"), "\xC4rger");
}

TEST(PosixPaths, RefuseNamesThatTheOrganiserCouldNotSendBack) {
    EXPECT_FALSE(kRules.toOrganiser("\xE4\xB8\xAD"));
    EXPECT_FALSE(kRules.toOrganiser("\xC4rger")) << "not UTF-8";
    EXPECT_FALSE(kRules.toOrganiser("a\\b"));
    EXPECT_FALSE(kRules.toOrganiser("a\nb"));
}

TEST(PosixPaths, JoinWithExactlyOneSeparator) {
    EXPECT_EQ(kRules.join("/psion", "Memo"), "/psion/Memo");
    EXPECT_EQ(kRules.join("/psion/", "Memo"), "/psion/Memo");
    EXPECT_EQ(kRules.join("/psion//", "//Memo"), "/psion/Memo");
    EXPECT_EQ(kRules.join("/", "Memo"), "/Memo");
    EXPECT_EQ(kRules.join("/psion", ""), "/psion/");
    EXPECT_EQ(kRules.join("", "/Memo"), "/Memo");
    EXPECT_EQ(kRules.join("", "Memo"), "Memo");
}

TEST(PosixPaths, SplitIntoParentFolderAndLastComponent) {
    struct {
        const char* path;
        const char* parent;
        const char* last;
    } const rows[] = {
        {"/a/b", "/a", "b"}, {"/a", "/", "a"}, {"/", "/", ""},    {"a", "", "a"},       {"a/b", "a", "b"},
        {"/a/", "/a", ""},   {"", "", ""},     {"//a", "/", "a"}, {"/a//b", "/a", "b"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(kRules.parentFolder(row.path), row.parent) << row.path;
        EXPECT_EQ(kRules.lastComponent(row.path), row.last) << row.path;
    }
}

TEST(PosixPaths, BecomeAbsolute) {
    struct {
        const char* path;
        const char* absolute;
    } const rows[] = {
        {"/a/b", "/a/b"},   {"/a/./b//c/", "/a/b/c"}, {"/a/../b", "/b"},
        {"/../..", "/"},    {"b", "/home/anna/b"},    {"../b", "/home/b"},
        {"", "/home/anna"}, {".", "/home/anna"},      {"/", "/"},
        {"/...", "/..."},   {"/a/..b", "/a/..b"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(kRules.absolute(row.path), row.absolute) << row.path;
    }
}

TEST(PosixPaths, BaseNameAndExtensionPartAtTheLastDot) {
    EXPECT_EQ(kRules.baseName("/a.d/x.tar.gz"), "x.tar");
    EXPECT_EQ(kRules.extension("/a.d/x.tar.gz"), "gz");
    EXPECT_EQ(kRules.baseName("/a.d/x"), "x");
    EXPECT_EQ(kRules.extension("/a.d/x"), "");
    EXPECT_EQ(kRules.baseName("/.x"), "");
    EXPECT_EQ(kRules.extension("/x."), "");
}

}  // namespace
}  // namespace velmora
