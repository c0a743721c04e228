// A server that is told to stay in its folder, and names that lead out of it.
#include <gtest/gtest.h>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

class StayInFolderTest : public ServerFixture {
  protected:
    void SetUp() override {
        ServerFixture::SetUp();
        writeFile(home / "local", "any\ttext\r\n");
        writeFile(home / "cells", "A1 1\n");
        writeFile(home / "Outside.odb", kKept);
        writeFile(home / "Outside.bin", "damaged, which would be another refusal");
        std::filesystem::create_directory(home / "other");
        std::filesystem::create_directory_symlink(home / "other", psion / "Folder");
        std::filesystem::create_symlink(home / "Outside.odb", psion / "Link.odb");
        std::filesystem::create_symlink(home / "Outside.bin", psion / "Boot.bin");
        std::filesystem::create_symlink(home / "New.odb", psion / "Dangling.odb");
    }
    void expectRefused(const std::vector<std::string>& command) {
        const Finished refused = organiser(command);
        std::string line;
        for (const std::string& word : command) {
            line += word + ' ';
        }
        EXPECT_EQ(refused.status, 3) << line << refused.output << refused.error;
        EXPECT_NE((refused.output + refused.error).find("189"), std::string::npos)
            << line << refused.output << refused.error;
    }
    void expectNothingHappenedOutside() {
        EXPECT_EQ(contentsOf(home / "Outside.odb"), kKept);
        EXPECT_FALSE(std::filesystem::exists(home / "New.odb"));
        EXPECT_TRUE(std::filesystem::is_empty(home / "other"));
    }

    static constexpr const char* kKept = "kept\r\n";
};

TEST_F(StayInFolderTest, EveryServiceRefusesNamesThatLeadOut) {
    startServer({"--stay-in-folder"});
    const std::string local = organiserPath(home / "local");
    for (const char* name : {"..\\OUTSIDE.ODB", "LINK.ODB", "DANGLING.ODB", "FOLDER\\NEW.ODB"}) {
        expectRefused({"save", local, "--as", name});
        expectRefused({"load", name, "-o", organiserPath(home / "loaded")});
        expectRefused({"write", name, local});
        expectRefused({"read", name});
        expectRefused({"sheet-save", organiserPath(home / "cells"), "--as", name, "--format", "txt"});
    }
    for (const char* name : {"..\\OUTSIDE", "BOOT"}) {
        expectRefused({"boot", name, "--address", "2000"});
    }
    expectRefused({"dir", "..\\*"});
    expectRefused({"dir", "FOLDER\\*"});
    expectNothingHappenedOutside();
}

TEST_F(StayInFolderTest, NamesThatComeBackAreServed) {
    std::filesystem::create_directory(psion / "Sub");
    std::filesystem::create_symlink("Sub/Memo.odb", psion / "Inside.odb");
    startServer({"--stay-in-folder"});
    for (const char* name : {"MEMO", "SUB\\MEMO", "..\\PSION\\MEMO", "INSIDE"}) {
        EXPECT_EQ(organiser({"save", organiserPath(home / "local"), "--as", name}).status, 0) << name;
    }
    EXPECT_EQ(organiser({"dir", "SUB\\*"}).status, 0);
    expectNothingHappenedOutside();
}

TEST_F(StayInFolderTest, WithoutItTheOrganiserMayLeaveTheFolder) {
    startServer();
    EXPECT_EQ(organiser({"save", organiserPath(home / "local"), "--as", "..\\OUTSIDE.ODB"}).status, 0);
    EXPECT_NE(contentsOf(home / "Outside.odb"), kKept);
}

}  // namespace
}  // namespace velmora::e2e
