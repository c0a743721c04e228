#include "files/data_command.h"

#include "files/tool_fixture.h"

namespace velmora {
namespace {

using DataCommandTest = test::ToolTest;

TEST_F(DataCommandTest, RecordsBecomeLinesOfEachForm) {
    memory.addFile("/w/a.odb", "a\tx,y\tz\r\n\"\t1;2\r\n");
    EXPECT_EQ(run({"data", "/w/a.odb", "/w/a.csv"}), 0) << complaint;
    EXPECT_EQ(memory.content("/w/a.csv"), "a,\"x,y\",z\r\n\"\"\"\",1;2\r\n");
    EXPECT_EQ(run({"data", "/w/a.odb", "/w/s.csv", "--to", "csv-semicolon"}), 0);
    EXPECT_EQ(memory.content("/w/s.csv"), "a;x,y;z\r\n\"\"\"\";\"1;2\"\r\n");
    EXPECT_EQ(run({"data", "/w/a.odb", "/w/a.txt"}), 0);
    EXPECT_EQ(memory.content("/w/a.txt"), memory.content("/w/a.odb"));
}

TEST_F(DataCommandTest, LinesBecomeRecords) {
    EXPECT_EQ(run({"data", "-", "-", "--from=csv", "--to=odb"}, "a,\"b,c\",d\n\"q\",2,,"), 0);
    EXPECT_EQ(printed, "a\tb,c\td\r\n\"q\"\t2\r\n");
    EXPECT_EQ(run({"data", "-", "-", "--from=csv-semicolon", "--to=csv"}, "1,5;2\r\n"), 0);
    EXPECT_EQ(printed, "\"1,5\",2\r\n");
}

// Records that crossed the end of the reader's buffer were told as two.
TEST_F(DataCommandTest, ManyRecordsStayAsManyAsTheyAre) {
    std::string records;
    for (int i = 1; i <= 2'500; ++i) {
        records += "Person " + std::to_string(i) + "\t" + std::to_string(i) + " High Street\r\n";
    }
    EXPECT_EQ(run({"data", "-", "-", "--from=odb", "--to=txt"}, records), 0);
    EXPECT_TRUE(printed == records);
    EXPECT_EQ(run({"show", "-", "--as=data"}, records), 0);
    EXPECT_EQ(printed.substr(0, printed.find('\n')), "Data file, 2500 records");
}

TEST_F(DataCommandTest, AnEmptyFileStaysEmpty) {
    EXPECT_EQ(run({"data", "-", "-", "--from=odb", "--to=csv"}, ""), 0);
    EXPECT_EQ(printed, "");
}

TEST_F(DataCommandTest, SaysWhatIsWrong) {
    expectUsage({"data", "/w/a.odb"}, "OUT is required");
    expectUsage({"data", "/w/a.wks", "/w/a.csv"}, "a.wks");
    expectUsage({"data", "-", "/w/a.csv", "--from=xml"}, "xml");
    EXPECT_EQ(run({"data", "/w/a.odb", "/w/a.csv"}), 1);
    EXPECT_NE(complaint.find("File not found"), std::string::npos) << complaint;
}

}  // namespace
}  // namespace velmora
