// Files of every kind go over the line and come back.
#include <gtest/gtest.h>

#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

using namespace std::string_literals;

class TransferTest : public ServerFixture {
  protected:
    /// Saves a local file through the Organiser and expects success.
    void save(const std::string& contents, const std::vector<std::string>& options) {
        const std::filesystem::path file = home / "local";
        writeFile(file, contents);
        std::vector<std::string> command = {"save", organiserPath(file)};
        command.insert(command.end(), options.begin(), options.end());
        const Finished done = organiser(command);
        ASSERT_EQ(done.status, 0) << done.output << done.error;
    }
    /// Loads a file through the Organiser and returns its contents.
    std::string load(const std::string& name, const std::vector<std::string>& options = {}) {
        const std::filesystem::path file = home / "loaded";
        std::filesystem::remove(file);
        std::vector<std::string> command = {"load", name, "-o", organiserPath(file)};
        command.insert(command.end(), options.begin(), options.end());
        const Finished done = organiser(command);
        EXPECT_EQ(done.status, 0) << done.output << done.error;
        return contentsOf(file);
    }

    const std::string records = "Miller\t12 High St\t01 23\r\nO\"Neil\ta,b;c\t\r\n\r\nlast\ttab\r\n";
};

TEST_F(TransferTest, DataFileInItsFourForms) {
    const struct {
        const char* type;
        const char* file;
        const char* contents;
    } forms[] = {
        {"0", "Names.odb", "Miller\t12 High St\t01 23\r\nO\"Neil\ta,b;c\t\r\n\r\nlast\ttab\r\n"},
        {"1", "Names.txt", "Miller\t12 High St\t01 23\r\nO\"Neil\ta,b;c\t\r\n\r\nlast\ttab\r\n"},
        {"2", "Names.csv", "Miller,12 High St,01 23\r\n\"O\"\"Neil\",\"a,b;c\",\r\n\r\nlast,tab\r\n"},
        {"3", "Names.csv", "Miller;12 High St;01 23\r\n\"O\"\"Neil\";\"a,b;c\";\r\n\r\nlast;tab\r\n"},
    };
    for (const auto& form : forms) {
        std::filesystem::remove(psion / "Names.csv");
        startServer({"--file-type", form.type});
        save(records, {"--as", "NAMES"});
        EXPECT_EQ(contentsOf(psion / form.file), form.contents) << form.type;
        stopServer();
        EXPECT_EQ(server->wait(), 0);
    }
}

TEST_F(TransferTest, DataFileComesBackAsItWent) {
    startServer();
    save(records, {"--as", "NAMES"});
    EXPECT_EQ(load("NAMES"), records);
}

TEST_F(TransferTest, LocalFilesOfTheOrganisersMayHaveNamesInAnyAlphabet) {
    startServer();
    const std::filesystem::path file = home / "\u03A9mega \u00E4";
    writeFile(file, records);
    Finished done = organiser({"save", organiserPath(file), "--as", "NAMES"});
    ASSERT_EQ(done.status, 0) << done.output << done.error;
    std::filesystem::remove(file);
    done = organiser({"load", "NAMES", "-o", organiserPath(file)});
    ASSERT_EQ(done.status, 0) << done.output << done.error;
    EXPECT_EQ(contentsOf(file), records);
}

TEST_F(TransferTest, ProcedureIsATextFileOnThisSideAndComesBack) {
    startServer();
    save("hello:\r\nPRINT \"HELLO\"\r\nGET\r\n", {"--as", "HELLO", "--type", "procedure"});
    EXPECT_EQ(contentsOf(psion / "Hello.opl"), "hello:\r\nPRINT \"HELLO\"\r\nGET\r\n");
    EXPECT_EQ(load("HELLO", {"--type", "procedure"}), "hello:\r\nPRINT \"HELLO\"\r\nGET\r\n");
}

TEST_F(TransferTest, BlockFilesOfEveryTypeCarryTheirHeaderAndComeBack) {
    startServer();
    std::string block;
    for (int i = 0; i < 1000; ++i) {
        block += static_cast<char>(i * 7);
    }
    const char* extensions[] = {"ob2", "ob3", "ob4", "ob5", "ob6", "ob7", "ob8", "ob9",
                                "oba", "obb", "obc", "obd", "obe", "obf", "ob10"};
    for (int type = 2; type <= 16; ++type) {
        save(block, {"--as", "PACK", "--type", "block:" + std::to_string(type)});
        const std::string header = "ORG\x03\xE8"s + static_cast<char>(128 + type);
        EXPECT_EQ(contentsOf(psion / ("Pack."s + extensions[type - 2])), header + block) << type;
        EXPECT_EQ(load("PACK", {"--type", "block:" + std::to_string(type)}), block) << type;
    }
}

TEST_F(TransferTest, EveryByteOfABlockFileArrives) {
    startServer();
    std::string block;
    for (const char a : "\x00\x02\x03\x10\x16"s) {
        for (const char b : "\x00\x02\x03\x10\x16"s) {
            for (const char c : "\x00\x02\x03\x10\x16"s) {
                block += {a, b, c};
            }
        }
    }
    for (int i = 0; i < 256; ++i) {
        block += static_cast<char>(i);
    }
    save(block, {"--as", "BYTES", "--type", "block:2"});
    EXPECT_EQ(contentsOf(psion / "Bytes.ob2").substr(6), block);
    EXPECT_EQ(load("BYTES", {"--type", "block:2"}), block);
}

TEST_F(TransferTest, TheServerSaysWhatItDoes) {
    startServer();
    save(records, {"--as", "NAMES"});
    EXPECT_TRUE(server->waitForOutput("Downloading file"));
    EXPECT_TRUE(server->waitForOutput("Names.odb"));
    load("NAMES");
    EXPECT_TRUE(server->waitForOutput("Uploading file"));
}

TEST_F(TransferTest, AppendingKeepsWhatIsThere) {
    startServer();
    save("one\r\n", {"--as", "LOG"});
    save("two\r\n", {"--as", "LOG", "--mode", "4"});
    EXPECT_EQ(contentsOf(psion / "Log.odb"), "one\r\ntwo\r\n");
}

TEST_F(TransferTest, AFileThatMustBeNewIsRefusedWhenItExists) {
    startServer();
    save("one\r\n", {"--as", "LOG"});
    const Finished refused = organiser({"save", organiserPath(home / "local"), "--as", "LOG", "--mode", "3"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_NE((refused.output + refused.error).find("187"), std::string::npos)
        << refused.output << refused.error;
    EXPECT_EQ(contentsOf(psion / "Log.odb"), "one\r\n");
}

TEST_F(TransferTest, AMissingFileIsRefusedAndTheNextRequestIsServed) {
    startServer();
    const Finished refused = organiser({"load", "NONE", "-o", organiserPath(home / "none")});
    EXPECT_EQ(refused.status, 3);
    EXPECT_NE((refused.output + refused.error).find("189"), std::string::npos)
        << refused.output << refused.error;
    EXPECT_FALSE(std::filesystem::exists(home / "none"));
    save(records, {"--as", "NAMES"});
    EXPECT_EQ(load("NAMES"), records);
}

TEST_F(TransferTest, ALargeDataFileArrivesWhole) {
    startServer();
    std::string many;
    for (int i = 0; i < 3000; ++i) {
        many += "record " + std::to_string(i) + "\tfield\x10\x03" +
                std::string(static_cast<std::size_t>(i % 90), 'x') + "\r\n";
    }
    save(many, {"--as", "MANY"});
    EXPECT_EQ(contentsOf(psion / "Many.odb"), many);
    EXPECT_EQ(load("MANY"), many);
}

}  // namespace
}  // namespace velmora::e2e
