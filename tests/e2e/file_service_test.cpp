// The FILE service, listings, the format menu and services by name, over the line.
#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

class FileServiceTest : public ServerFixture {
  protected:
    void SetUp() override {
        ServerFixture::SetUp();
        startServer();
    }
    /// The only ".TXT" among the listed short names. Which one a long name has is up to the system.
    std::string listedText() {
        const Finished names = organiser({"dir"});
        EXPECT_EQ(names.status, 0) << names.error;
        std::smatch found;
        EXPECT_TRUE(
            std::regex_search(names.output, found, std::regex("(^|\\n)([A-Z_]{1,6}>[0-9A-Z]{1,3}\\.TXT)")))
            << names.output;
        return found.str(2);
    }
};

TEST_F(FileServiceTest, BytesAreWrittenAndRead) {
    const std::string bytes("any\0bytes\x10\x03\xFF", 12);
    writeFile(home / "local", bytes);
    ASSERT_EQ(organiser({"write", "RAW.BIN", organiserPath(home / "local")}).status, 0);
    EXPECT_EQ(contentsOf(psion / "Raw.bin"), bytes);
    const Finished read = organiser({"read", "RAW.BIN"});
    EXPECT_EQ(read.status, 0) << read.error;
    EXPECT_NE(read.output.find(bytes), std::string::npos) << read.output;
}

TEST_F(FileServiceTest, LinesAreWrittenAndRead) {
    writeFile(home / "local", "first\r\nsecond\r\n");
    ASSERT_EQ(organiser({"write", "NOTES.TXT", organiserPath(home / "local"), "--text"}).status, 0);
    EXPECT_EQ(contentsOf(psion / "Notes.txt"), "first\r\nsecond\r\n");
    const Finished read = organiser({"read", "NOTES.TXT", "--text"});
    EXPECT_EQ(read.status, 0) << read.error;
    EXPECT_NE(read.output.find("second"), std::string::npos) << read.output;
}

TEST_F(FileServiceTest, SeekingFromTheEndReadsTheTail) {
    writeFile(psion / "Long.bin", std::string(90, '.') + "0123456789");
    const Finished read = organiser({"read", "LONG.BIN", "--seek", "2:-10"});
    EXPECT_EQ(read.status, 0) << read.error;
    EXPECT_NE(read.output.find("0123456789"), std::string::npos) << read.output;
    EXPECT_EQ(read.output.find(".."), std::string::npos) << read.output;
}

TEST_F(FileServiceTest, FoldersAreListedByShortAndByLongNames) {
    writeFile(psion / "Memo.odb", "");
    writeFile(psion / "A long file name.txt", "");
    std::filesystem::create_directory(psion / "Folder");
    const Finished shortNames = organiser({"dir"});
    EXPECT_EQ(shortNames.status, 0) << shortNames.error;
    EXPECT_NE(shortNames.output.find("MEMO.ODB"), std::string::npos) << shortNames.output;
    EXPECT_NE(listedText(), "");
    EXPECT_EQ(shortNames.output.find("FOLDER"), std::string::npos) << "folders are not listed";
    const Finished longNames = organiser({"dir", "*.TXT", "--long"});
    EXPECT_EQ(longNames.status, 0) << longNames.error;
    EXPECT_NE(longNames.output.find("A long file name.txt"), std::string::npos) << longNames.output;
    EXPECT_EQ(longNames.output.find("Memo"), std::string::npos) << longNames.output;
}

TEST_F(FileServiceTest, AListedShortNameOpensItsFile) {
    writeFile(psion / "A long file name.txt", "text\r\n");
    const Finished read = organiser({"read", listedText(), "--text"});
    EXPECT_EQ(read.status, 0) << read.error;
    EXPECT_NE(read.output.find("text"), std::string::npos) << read.output;
}

TEST_F(FileServiceTest, FormatsAreListed) {
    const Finished formats = organiser({"formats"});
    EXPECT_EQ(formats.status, 0) << formats.error;
    for (const char* name : {"WKS", "DIF", "CSV", "TXT", "TXT(tab)"}) {
        EXPECT_NE(formats.output.find(name), std::string::npos) << name;
    }
}

TEST_F(FileServiceTest, AnUnknownServiceIsRefusedWith190) {
    const Finished refused = organiser({"service", "TIMEX"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_NE((refused.output + refused.error).find("190"), std::string::npos)
        << refused.output << refused.error;
    EXPECT_EQ(organiser({"formats"}).status, 0) << "the next request is served";
}

TEST_F(FileServiceTest, ServiceNamesMayBeInAnyCase) {
    const Finished reply = organiser({"service", "PlanM"});
    EXPECT_EQ(reply.status, 0) << reply.error;
    EXPECT_NE(reply.output.find("03 57 4B 53 00 02"), std::string::npos) << reply.output;
}

}  // namespace
}  // namespace velmora::e2e
