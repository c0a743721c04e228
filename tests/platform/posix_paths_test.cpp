#include "platform/posix/posix_paths.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

const PosixPaths kPosixRules("/home/anna");

TEST(PosixPaths, HaveSlashesAndNoDrives) {
    EXPECT_EQ(kPosixRules.separator(), '/');
    EXPECT_FALSE(kPosixRules.hasDrives());
    EXPECT_EQ(kPosixRules.drive("/home"), "");
    EXPECT_EQ(kPosixRules.drive("C:/home"), "");
}

TEST(PosixPaths, TurnOrganiserNamesIntoUtf8WithSlashes) {
    EXPECT_EQ(kPosixRules.fromOrganiser("SUB\\\xC4RGER"), "SUB/\xC3\x84RGER");
    EXPECT_EQ(kPosixRules.fromOrganiser(""), "");
}

TEST(PosixPaths, RefuseOrganiserNamesThatNoFileCanHave) {
    EXPECT_FALSE(kPosixRules.fromOrganiser(std::string_view("A\0B", 3)));
    EXPECT_FALSE(kPosixRules.fromOrganiser("A\x8D"));
    EXPECT_FALSE(kPosixRules.fromOrganiser("A\x1F"));
    EXPECT_TRUE(kPosixRules.fromOrganiser("A\x7F"));
}

TEST(PosixPaths, TurnNamesIntoOrganiserBytes) {
    EXPECT_EQ(kPosixRules.toOrganiser("\xC3\x84rger"), "\xC4rger");
}

TEST(PosixPaths, RefuseNamesThatTheOrganiserCouldNotSendBack) {
    EXPECT_FALSE(kPosixRules.toOrganiser("\xE4\xB8\xAD"));
    EXPECT_FALSE(kPosixRules.toOrganiser("\xC4rger")) << "not UTF-8";
    EXPECT_FALSE(kPosixRules.toOrganiser("a\\b"));
    EXPECT_FALSE(kPosixRules.toOrganiser("a\nb"));
}

TEST(PosixPaths, JoinWithExactlyOneSeparator) {
    EXPECT_EQ(kPosixRules.join("/psion", "Memo"), "/psion/Memo");
    EXPECT_EQ(kPosixRules.join("/psion/", "Memo"), "/psion/Memo");
    EXPECT_EQ(kPosixRules.join("/psion//", "//Memo"), "/psion/Memo");
    EXPECT_EQ(kPosixRules.join("/", "Memo"), "/Memo");
    EXPECT_EQ(kPosixRules.join("/psion", ""), "/psion/");
    EXPECT_EQ(kPosixRules.join("", "/Memo"), "/Memo");
    EXPECT_EQ(kPosixRules.join("", "Memo"), "Memo");
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
        EXPECT_EQ(kPosixRules.parentFolder(row.path), row.parent) << row.path;
        EXPECT_EQ(kPosixRules.lastComponent(row.path), row.last) << row.path;
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
        EXPECT_EQ(kPosixRules.absolute(row.path), row.absolute) << row.path;
    }
}

TEST(PosixPaths, BaseNameAndExtensionPartAtTheLastDot) {
    EXPECT_EQ(kPosixRules.baseName("/a.d/x.tar.gz"), "x.tar");
    EXPECT_EQ(kPosixRules.extension("/a.d/x.tar.gz"), "gz");
    EXPECT_EQ(kPosixRules.baseName("/a.d/x"), "x");
    EXPECT_EQ(kPosixRules.extension("/a.d/x"), "");
    EXPECT_EQ(kPosixRules.baseName("/.x"), "");
    EXPECT_EQ(kPosixRules.extension("/x."), "");
}

}  // namespace
}  // namespace velmora
