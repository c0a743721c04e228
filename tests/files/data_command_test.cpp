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

TEST_F(DataCommandTest, TextsOfThePcMayBeUtf8AndRecordsNeverAre) {
    memory.addFile("/w/a.csv", "Caf\xC3\xA9,5 \xE2\x82\xAC\r\n");
    EXPECT_EQ(run({"data", "/w/a.csv", "/w/a.odb", "--encoding=utf-8"}), 0) << complaint;
    EXPECT_EQ(memory.content("/w/a.odb"), "Caf\xE9\t5 \x80\r\n");
    EXPECT_EQ(run({"data", "/w/a.odb", "-", "--to=csv", "--encoding", "UTF-8"}), 0) << complaint;
    EXPECT_EQ(printed, "Caf\xC3\xA9,5 \xE2\x82\xAC\r\n");
    EXPECT_EQ(complaint, "");
    expectUsage({"data", "/w/a.odb", "-", "--to=csv", "--encoding=latin"}, "utf-8 or windows-1252");
}

// The mark came as three letters of the first field.
TEST_F(DataCommandTest, AMarkOfUtf8IsNoData) {
    EXPECT_EQ(run({"data", "-", "-", "--from=csv", "--to=odb"}, "\xEF\xBB\xBFName,Caf\xC3\xA9\r\n"), 0);
    EXPECT_EQ(printed, "Name\tCaf\xE9\r\n");
}

TEST_F(DataCommandTest, WhatIsLostIsToldAndStrictlyAStatus) {
    const std::vector<std::string> command{"data", "-", "-", "--from=csv", "--to=odb", "--encoding=utf-8"};
    const std::string input = "\xC5\x81,b\r\n" + std::string(251, 'x') + "\r\na,\"b\r\nc\",d\te\r\n";
    const std::string lines =
        "velmora-files: standard input: line 1: letters that Windows-1252 lacks became \"?\": 1\n"
        "velmora-files: standard input: line 3: a field in quotes goes on in the next line, and is cut "
        "there\n"
        "velmora-files: standard input: line 2: the record is too long for the Organiser: 251 bytes, it "
        "holds "
        "250\n"
        "velmora-files: standard input: line 4: a tab within a field makes two fields of it\n";
    EXPECT_EQ(run(command, input), kStatusDone);
    EXPECT_EQ(complaint, lines);
    std::vector<std::string> strictly = command;
    strictly.emplace_back("--strict");
    EXPECT_EQ(run(strictly, input), kStatusLeftOut);
    EXPECT_EQ(complaint, lines);
    EXPECT_EQ(printed.substr(0, 5), "?\tb\r\n") << "what can be kept is written all the same";
    EXPECT_EQ(run(strictly, "a,b\r\n"), kStatusDone);
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
