// A line that loses, repeats and spoils frames still carries every file whole.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

class FaultsTest : public ServerFixture {
  protected:
    static std::string randomBlock(std::mt19937& random) {
        std::string block(random() % 900, '\0');
        for (char& byte : block) {
            byte = static_cast<char>(random() % 4 == 0 ? 0x10 : random());
        }
        return block;
    }
    static std::string randomRecords(std::mt19937& random) {
        std::string records;
        for (auto count = random() % 8; count > 0; --count) {
            records += std::string(random() % 60, static_cast<char>('a' + random() % 26)) + "\t\x10\x03\r\n";
        }
        return records;
    }
    /// Saves and loads `count` files of random contents and compares every byte on both sides.
    void fiftyFilesEachWay(const std::vector<std::string>& faults) {
        startServer();
        std::mt19937 random(7);
        for (int i = 0; i < 50; ++i) {
            const bool block = i % 2 == 0;
            const std::string contents = block ? randomBlock(random) : randomRecords(random);
            const std::string name = "FILE" + std::to_string(i);
            const std::string type = block ? "block:3" : "data";
            writeFile(home / "local", contents);
            std::vector<std::string> options = faults;
            options.insert(options.end(), {"--seed", std::to_string(i + 1)});
            const Finished saved =
                organiser({"save", organiserPath(home / "local"), "--as", name, "--type", type}, options);
            ASSERT_EQ(saved.status, 0) << name << '\n' << saved.output << saved.error;
            const std::filesystem::path stored =
                psion / ("File" + std::to_string(i) + (block ? ".ob3" : ".odb"));
            ASSERT_EQ(contentsOf(stored).substr(block ? 6 : 0), contents) << name;
            const Finished loaded =
                organiser({"load", name, "--type", type, "-o", organiserPath(home / "loaded")}, options);
            ASSERT_EQ(loaded.status, 0) << name << '\n' << loaded.output << loaded.error;
            ASSERT_EQ(contentsOf(home / "loaded"), contents) << name;
        }
    }
};

TEST_F(FaultsTest, FiftyFilesEachWayOnACleanLine) {
    fiftyFilesEachWay({});
}

TEST_F(FaultsTest, FiftyFilesEachWayWithLostFrames) {
    fiftyFilesEachWay({"--drop", "0.03"});
}

TEST_F(FaultsTest, FiftyFilesEachWayWithSpoiltFrames) {
    fiftyFilesEachWay({"--corrupt", "0.03"});
}

TEST_F(FaultsTest, FiftyFilesEachWayWithRepeatedFrames) {
    fiftyFilesEachWay({"--duplicate", "0.2"});
}

TEST_F(FaultsTest, FiftyFilesEachWayWithEverythingAtOnce) {
    fiftyFilesEachWay({"--drop", "0.02", "--corrupt", "0.02", "--duplicate", "0.1"});
}

}  // namespace
}  // namespace velmora::e2e
