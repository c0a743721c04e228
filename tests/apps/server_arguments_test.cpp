#include "apps/server_arguments.h"

#include <gtest/gtest.h>

#include "arguments/syntax.h"
#include "arguments/usage_error.h"

namespace velmora {
namespace {

TEST(ServerArguments, NothingGivenLeavesAllToTheConfigurationFile) {
    const ServerArguments arguments = readServerArguments({});
    EXPECT_FALSE(arguments.config || arguments.port || arguments.baud || arguments.folder ||
                 arguments.fileType);
    EXPECT_FALSE(arguments.trace);
    EXPECT_FALSE(arguments.stayInFolder);
}

TEST(ServerArguments, TakesEveryOption) {
    const ServerArguments arguments = readServerArguments(
        {"--config", "a.ini", "--port=COM7", "--baud", "2400", "--folder", "psion", "--stay-in-folder",
         "--file-type=3", "--trace=plp, com", "--trace-file", "trace.txt"});
    EXPECT_EQ(arguments.config, "a.ini");
    EXPECT_EQ(arguments.port, "COM7");
    EXPECT_EQ(arguments.baud, 2400);
    EXPECT_EQ(arguments.folder, "psion");
    EXPECT_TRUE(arguments.stayInFolder);
    EXPECT_EQ(arguments.fileType, 3);
    EXPECT_TRUE(arguments.trace);
    EXPECT_EQ(arguments.traceCategories, (std::vector<std::string>{"PLP", "COM"}));
    EXPECT_EQ(arguments.traceFile, "trace.txt");
}

TEST(ServerArguments, TraceAloneTracesEverythingAndTakesNoFollowingWord) {
    const ServerArguments arguments = readServerArguments({"--trace", "--port", "COM1"});
    EXPECT_TRUE(arguments.trace);
    EXPECT_TRUE(arguments.traceCategories.empty());
    EXPECT_EQ(arguments.port, "COM1");
}

TEST(ServerArguments, ListsPortsWaitsAndTakesTheNamesOfAdapters) {
    EXPECT_FALSE(readServerArguments({}).wait);
    EXPECT_FALSE(readServerArguments({}).listPorts);
    EXPECT_TRUE(readServerArguments({"--wait"}).wait);
    EXPECT_TRUE(readServerArguments({"--list-ports", "--json"}).json);
    EXPECT_TRUE(readServerArguments({"--print-config"}).printConfig);
    EXPECT_EQ(readServerArguments({"--port", "usb:0403:6001:A5"}).port, "usb:0403:6001:A5");
}

TEST(ServerArguments, PrintsForPeopleUnlessToldOtherwise) {
    EXPECT_EQ(readServerArguments({}).logFormat, LogFormat::Text);
    EXPECT_FALSE(readServerArguments({}).quiet);
    EXPECT_EQ(readServerArguments({"--log-format=text"}).logFormat, LogFormat::Text);
    EXPECT_EQ(readServerArguments({"--log-format", "json"}).logFormat, LogFormat::Json);
    EXPECT_TRUE(readServerArguments({"--quiet"}).quiet);
    EXPECT_EQ(readServerArguments({"--on-transfer", "/usr/bin/sort-it"}).onTransfer, "/usr/bin/sort-it");
}

TEST(ServerArguments, ATraceFileTurnsTheTraceOn) {
    EXPECT_TRUE(readServerArguments({"--trace-file=t"}).trace);
}

TEST(ServerArguments, RecordsOnlyWhereItIsToldTo) {
    EXPECT_EQ(readServerArguments({}).capture.path, "");
    const CaptureRequest request =
        readServerArguments({"--capture", "log.pcapng", "--capture-limit=10min", "--mask"}).capture;
    EXPECT_EQ(request.path, "log.pcapng");
    EXPECT_EQ(request.limit.time, std::chrono::minutes(10));
    EXPECT_TRUE(request.masked);
    EXPECT_EQ(readServerArguments({"--capture=c", "--capture-limit", "20M"}).capture.limit.bytes,
              20U * 1024 * 1024);
}

TEST(ServerArguments, SaysWhatIsWrong) {
    const auto complaint = [](const std::vector<std::string>& arguments) -> std::string {
        try {
            readServerArguments(arguments);
        } catch (const UsageError& error) {
            return error.what();
        }
        return "no complaint";
    };
    EXPECT_EQ(complaint({"--port"}), "--port needs a value");
    EXPECT_EQ(complaint({"--json"}), "--json goes with --list-ports");
    EXPECT_EQ(complaint({"--mask"}), "--capture-limit and --mask go with --capture");
    EXPECT_EQ(complaint({"--capture-limit=20M"}), "--capture-limit and --mask go with --capture");
    EXPECT_EQ(complaint({"--capture=c", "--capture-limit=20"}),
              "--capture-limit: \"20\" is not a number with K, M, G, s, min or h behind it");
    EXPECT_EQ(complaint({"--port=usb:0403"}),
              "--port: \"usb:0403\" is not usb:VENDOR:PRODUCT:SERIAL, as --list-ports prints it");
    EXPECT_EQ(complaint({"--folder="}), "--folder needs a value");
    EXPECT_EQ(complaint({"--log-format=xml"}), "--log-format: \"xml\" is not text or json");
    EXPECT_EQ(complaint({"--baud", "fast"}), "--baud: \"fast\" is not a number from 1 to 4000000");
    EXPECT_EQ(complaint({"--baud", "0"}), "--baud: \"0\" is not a number from 1 to 4000000");
    EXPECT_EQ(complaint({"--file-type", "4"}), "--file-type: \"4\" is not a number from 0 to 3");
    EXPECT_EQ(complaint({"--file-type", "1x"}), "--file-type: \"1x\" is not a number from 0 to 3");
    EXPECT_EQ(complaint({"--trace=plp,XYZ"}),
              "--trace: \"XYZ\" is not PLP, STATE, EVENT, COM, DATA or ERROR");
    EXPECT_EQ(complaint({"--foldr", "psion"}), "there is no option --foldr; did you mean --folder?");
    EXPECT_EQ(complaint({"--frobnicate"}), "there is no option --frobnicate");
    EXPECT_EQ(complaint({"COM1"}), "\"COM1\" is one argument too many");
}

TEST(ServerArguments, TheHelpNamesEveryOption) {
    try {
        readServerArguments({"--help"});
        FAIL() << "no help";
    } catch (const RequestedText& help) {
        for (const char* option : {"--config", "--port", "--baud", "--folder", "--stay-in-folder",
                                   "--file-type", "--trace", "--trace-file", "--help", "--version"}) {
            EXPECT_NE(help.text.find(option), std::string::npos) << option;
        }
    }
}

TEST(ServerArguments, ItsOutlineHasEveryStatusThatItEndsWith) {
    const ProgramOutline outline = serverOutline();
    EXPECT_EQ(outline.name, "velmorad");
    ASSERT_EQ(outline.statuses.size(), 4U);
    EXPECT_EQ(outline.statuses.back().first, 3);
}

}  // namespace
}  // namespace velmora
