// velmora-files as its user meets it: files, standard streams and exit statuses.
#include <gtest/gtest.h>

#include <string>

#include "e2e/support/programs_under_test.h"
#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

using namespace std::string_literals;

/// Needs neither server nor cable.
class FilesToolTest : public ServerFixture {
  protected:
    void SetUp() override {}

    std::string at(const std::filesystem::path& name) const { return organiserPath(home / name); }
};

TEST_F(FilesToolTest, AWorksheetIsConvertedThereAndBack) {
    writeFile(home / "in.tab", "Tea\t1.25\r\nCup\t3\r\n");
    EXPECT_EQ(filesTool({"sheet", at("in.tab"), at("sheet.wks"), "--from", "tab", "--locale", "C"}).status,
              0);
    const std::string sheet = contentsOf(home / "sheet.wks");
    EXPECT_EQ(sheet.substr(0, 4), "\x00\x00\x02\x00"s);
    EXPECT_EQ(filesTool({"sheet", at("sheet.wks"), at("out.tab"), "--to", "tab", "--locale", "C"}).status, 0);
    EXPECT_EQ(contentsOf(home / "out.tab"), "Tea\t1.25\t\r\nCup\t3\t\r\n") << "a tab ends each cell";
    EXPECT_EQ(filesTool({"sheet", at("sheet.wks"), "-", "--to", "wks"}).output, sheet);
}

TEST_F(FilesToolTest, StandardStreamsCarryEveryByte) {
    const Finished done =
        filesTool({"data", "-", "-", "--from", "odb", "--to", "csv"}, "a\tb\x1A\x80\r\n\x1Bz\r\n");
    EXPECT_EQ(done.status, 0) << done.error;
    EXPECT_EQ(done.output, "a,b\x1A\x80\r\n\x1Bz\r\n");
}

TEST_F(FilesToolTest, FileNamesMayHaveLettersThatOnlySomeLanguagesHave) {
    writeFile(home / "Caf\u00E9.odb", "one\ttwo\r\n");
    const Finished shown = filesTool({"show", at("Caf\u00E9.odb")});
    EXPECT_EQ(shown.status, 0) << shown.error;
    EXPECT_NE(shown.output.find("two"), std::string::npos) << shown.output;
}

TEST_F(FilesToolTest, AFileWithASimilarNameIsNeverWritten) {
    writeFile(home / "in.odb", "one\r\n");
    writeFile(home / "Lodz.txt", "precious");
    // Where paths have every letter the file is written; where they do not it is refused.
    const Finished done = filesTool({"data", at("in.odb"), at("\u0141odz.txt")});
    EXPECT_EQ(contentsOf(home / "Lodz.txt"), "precious");
    if (done.status == 0) {
        EXPECT_TRUE(std::filesystem::exists(home / "\u0141odz.txt"));
    } else {
        EXPECT_EQ(done.status, 2);
        EXPECT_NE(done.error.find("odz.txt"), std::string::npos) << done.error;
    }
}

TEST_F(FilesToolTest, AMissingFileIsNamedAndEndsWithOne) {
    const Finished done = filesTool({"show", at("none.wks")});
    EXPECT_EQ(done.status, 1);
    EXPECT_NE(done.error.find("none.wks"), std::string::npos) << done.error;
    EXPECT_EQ(done.output, "");
}

TEST_F(FilesToolTest, WrongUsageEndsWithTwo) {
    EXPECT_EQ(filesTool({"bogus"}).status, 2);
}

}  // namespace
}  // namespace velmora::e2e
