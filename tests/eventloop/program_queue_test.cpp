#include "eventloop/program_queue.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "event_loop_fixture.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using Lines = std::vector<std::string>;

class ProgramQueueTest : public EventLoopFixture {
  protected:
    /// A program with these lines for the shell.
    std::string program(const std::string& lines) {
        const std::filesystem::path path = std::filesystem::path(folder.path()) / "program";
        std::ofstream(path) << "#!/bin/sh\n" << lines;
        ::chmod(path.c_str(), 0755);
        return path.string();
    }
    std::unique_ptr<ProgramQueue> queueOf(const std::string& path) {
        return std::make_unique<ProgramQueue>(
            path, [this](const std::string& line) { output.push_back(line); },
            [this](const std::string& line) { failures.push_back(line); });
    }
    /// Runs the event loop until nothing runs any more.
    static void finish(const ProgramQueue& queue) {
        while (queue.running()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    test::TempFolder folder;
    Lines output;
    Lines failures;
};

TEST_F(ProgramQueueTest, AProgramGetsItsArgumentsAndVariablesAsTheyAre) {
    const auto queue = queueOf(program("printf '%s|' \"$@\"; echo \"$NAME\"\n"));
    queue->call({{"a b", "$HOME", "", "\xC3\xA9"}, {{"NAME", "it's \"x\""}}});
    finish(*queue);
    EXPECT_EQ(output, Lines{"a b|$HOME||\xC3\xA9|it's \"x\""});
    EXPECT_TRUE(failures.empty());
}

TEST_F(ProgramQueueTest, CallsThatComeMeanwhileWaitForTheirTurn) {
    const auto queue = queueOf(program("echo begin $1; echo end $1\n"));
    queue->call({{"1"}, {}});
    queue->call({{"2"}, {}});
    queue->call({{"3"}, {}});
    EXPECT_TRUE(output.empty());
    finish(*queue);
    EXPECT_EQ(output, (Lines{"begin 1", "end 1", "begin 2", "end 2", "begin 3", "end 3"}));
}

TEST_F(ProgramQueueTest, BothStreamsAreTakenAndTheLastLineNeedsNoEnd) {
    const auto queue = queueOf(program("echo out; echo err >&2; printf last\n"));
    queue->call({});
    finish(*queue);
    EXPECT_EQ(output, (Lines{"out", "err", "last"}));
}

TEST_F(ProgramQueueTest, NothingIsThereToBeRead) {
    const auto queue = queueOf(program("cat; echo done\n"));
    queue->call({});
    finish(*queue);
    EXPECT_EQ(output, Lines{"done"});
}

TEST_F(ProgramQueueTest, ABadEndIsAFailureAndTheNextCallRuns) {
    const std::string path =
        program("[ \"$1\" = good ] && exit 0\n[ \"$1\" = dead ] && kill -9 $$\nexit 3\n");
    const auto queue = queueOf(path);
    queue->call({{"bad"}, {}});
    queue->call({{"dead"}, {}});
    queue->call({{"good"}, {}});
    finish(*queue);
    EXPECT_EQ(failures, (Lines{path + " ended with status 3", path + " was ended by a signal"}));
}

TEST_F(ProgramQueueTest, AProgramThatIsNotThereIsAFailureOfEachCall) {
    const auto queue = queueOf("/nowhere/program");
    queue->call({});
    queue->call({});
    finish(*queue);
    ASSERT_EQ(failures.size(), 2U);
    EXPECT_EQ(failures[0].rfind("/nowhere/program cannot be started: ", 0), 0U) << failures[0];
}

TEST_F(ProgramQueueTest, AProgramThatNeverEndsDoesNotFillTheMemory) {
    const auto queue = queueOf(program("echo $$; exec sleep 1000000\n"));
    queue->call({});
    while (output.empty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    for (std::size_t i = 0; i <= ProgramQueue::kMostWaiting; ++i) {
        queue->call({});
    }
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_NE(failures[0].find(" is still busy; a call of it is left out"), std::string::npos);
    ::kill(std::stoi(output[0]), SIGKILL);
}

TEST_F(ProgramQueueTest, SignalsThatTheServerHoldsBackReachTheProgram) {
    sigset_t held;
    sigset_t earlier;
    sigemptyset(&held);
    sigaddset(&held, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &held, &earlier);
    const std::string path = program("kill -TERM $$; echo still here\n");
    const auto queue = queueOf(path);
    queue->call({});
    finish(*queue);
    ::sigprocmask(SIG_SETMASK, &earlier, nullptr);
    EXPECT_TRUE(output.empty());
    EXPECT_EQ(failures, Lines{path + " was ended by a signal"});
}

TEST_F(ProgramQueueTest, AProgramOutlivesTheServer) {
    const std::filesystem::path gate = std::filesystem::path(folder.path()) / "gate";
    ASSERT_EQ(::mkfifo(gate.c_str(), 0600), 0);
    auto queue = queueOf(program("echo ready\nread line < '" + gate.string() + "'\necho \"$line\" > '" +
                                 gate.string() + "'\n"));
    queue->call({});
    while (output.empty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    queue.reset();
    // Blocks until the program opens its end, and would for ever had it been ended.
    std::ofstream(gate) << "still here\n";
    std::string line;
    std::getline(std::ifstream(gate), line);
    EXPECT_EQ(line, "still here");
}

}  // namespace
}  // namespace velmora
