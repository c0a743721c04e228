// Recorded conversations, played again to a server of today.
#include <gtest/gtest.h>

#include <algorithm>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

const std::filesystem::path kCaptures = std::filesystem::path(VELMORA_SOURCE_DIR) / "tests/captures";

std::vector<std::string> captureNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kCaptures)) {
        if (entry.path().extension() == ".pcapng") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class ReplayTest : public ServerFixture, public testing::WithParamInterface<std::string> {
  protected:
    Finished replay(const std::string& name) {
        // A folder of the test's own: programs under Wine may not see the source's.
        writeFile(home / "line.pcapng", contentsOf(kCaptures / (name + ".pcapng")));
        return organiser({"replay", organiserPath(home / "line.pcapng")});
    }
};

TEST_P(ReplayTest, TheServerAnswersAsItDid) {
    startServer();
    const Finished done = replay(GetParam());
    EXPECT_EQ(done.status, 0) << done.output << done.error;
    EXPECT_NE(done.output.find("All frames of the server agree: "), std::string::npos) << done.output;
    if (GetParam() == "exit") {
        EXPECT_EQ(server->wait(), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Captures, ReplayTest, testing::ValuesIn(captureNames()),
                         [](const auto& row) { return row.param; });

TEST_F(ReplayTest, AServerWithAnotherFileInItsFolderPartsAtTheListing) {
    writeFile(psion / "A.EXT", "x");
    startServer();
    const Finished done = replay("folder");
    EXPECT_EQ(done.status, 1);
    EXPECT_NE(done.output.find(" of the server differs, recorded at "), std::string::npos) << done.output;
    EXPECT_NE(done.output.find("  then: DATA 3 len=12 ALONGE>1.NAM\n  now:  DATA 3 len=5 A.EXT\n"),
              std::string::npos)
        << done.output;
}

TEST_F(ReplayTest, NoServerIsNoLink) {
    const Finished done = replay("clock");
    EXPECT_EQ(done.status, 4);
    EXPECT_NE(done.output.find("  then: CONNECT\n  now:  no answer\n"), std::string::npos) << done.output;
}

TEST_F(ReplayTest, AFileThatIsNoCaptureIsAFileOfThisSide) {
    writeFile(home / "text", "a diary");
    const Finished done = organiser({"replay", organiserPath(home / "text")});
    EXPECT_EQ(done.status, 1);
    EXPECT_NE(done.error.find("the file is no capture (pcapng)."), std::string::npos) << done.error;
}

}  // namespace
}  // namespace velmora::e2e
