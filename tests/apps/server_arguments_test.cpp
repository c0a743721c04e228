#include "apps/server_arguments.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ServerArguments, NothingGivenLeavesAllToTheConfigurationFile) {
    const ServerArguments arguments = parseServerArguments({});
    EXPECT_FALSE(arguments.config || arguments.port || arguments.baud || arguments.folder ||
                 arguments.fileType);
    EXPECT_FALSE(arguments.trace || arguments.help || arguments.version);
}

TEST(ServerArguments, TakesEveryOption) {
    const ServerArguments arguments =
        parseServerArguments({"--config", "a.ini", "--port=COM7", "--baud", "2400", "--folder", "psion",
                              "--file-type=3", "--trace=plp, com", "--trace-file", "trace.txt"});
    EXPECT_EQ(arguments.config, "a.ini");
    EXPECT_EQ(arguments.port, "COM7");
    EXPECT_EQ(arguments.baud, 2400);
    EXPECT_EQ(arguments.folder, "psion");
    EXPECT_EQ(arguments.fileType, 3);
    EXPECT_TRUE(arguments.trace);
    EXPECT_EQ(arguments.traceCategories, (std::vector<std::string>{"PLP", "COM"}));
    EXPECT_EQ(arguments.traceFile, "trace.txt");
}

TEST(ServerArguments, TraceAloneTracesEverythingAndTakesNoFollowingWord) {
    const ServerArguments arguments = parseServerArguments({"--trace", "--port", "COM1"});
    EXPECT_TRUE(arguments.trace);
    EXPECT_TRUE(arguments.traceCategories.empty());
    EXPECT_EQ(arguments.port, "COM1");
}

TEST(ServerArguments, ATraceFileTurnsTheTraceOn) {
    EXPECT_TRUE(parseServerArguments({"--trace-file=t"}).trace);
}

TEST(ServerArguments, SaysWhatIsWrong) {
    const auto complaint = [](const std::vector<std::string>& arguments) -> std::string {
        try {
            parseServerArguments(arguments);
        } catch (const UsageError& error) {
            return error.what();
        }
        return "no complaint";
    };
    EXPECT_EQ(complaint({"--port"}), "--port needs a value");
    EXPECT_EQ(complaint({"--folder="}), "--folder needs a value");
    EXPECT_EQ(complaint({"--baud", "fast"}), "--baud fast: not a number from 1 to 4000000");
    EXPECT_EQ(complaint({"--baud", "0"}), "--baud 0: not a number from 1 to 4000000");
    EXPECT_EQ(complaint({"--file-type", "4"}), "--file-type 4: not a number from 0 to 3");
    EXPECT_EQ(complaint({"--file-type", "1x"}), "--file-type 1x: not a number from 0 to 3");
    EXPECT_EQ(complaint({"--help=me"}), "--help takes no value");
    EXPECT_EQ(complaint({"--frobnicate"}), "unknown option --frobnicate");
    EXPECT_EQ(complaint({"COM1"}), "unknown option COM1");
}

TEST(ServerArguments, TheHelpNamesEveryOption) {
    const std::string help = serverUsage();
    for (const char* option : {"--config", "--port", "--baud", "--folder", "--file-type", "--trace",
                               "--trace-file", "--help", "--version"}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
}

}  // namespace
}  // namespace velmora
