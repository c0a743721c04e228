// What stays of a file that is replaced: the links that lead to it, its rights and its owner.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/posix/posix_files.h"
#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;
using testing::ElementsAre;
namespace fs = std::filesystem;

class PosixReplaceTest : public testing::Test {
  protected:
    void link(const std::string& target, const std::string& name) const {
        fs::create_symlink(target, folder.path(name));
    }
    void replace(const std::string& name) {
        files.replaceFile(folder.write("new", "new"), folder.path(name));
    }
    bool isLink(const std::string& name) const { return fs::is_symlink(folder.path(name)); }

    test::TempFolder folder;
    PosixFiles files{folder.path()};
};

// Links.

TEST_F(PosixReplaceTest, TheFileBehindALinkIsReplacedAndTheLinkStays) {
    folder.write("real", "old");
    link("real", "link");
    replace("link");
    EXPECT_TRUE(isLink("link"));
    EXPECT_EQ(folder.read("real"), "new");
    EXPECT_THAT(folder.names(), ElementsAre("link", "real"));
}

TEST_F(PosixReplaceTest, LinksAreFollowedOneAfterTheOtherAndIntoOtherFolders) {
    folder.makeFolder("far");
    folder.write("far/real", "old");
    link("second", "first");
    link(folder.path("far/third"), "second");
    link("../far/real", "far/third");
    replace("FIRST");
    EXPECT_TRUE(isLink("first") && isLink("second") && isLink("far/third"));
    EXPECT_EQ(folder.read("far/real"), "new");
}

TEST_F(PosixReplaceTest, ALinkThatLeadsNowhereGetsItsFile) {
    folder.makeFolder("far");
    link("far/missing", "link");
    replace("link");
    EXPECT_TRUE(isLink("link"));
    EXPECT_EQ(folder.read("far/missing"), "new");
}

TEST_F(PosixReplaceTest, ALoopOfLinksIsABadNameAndStays) {
    link("b", "a");
    link("a", "b");
    EXPECT_EQ(errorOf([&] { replace("a"); }), 64);
    EXPECT_TRUE(isLink("a") && isLink("b"));
}

TEST_F(PosixReplaceTest, ALinkToAFolderIsNotReplaced) {
    folder.makeFolder("sub");
    link("sub", "link");
    EXPECT_EQ(errorOf([&] { replace("link"); }), 75);
    EXPECT_TRUE(isLink("link"));
}

// Rights and owner.

TEST_F(PosixReplaceTest, TheAccessRightsStay) {
    fs::permissions(folder.write("Velmora.ini", "old"), fs::perms(0640));
    replace("Velmora.ini");
    EXPECT_EQ(fs::status(folder.path("Velmora.ini")).permissions(), fs::perms(0640));
}

TEST_F(PosixReplaceTest, TheOwnerAndTheGroupStayWhenTheAdministratorReplaces) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the administrator can give a file away";
    }
    const std::string path = folder.write("Velmora.ini", "old");
    ASSERT_EQ(chown(path.c_str(), 65'534, 65'533), 0);
    replace("Velmora.ini");
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 65'534U);
    EXPECT_EQ(status.st_gid, 65'533U);
    EXPECT_EQ(folder.read("Velmora.ini"), "new");
}

}  // namespace
}  // namespace velmora
