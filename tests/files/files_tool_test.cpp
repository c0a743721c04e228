#include "files/files_tool.h"

#include "files/tool_fixture.h"

namespace velmora {
namespace {

using FilesToolTest = test::ToolTest;

TEST_F(FilesToolTest, HelpGoesToStandardOutput) {
    for (const char* option : {"--help", "-h"}) {
        EXPECT_EQ(run({option}), kExitDone);
        for (const char* command : {"sheet IN OUT", "data IN OUT", "boot make", "boot check", "show FILE"}) {
            expectPrinted(command);
        }
        EXPECT_EQ(complaint, "");
    }
}

TEST_F(FilesToolTest, NothingToDoIsWrongUsage) {
    expectUsage({}, "Usage:");
}

TEST_F(FilesToolTest, AnUnknownCommandIsNamed) {
    expectUsage({"convert"}, "\"convert\"");
}

TEST_F(FilesToolTest, AFailureIsOneLine) {
    EXPECT_EQ(run({"show", "/w/missing"}), kExitFailure);
    EXPECT_EQ(complaint, "velmora-files: File not found: /w/missing\n");
}

}  // namespace
}  // namespace velmora
