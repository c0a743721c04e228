// Two servers for two handhelds on one machine.
#include <gtest/gtest.h>

#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

namespace fs = std::filesystem;

/// The fixture's server and one more, each with a configuration, a folder and a cable of its own; what a user
/// has once (earlier copies, temporary files) they share.
class TwoServersTest : public ServerFixture {
  protected:
    void startBoth() {
        writeFile(home / "first.ini", configuration());
        writeFile(home / "second.ini", configuration());
        startServer({"--config", serverPath(home / "first.ini")});
        first = std::move(server);
        firstCable = std::move(cable);
        firstOrganiser = organiserPort;
        fs::create_directories(second);
        std::swap(psion, second);
        connectCable({});
        startServer({"--config", serverPath(home / "second.ini")});
    }
    static std::string configuration() {
        return "[Settings]\r\nAutoSave=True\r\n;" + std::string(200, '-') + "\r\n";
    }
    std::unique_ptr<Process> startSave(const std::string& port, const std::string& local) {
        organiserPort = port;
        return startOrganiser({"save", organiserPath(home / local), "--as", "MEMO"});
    }

    fs::path second = home / "second";
    std::unique_ptr<Process> first;
    std::unique_ptr<Process> firstCable;
    std::string firstOrganiser;
};

TEST_F(TwoServersTest, SavesOfOneNameAtOneTimeDoNotMeet) {
    startBoth();
    const std::string secondOrganiser = organiserPort;
    std::string ofFirst;
    std::string ofSecond;
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        ofFirst.clear();
        ofSecond.clear();
        for (int record = 0; record < 100; ++record) {
            ofFirst += "first " + std::to_string(round) + " " + std::to_string(record) + "\r\n";
            ofSecond += "second " + std::to_string(round) + " " + std::to_string(record) + "\r\n";
        }
        writeFile(home / "one", ofFirst);
        writeFile(home / "two", ofSecond);
        const auto one = startSave(firstOrganiser, "one");
        const auto two = startSave(secondOrganiser, "two");
        EXPECT_EQ(one->wait(), 0) << one->error();
        EXPECT_EQ(two->wait(), 0) << two->error();
        // The fixture's folder is the second server's since both run.
        EXPECT_EQ(contentsOf(second / "Memo.odb"), ofFirst);
        EXPECT_EQ(contentsOf(psion / "Memo.odb"), ofSecond);
    }
    // Each save but the first of each server has replaced a file, and all are kept.
    int kept = 0;
    for (const auto& entry : fs::directory_iterator(serverSide->earlierCopies(home))) {
        kept += entry.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(kept, 4);
    serverSide->stop(*first);
    EXPECT_EQ(first->wait(), 0) << first->error();
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
}

}  // namespace
}  // namespace velmora::e2e
