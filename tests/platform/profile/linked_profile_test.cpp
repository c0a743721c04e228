// Profile files that are reached through a link, as those who keep their settings elsewhere do.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/native.h"
#include "platform/profile/replace_contents.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;

class LinkedProfile : public testing::Test {
  protected:
    LinkedProfile() {
        folder.makeFolder("config");
        folder.makeFolder("kept");
        folder.write("kept/settings.ini", "[Settings]\r\nBaud=9600\r\n");
        fs::create_symlink("../kept/settings.ini", link);
    }

    test::TempFolder folder;
    std::string link = folder.path("config/Velmora.ini");
    PosixPaths rules{folder.path()};
    PosixFiles files{folder.path()};
};

TEST_F(LinkedProfile, AnEditReachesTheFileBehindTheLink) {
    TextProfileFiles(files, rules).writeString("Settings", "Baud", "1200", folder.path("config/velmora.INI"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(folder.read("kept/settings.ini"), "[Settings]\r\nBaud=1200\r\n");
}

TEST_F(LinkedProfile, NewContentsArePreparedOnTheDiskOfTheFileBehindTheLink) {
    replaceContents(files, rules, link, "new", [&](const std::string& temporary) {
        EXPECT_EQ(fs::path(temporary).lexically_normal().parent_path(), folder.path("kept"));
        return true;
    });
    EXPECT_EQ(folder.read("kept/settings.ini"), "new");
}

}  // namespace
}  // namespace velmora
