#include "platform/posix/resolved_path.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temp_folder.h"

namespace velmora {
namespace {

class ResolvedPathTest : public testing::Test {
  protected:
    void link(const std::string& target, const std::string& name) const {
        std::filesystem::create_symlink(target, folder.path(name));
    }
    std::optional<std::string> resolved(const std::string& name) const {
        return resolvedPosixPath(folder.path(name));
    }
    test::TempFolder folder;
};

TEST_F(ResolvedPathTest, OfAFileHasNoLinksAndNoDots) {
    folder.makeFolder("sub");
    folder.write("sub/file");
    link("sub", "folder link");
    link("folder link/file", "file link");
    for (const char* name : {"sub/file", "folder link/file", "file link", "sub/.././sub//file"}) {
        EXPECT_EQ(resolved(name), folder.path("sub/file")) << name;
    }
}

TEST_F(ResolvedPathTest, OfANewFileIsWhereItWillLie) {
    folder.makeFolder("sub");
    link("sub", "folder link");
    EXPECT_EQ(resolved("new"), folder.path("new"));
    EXPECT_EQ(resolved("folder link/new"), folder.path("sub/new"));
    EXPECT_EQ(resolvedPosixPath("/new velmora file"), "/new velmora file");
}

TEST_F(ResolvedPathTest, OfALinkToNothingIsWhereItLeads) {
    folder.makeFolder("sub");
    link("sub/new", "relative");
    link(folder.path("sub/new"), "absolute");
    link("relative", "twice");
    for (const char* name : {"relative", "absolute", "twice"}) {
        EXPECT_EQ(resolved(name), folder.path("sub/new")) << name;
    }
}

TEST_F(ResolvedPathTest, OfWhatCannotBeReachedIsNone) {
    link("circle 2", "circle 1");
    link("circle 1", "circle 2");
    link("missing/new", "nowhere");
    folder.write("file");
    for (const char* name : {"circle 1", "nowhere", "missing/new", "file/new", "missing/"}) {
        EXPECT_EQ(resolved(name), std::nullopt) << name;
    }
}

}  // namespace
}  // namespace velmora
