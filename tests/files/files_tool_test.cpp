#include "files/files_tool.h"

#include "files/tool_fixture.h"

namespace velmora {
namespace {

using FilesToolTest = test::ToolTest;

TEST_F(FilesToolTest, HelpGoesToStandardOutput) {
    for (const char* option : {"--help", "-h"}) {
        EXPECT_EQ(run({option}), kStatusDone);
        for (const char* command : {"sheet", "data", "boot", "show"}) {
            expectPrinted(command);
        }
        EXPECT_EQ(complaint, "");
    }
    EXPECT_EQ(run({"data", "--help"}), kStatusDone);
    expectPrinted("velmora-files data [options] IN OUT");
}

TEST_F(FilesToolTest, AnOutputThatCannotBeWrittenIsAFailure) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    EXPECT_EQ(runFilesTool({"--help"}, files, rules, in, out, err), kStatusFailed);
    EXPECT_EQ(err.str(), "velmora-files: standard output cannot be written\n");
}

TEST_F(FilesToolTest, NothingToDoIsWrongUsage) {
    expectUsage({}, "velmora-files: a command is missing: sheet, data, boot, show or capture\n");
}

TEST_F(FilesToolTest, AnUnknownCommandIsNamed) {
    expectUsage({"convert"}, "\"convert\"");
}

TEST_F(FilesToolTest, AFailureIsOneLine) {
    EXPECT_EQ(run({"show", "/w/missing"}), kStatusFailed);
    EXPECT_EQ(complaint, "velmora-files: File not found: /w/missing\n");
}

}  // namespace
}  // namespace velmora
