#include "apps/logon_task.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(LogonTask, StartsTheProgramWhenItsUserLogsOn) {
    const std::string definition = taskDefinition(
        {"DEN\\ann", "C:\\Programs\\velmorad.exe", {"--port", "COM5", "--wait"}, "C:\\Users\\ann"});
    EXPECT_TRUE(contains(definition, "<LogonTrigger><UserId>DEN\\ann</UserId></LogonTrigger>"));
    EXPECT_TRUE(contains(definition, "<UserId>DEN\\ann</UserId><LogonType>InteractiveToken</LogonType>"));
    EXPECT_TRUE(contains(definition, "<Command>C:\\Programs\\velmorad.exe</Command>"));
    EXPECT_TRUE(contains(definition, "<Arguments>--port COM5 --wait</Arguments>"));
    EXPECT_TRUE(contains(definition, "<WorkingDirectory>C:\\Users\\ann</WorkingDirectory>"));
}

TEST(LogonTask, IsNeverEndedForItsTimeOrForTheBattery) {
    const std::string definition = taskDefinition({"u", "p", {}, "f"});
    EXPECT_TRUE(contains(definition, "<ExecutionTimeLimit>PT0S</ExecutionTimeLimit>"));
    EXPECT_TRUE(contains(definition, "<DisallowStartIfOnBatteries>false</DisallowStartIfOnBatteries>"));
    EXPECT_TRUE(contains(definition, "<StopIfGoingOnBatteries>false</StopIfGoingOnBatteries>"));
}

TEST(LogonTask, TakesEveryLetterThatAPathMayHave) {
    const std::string definition =
        taskDefinition({"u", "C:\\R&D <1>\\velmorad.exe", {"--folder", "D:\\R&D files"}, "C:\\R&D"});
    EXPECT_TRUE(contains(definition, "<Command>C:\\R&amp;D &lt;1&gt;\\velmorad.exe</Command>"));
    EXPECT_TRUE(contains(definition, "<Arguments>--folder \"D:\\R&amp;D files\"</Arguments>"));
    EXPECT_TRUE(contains(definition, "<WorkingDirectory>C:\\R&amp;D</WorkingDirectory>"));
}

TEST(WindowsCommandLine, QuotesWhatWouldFallApart) {
    EXPECT_EQ(windowsCommandLine({"--port", "COM5"}), "--port COM5");
    EXPECT_EQ(windowsCommandLine({"a b", "", "c\td"}), "\"a b\" \"\" \"c\td\"");
    EXPECT_EQ(windowsCommandLine({R"(say "hi")"}), R"("say \"hi\"")");
}

TEST(WindowsCommandLine, ABackslashIsDoubledBeforeAQuoteOnly) {
    EXPECT_EQ(windowsCommandLine({R"(C:\a\b)"}), R"(C:\a\b)");
    EXPECT_EQ(windowsCommandLine({R"(C:\a b\)"}), R"("C:\a b\\")");
    EXPECT_EQ(windowsCommandLine({R"(a\"b\\"c)"}), R"("a\\\"b\\\\\"c")");
}

}  // namespace
}  // namespace velmora
