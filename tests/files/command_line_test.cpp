#include "files/command_line.h"

#include "arguments/usage_error.h"
#include "files/tool_fixture.h"

namespace velmora {
namespace {

using FilesCommandLineTest = test::ToolTest;

TEST_F(FilesCommandLineTest, OptionsStandAnywhere) {
    EXPECT_EQ(run({"data", "--to", "csv", "-", "--from=odb", "-"}, "a\tb\r\n"), 0) << complaint;
    EXPECT_EQ(printed, "a,b\r\n");
}

TEST_F(FilesCommandLineTest, AnOptionThatIsGivenTwiceIsRefused) {
    expectUsage({"data", "-", "-", "--from", "odb", "--to", "csv", "--to", "txt"}, "--to");
}

TEST_F(FilesCommandLineTest, ReadingDoesNothingYet) {
    EXPECT_NO_THROW(readFilesCommandLine({"show", "/w/missing"}));
    EXPECT_THROW(readFilesCommandLine({"show"}), UsageError);
}

TEST_F(FilesCommandLineTest, AMistypedWordIsUnderstoodAndNotDone) {
    expectUsage({"shwo", "/w/a"}, "did you mean show?");
    expectUsage({"data", "-", "-", "--form", "odb"}, "did you mean --from?");
}

TEST_F(FilesCommandLineTest, FilesMayBeCalledLikeCommandsAndOptions) {
    memory.addFile("/w/show", "a\r\n");
    EXPECT_EQ(run({"show", "/w/show", "--as", "data"}), 0) << complaint;
    EXPECT_EQ(run({"show", "--", "--as"}), kStatusFailed);
    EXPECT_EQ(complaint, "velmora-files: File not found: --as\n");
}

TEST_F(FilesCommandLineTest, ItsOutlineHasEveryCommandAndStatus) {
    const ProgramOutline outline = filesOutline();
    EXPECT_EQ(outline.name, "velmora-files");
    EXPECT_EQ(outline.commands.size(), 5U);
    EXPECT_EQ(outline.statuses.size(), 4U);
    EXPECT_EQ(outline.statuses.front().first, 0);
    EXPECT_EQ(outline.statuses.front().second, "done");
}

}  // namespace
}  // namespace velmora
