#include "transfers/transfer_history.h"

#include <gtest/gtest.h>

#include "support/failing_files.h"
#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/simple_names.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using test::FileCall;

constexpr const char* kPath = "/data/Velmora/Transfers.jsonl";

class TransferHistoryTest : public testing::Test {
  protected:
    /// A run of the program.
    class Run {
      public:
        explicit Run(TransferHistoryTest& on)
            : timer(on.time.makeTimer()),
              history(on.files, on.rules, kPath, timer,
                      [&on](const std::string& why) { on.complaints.push_back(why); }) {}

        void end(const std::string& name, const TransferEnd& end = {}) {
            Transfer transfer;
            transfer.name = name;
            history.transferBegan(transfer);
            history.transferMoved(transfer);
            history.transferEnded(transfer, end);
        }
        std::vector<std::string> names() {
            std::vector<std::string> all;
            for (const EndedTransfer& one : history.load()) {
                all.push_back(one.transfer.name);
            }
            return all;
        }

        test::FakeTime::FakeTimer& timer;
        TransferHistory history;
    };

    std::vector<std::string> remembered() { return Run(*this).names(); }
    std::size_t lines() {
        const std::string& text = memory.content(kPath);
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    test::SimplePathRules rules;
    test::FakeTime time;
    std::vector<std::string> complaints;
};

using Names = std::vector<std::string>;

TEST_F(TransferHistoryTest, TheFirstStartRemembersNothing) {
    EXPECT_EQ(remembered(), Names{});
    EXPECT_FALSE(memory.fileExists(kPath));
    EXPECT_TRUE(complaints.empty());
}

TEST_F(TransferHistoryTest, WhatEndedIsRememberedOverStarts) {
    {
        Run run(*this);
        run.end("One.odb");
        run.end("Two.odb", {TransferResult::Refused, 189, "no such file"});
    }
    EXPECT_EQ(remembered(), (Names{"One.odb", "Two.odb"}));
    EXPECT_EQ(Run(*this).history.load().at(1).end.reason, "no such file");
    EXPECT_EQ(memory.folderRights("/data/Velmora"), FolderRights::OwnerOnly);
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(TransferHistoryTest, ItIsWrittenASecondLaterAndThenTheTimerRests) {
    Run run(*this);
    run.end("One.odb");
    run.end("Two.odb");
    EXPECT_FALSE(memory.fileExists(kPath)) << "no transfer waits for the disk";
    time.advance(1000ms);
    EXPECT_EQ(lines(), 2U);
    EXPECT_FALSE(run.timer.enabled());
    run.end("Three.odb");
    time.advance(1000ms);
    EXPECT_EQ(remembered(), (Names{"One.odb", "Two.odb", "Three.odb"}));
}

TEST_F(TransferHistoryTest, OnlyTheLastAreRemembered) {
    {
        Run run(*this);
        for (std::size_t i = 0; i < TransferHistory::kRemembered + 2; ++i) {
            run.end(std::to_string(i));
            if (i == 500) {
                run.history.save();
            }
        }
    }
    const Names names = remembered();
    ASSERT_EQ(names.size(), TransferHistory::kRemembered);
    EXPECT_EQ(names.front(), "2");
    EXPECT_EQ(names.back(), "1001");
}

TEST_F(TransferHistoryTest, TheFileIsWrittenAnewBeforeItGrowsTooLong) {
    for (int run = 0; run < 3; ++run) {
        Run each(*this);
        each.history.load();
        for (std::size_t i = 0; i < TransferHistory::kRemembered; ++i) {
            each.end(std::to_string(i));
        }
        each.history.save();
        EXPECT_EQ(lines(), TransferHistory::kRemembered * (run == 1 ? 2 : 1));
    }
    EXPECT_EQ(remembered().size(), TransferHistory::kRemembered);
}

TEST_F(TransferHistoryTest, MoreThanAllAtOnceIsWrittenOnce) {
    {
        Run run(*this);
        for (std::size_t i = 0; i < TransferHistory::kRemembered * 3; ++i) {
            run.end(std::to_string(i));
        }
    }
    EXPECT_EQ(lines(), TransferHistory::kRemembered);
}

TEST_F(TransferHistoryTest, LinesThatAreNoneAreLeftOut) {
    Run(*this).end("One.odb");
    const std::string line = memory.content(kPath);
    memory.addFile(kPath, "nonsense\n" + line + "{}\n\n[1]\n" + line + "{\"began\":\"2026");
    EXPECT_EQ(remembered(), (Names{"One.odb", "One.odb"}));
    Run(*this).end("Two.odb");
    EXPECT_EQ(remembered(), (Names{"One.odb", "One.odb", "Two.odb"}))
        << "a line that was cut short spoils no other";
}

TEST_F(TransferHistoryTest, OfAVeryLongFileTheEndIsRead) {
    Run(*this).end("One.odb");
    const std::string line = memory.content(kPath);
    memory.addFile(kPath, line + std::string(TransferHistory::kLongestRead, 'x') + "\n" + line);
    EXPECT_EQ(remembered(), Names{"One.odb"});
}

TEST_F(TransferHistoryTest, WhatCannotBeReadIsToldAndForgotten) {
    Run(*this).end("One.odb");
    files.failAtCall(FileCall::Open, 1, ErrorNumber::PermissionDenied);
    EXPECT_EQ(remembered(), Names{});
    EXPECT_EQ(complaints, Names{"Permission denied"});
}

TEST_F(TransferHistoryTest, WhatCannotBeWrittenIsToldAndTriedAgain) {
    Run run(*this);
    run.end("One.odb");
    files.failAtCall(FileCall::Open, 1, ErrorNumber::DiskFull);
    time.advance(1000ms);
    EXPECT_EQ(complaints, Names{"Disk full"});
    run.end("Two.odb");
    time.advance(1000ms);
    EXPECT_EQ(remembered(), (Names{"One.odb", "Two.odb"}));
}

}  // namespace
}  // namespace velmora
