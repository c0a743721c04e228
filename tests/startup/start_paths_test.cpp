#include "startup/start_paths.h"

#include <gtest/gtest.h>

#include <string>

#include "support/memory_files.h"
#include "support/plain_path_rules.h"

namespace velmora {
namespace {

class StartPaths : public ::testing::Test {
  protected:
    DownloadFolder folder(const std::string& named, const RunOverrides& overrides = {}) {
        return downloadFolder(files, rules, "/home/Documents", named, overrides);
    }
    test::MemoryFiles files;
    test::PlainPathRules rules;
};

TEST_F(StartPaths, TheConfigurationLiesInTheUsersFolderOrWhereTheCommandLineSays) {
    RunOverrides overrides;
    EXPECT_EQ(configurationPath(rules, "/home/.config", overrides), "/home/.config/Velmora.ini");
    overrides.configPath = "/etc/velmora/attic.ini";
    EXPECT_EQ(configurationPath(rules, "/home/.config", overrides), "/etc/velmora/attic.ini");
}

TEST_F(StartPaths, AProfileHasAFileOfItsOwnBesideTheUsualOne) {
    RunOverrides overrides;
    overrides.profile = "attic";
    EXPECT_EQ(configurationPath(rules, "/home/.config", overrides), "/home/.config/Velmora-attic.ini");
}

TEST_F(StartPaths, AStumpIsNoConfiguration) {
    EXPECT_FALSE(isConfiguration(files, "/a.ini"));
    files.addFile("/a.ini", std::string(99, 'x'));
    EXPECT_FALSE(isConfiguration(files, "/a.ini"));
    files.addFile("/a.ini", std::string(100, 'x'));
    EXPECT_TRUE(isConfiguration(files, "/a.ini"));
}

TEST_F(StartPaths, TheFolderThatIsThereIsServedAndTheUsualOneOtherwise) {
    files.addFolder("/psion");
    EXPECT_EQ(folder("/psion/").path, "/psion");
    EXPECT_FALSE(folder("/psion").isUsual);
    const DownloadFolder missing = folder("/gone");
    EXPECT_EQ(missing.path, "/home/Documents/Psion Files");
    EXPECT_EQ(missing.missing, "/gone");
    EXPECT_TRUE(missing.isUsual);
    EXPECT_EQ(folder("").missing, "");
    RunOverrides overrides;
    overrides.folder = "/psion";
    EXPECT_EQ(folder("/gone", overrides).path, "/psion");
}

}  // namespace
}  // namespace velmora
