#include "ui/console_view.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/system_text.h"
#include "support/controller_fixture.h"
#include "ui/no_user_box.h"

namespace velmora {
namespace {

using Lines = std::vector<std::string>;

/// A controller whose window is a console.
class Console : public testing::Test {
  protected:
    Console() { controller.attachLink(link); }

    Lines output;
    Lines errors;
    std::vector<std::int32_t> states;
    int closings = 0;
    test::FakeTime time;
    test::NoYield yield;
    Strings strings;
    ServerOptions options;
    TransferSettings transfer;
    test::ScriptedPort port;
    test::ScriptedLink link;
    ConsoleView view{[this](const std::string& line) { output.push_back(line); },
                     [this](const std::string& line) { errors.push_back(line); },
                     {[this] { ++closings; }, [this](std::int32_t state) { states.push_back(state); },
                      [this] { return statusWanted; }}};
    bool statusWanted = true;
    NoUserBox box{[this](const std::string& line) { errors.push_back(line); }};
    ServerController controller{{view, box, strings, options, transfer, port, time.makeTimer(),
                                 time.makeTimer(), time.makeTimer(), time, yield,
                                 [](const std::string& path) { return path.substr(path.rfind('/') + 1); }}};
};

TEST_F(Console, TellsATransferLineByLine) {
    controller.setState(WaitLink);
    controller.setState(Connect);
    controller.setState(Downld);
    controller.setCurrentFile("/home/me/Memo.odb");
    controller.setCurrentFile("");
    controller.setState(WaitLink);
    EXPECT_EQ(output, (Lines{"Waiting for link", "Connecting...", "Downloading file",
                             "Downloading file: Memo.odb", "Waiting for link"}));
    EXPECT_TRUE(errors.empty());
    EXPECT_EQ(states, (std::vector<std::int32_t>{5, 6, 9, 5}));
}

TEST_F(Console, OfAProgramThatAsksForNothingTellsTheDisplay) {
    ConsoleView plain([this](const std::string& line) { output.push_back(line); }, {}, {});
    plain.showStatus("Waiting for link");
    plain.showState(WaitLink);
    plain.close();
    EXPECT_EQ(output, Lines{"Waiting for link"});
}

TEST_F(Console, LeavesOutTheDisplayWhileItIsNotWantedButNoReport) {
    statusWanted = false;
    controller.setState(WaitLink);
    controller.Report("Memo.odb is incomplete");
    EXPECT_EQ(output, Lines{"Memo.odb is incomplete"});
}

TEST_F(Console, PrintsWholeTextsNotSixteenColumns) {
    controller.setState(NoPort);
    EXPECT_EQ(output, Lines{"No port selected. The server could not find a free serial port!"});
}

TEST_F(Console, AReportIsALineBetweenThoseOfTheDisplay) {
    controller.setState(Downld);
    controller.Report("Plan.wks, B3: caf\xE9\n\x1B[2J");
    controller.setState(WaitLink);
    EXPECT_EQ(output, (Lines{"Downloading file", toSystemText("Plan.wks, B3: caf\xE9<0A><1B>[2J"),
                             "Waiting for link"}));
    EXPECT_TRUE(errors.empty());
}

TEST_F(Console, ScrollingPrintsNothing) {
    controller.setState(NoPort);
    time.advance(test::milliseconds(10'000));
    EXPECT_EQ(output.size(), 1U);
}

TEST_F(Console, WarningsGoToTheErrorOutputOnce) {
    controller.ShowWarning("COM1: device gone", " ");
    controller.ShowWarning("COM1: device gone", "");
    controller.ShowWarning("Send error -1", "no device");
    EXPECT_EQ(errors, (Lines{"COM1: device gone", "Send error -1 no device"}));
    EXPECT_TRUE(output.empty());
}

TEST_F(Console, AWarningThatWasClearedIsSaidAgain) {
    controller.ShowWarning("again", "");
    controller.ShowClear();
    controller.ShowWarning("again", "");
    EXPECT_EQ(errors.size(), 2U);
}

TEST_F(Console, OtherMessagesGoToTheOutput) {
    controller.ShowText("one", "", "three");
    EXPECT_EQ(output, Lines{"one three"});
}

TEST_F(Console, TextsArePrintedInTheSystemsEncoding) {
    controller.Display("Gr\xFC\xDF", "");
    EXPECT_EQ(output, Lines{toSystemText("Gr\xFC\xDF")});
}

TEST_F(Console, CountsInItsLabels) {
    controller.SetStats(StatsBytesReceived, 1500);
    controller.SetStats(StatsFilesSent, 1);
    EXPECT_EQ(view.statsText(StatsLabel::BytesRecv), "1,500");
    EXPECT_EQ(view.statsText(StatsLabel::FilesSent), "1");
    EXPECT_EQ(view.statsText(StatsLabel::FilesRecv), "0");
}

TEST_F(Console, AShutdownClosesTheProgram) {
    controller.setState(WaitLink);
    controller.setState(Shutdown);
    time.advance(test::milliseconds(500));
    EXPECT_EQ(closings, 1);
}

TEST_F(Console, AQuestionCountsAsNo) {
    controller.setState(WaitLink);
    controller.setState(Downld);
    controller.setState(Offline);
    EXPECT_EQ(controller.state(), Downld);
    EXPECT_EQ(errors,
              Lines{"Velmora: Transaction in progress! Do you really want to stop the server? - nobody "
                    "to ask, taken as No"});
}

}  // namespace
}  // namespace velmora
