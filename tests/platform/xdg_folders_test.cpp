#include "platform/posix/xdg_folders.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <map>

#include "support/temp_folder.h"

namespace velmora {
namespace {

XdgFolders foldersWith(std::map<std::string, std::string> variables) {
    return XdgFolders([variables](const std::string& name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    });
}

TEST(XdgFolders, HaveTheirUsualPlacesBelowHome) {
    const XdgFolders folders = foldersWith({{"HOME", "/nonexistent/anna/"}});
    EXPECT_EQ(folders.applicationData(), "/nonexistent/anna/.config");
    EXPECT_EQ(folders.programData(), "/nonexistent/anna/.local/share/Velmora");
    EXPECT_EQ(folders.documents(), "/nonexistent/anna/Documents");
    EXPECT_EQ(folders.temporary(), "/tmp");
}

TEST(XdgFolders, FollowTheEnvironment) {
    const XdgFolders folders = foldersWith({{"HOME", "/nonexistent/anna"},
                                            {"XDG_CONFIG_HOME", "/nonexistent/etc/"},
                                            {"XDG_DATA_HOME", "/nonexistent/data/"},
                                            {"TMPDIR", "/scratch/"}});
    EXPECT_EQ(folders.applicationData(), "/nonexistent/etc");
    EXPECT_EQ(folders.programData(), "/nonexistent/data/Velmora");
    EXPECT_EQ(folders.temporary(), "/scratch");
}

TEST(XdgFolders, KeepWhatIsOursWhereTheServiceManagerSays) {
    for (const std::string state :
         {"/var/lib/velmora", "/var/lib/velmora/", "/var/lib/velmora:/var/lib/more"}) {
        const XdgFolders folders = foldersWith({{"STATE_DIRECTORY", state}, {"XDG_DATA_HOME", "/data"}});
        EXPECT_EQ(folders.programData(), "/var/lib/velmora") << state;
    }
}

TEST(XdgFolders, IgnoreValuesThatAreNoAbsolutePaths) {
    const XdgFolders folders = foldersWith({{"HOME", "/nonexistent"},
                                            {"XDG_CONFIG_HOME", "etc"},
                                            {"TMPDIR", ""},
                                            {"XDG_DATA_HOME", "data"},
                                            {"STATE_DIRECTORY", "velmora"}});
    EXPECT_EQ(folders.applicationData(), "/nonexistent/.config");
    EXPECT_EQ(folders.programData(), "/nonexistent/.local/share/Velmora");
    EXPECT_EQ(folders.temporary(), "/tmp");
}

TEST(XdgFolders, ReadTheDocumentsFolderOfTheDesktop) {
    const test::TempFolder home;
    home.makeFolder(".config");
    home.write(".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
    EXPECT_EQ(foldersWith({{"HOME", home.path()}}).documents(), home.path("Dokumente"));
}

TEST(XdgFolders, StartAtTheRootWithoutAHome) {
    EXPECT_EQ(foldersWith({}).applicationData(), "/.config");
}

TEST(XdgFolders, TheProcessAlwaysHasAHome) {
    const std::optional<std::string> home = processEnvironment()("HOME");
    ASSERT_TRUE(home.has_value());
    EXPECT_EQ(home->front(), '/');
    EXPECT_FALSE(processEnvironment()("VELMORA_NO_SUCH_VARIABLE").has_value());
}

TEST(XdgFolders, TheHomeOfALoginWithoutTheVariableIsTheUserDataBases) {
    const passwd* login = getpwuid(getuid());
    if (login == nullptr) {
        GTEST_SKIP() << "this login is in no user data base";
    }
    const std::optional<std::string> before = processEnvironment()("HOME");
    unsetenv("HOME");
    const std::optional<std::string> home = processEnvironment()("HOME");
    setenv("HOME", before.value_or("/").c_str(), 1);
    EXPECT_EQ(home, login->pw_dir);
}

TEST(XdgFolders, TheCurrentFolderIsAbsolute) {
    EXPECT_EQ(currentFolder().front(), '/');
}

}  // namespace
}  // namespace velmora
