// The simulation itself: that it repeats, that it can find something, and that line and disk do what they
// say.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/run_time_error.h"
#include "episode.h"
#include "link/frames.h"
#include "shrinker.h"

namespace velmora::simulation {
namespace {

TEST(Simulation, TheSameSeedIsTheSameRunByteForByte) {
    const EpisodeResult first = runEpisode(Plan::ofSeed(7), true);
    const EpisodeResult second = runEpisode(Plan::ofSeed(7), true);
    EXPECT_GT(std::count(first.journal.begin(), first.journal.end(), '\n'), 500);
    EXPECT_TRUE(first.journal == second.journal);
    EXPECT_EQ(first.checkSum, second.checkSum);
    EXPECT_NE(runEpisode(Plan::ofSeed(8)).checkSum, first.checkSum);
}

TEST(Simulation, KeepingTheJournalChangesNothing) {
    EXPECT_EQ(runEpisode(Plan::ofSeed(9)).checkSum, runEpisode(Plan::ofSeed(9), true).checkSum);
}

TEST(Simulation, EveryPromiseIsKeptAndEveryFaultComesToPass) {
    FaultCounts counts{};
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        const EpisodeResult result = runEpisode(Plan::ofSeed(seed));
        EXPECT_EQ(result.violation, std::nullopt) << "seed " << seed;
        for (std::size_t i = 0; i < kFaultKinds; ++i) {
            counts[i] += result.faults[i];
        }
    }
    for (std::size_t i = 0; i < kFaultKinds; ++i) {
        EXPECT_GT(counts[i], 0U) << faultName(static_cast<FaultKind>(i));
    }
}

/// A plan without faults, the server never stopped.
Plan quietPlan(std::size_t steps) {
    Plan plan = Plan::ofSeed(3);
    while (plan.steps.size() < steps) {
        const Plan more = Plan::ofSeed(1'000 + plan.steps.size());
        plan.steps.insert(plan.steps.end(), more.steps.begin(), more.steps.end());
    }
    plan.crowded = false;
    for (Step& step : plan.steps) {
        step.faults.clear();
    }
    plan.steps.erase(std::remove_if(plan.steps.begin(), plan.steps.end(),
                                    [](const Step& step) {
                                        return step.action == Action::Exit || step.action == Action::Shutdown;
                                    }),
                     plan.steps.end());
    return plan;
}

TEST(Simulation, AServerThatServesForLongHoldsNoMoreMemory) {
    const EpisodeResult result = runEpisode(quietPlan(3'000));
    EXPECT_EQ(result.violation, std::nullopt);
    EXPECT_GT(result.heap, 0U);
    EXPECT_LE(result.heap, 600'000U) << "200 bytes for each request would be more";
}

bool has(const Plan& plan, FaultKind kind) {
    return std::any_of(plan.steps.begin(), plan.steps.end(), [&](const Step& step) {
        return std::any_of(step.faults.begin(), step.faults.end(),
                           [&](const Fault& fault) { return fault.kind == kind; });
    });
}

TEST(Shrinker, LeavesTheFewestStepsAndFaults) {
    Plan plan = Plan::ofSeed(1);
    plan.steps.front().faults.push_back({FaultKind::Noise, Direction::ToServer, 1, 1});
    plan.steps.back().faults.push_back({FaultKind::PowerFails, Direction::ToServer, 1, 1});
    const auto fails = [](const Plan& some) {
        return has(some, FaultKind::Noise) && has(some, FaultKind::PowerFails);
    };
    const Plan least = shrink(plan, fails);
    EXPECT_TRUE(fails(least));
    EXPECT_EQ(least.faults(), 2U);
    EXPECT_LE(least.steps.size(), 2U);
}

class SimulatedLineTest : public testing::Test {
  protected:
    SimulatedLineTest() {
        line.setRate(9600);
        crc.load_CRCtable();
        frame = buildFrame(crc, FrameType::Data, 1, "hello");
    }
    std::string received(std::vector<Fault> happening) {
        faults.begin(std::move(happening));
        line.send(Direction::ToServer, frame);
        time.moveTo(time.now() + std::chrono::seconds(10));
        return line.take(Direction::ToServer, 1000);
    }

    VirtualTime time;
    FaultsOfStep faults;
    Journal journal;
    SimulatedLine line{time, faults, journal, Random(1)};
    Crc crc;
    std::string frame;
};

TEST_F(SimulatedLineTest, BytesArriveAtTheirWireTime) {
    line.send(Direction::ToServer, frame);
    EXPECT_EQ(line.waiting(Direction::ToServer), 0U);
    time.moveTo(Time(10'417));
    EXPECT_EQ(line.waiting(Direction::ToServer), 10U);
    EXPECT_EQ(line.take(Direction::ToServer, 4), frame.substr(0, 4));
    EXPECT_EQ(line.waiting(Direction::ToServer), 6U);
    EXPECT_FALSE(line.silent());
    time.moveTo(Time(1'041'667) * frame.size() / 1000 + Time(1));
    EXPECT_EQ(line.take(Direction::ToServer, 1000), frame.substr(4));
    EXPECT_TRUE(line.silent());
}

TEST_F(SimulatedLineTest, WhatIsToGoWrongDoes) {
    EXPECT_EQ(received({}), frame);
    EXPECT_EQ(received({{FaultKind::Drop, Direction::ToServer, 0, 0}}), "");
    EXPECT_EQ(received({{FaultKind::Drop, Direction::ToOrganiser, 0, 0}}), frame);
    EXPECT_EQ(received({{FaultKind::Duplicate, Direction::ToServer, 0, 0}}), frame + frame);
    EXPECT_EQ(received({{FaultKind::Truncate, Direction::ToServer, 0, 5}}), frame.substr(0, 5));
    const std::string noisy = received({{FaultKind::Noise, Direction::ToServer, 0, 3}});
    EXPECT_EQ(noisy.size(), frame.size() + 4);
    EXPECT_TRUE(noisy.ends_with(frame));
    for (std::uint32_t bit = 0; bit < 8 * frame.size(); ++bit) {
        const std::string damaged = received({{FaultKind::Corrupt, Direction::ToServer, 0, bit}});
        EXPECT_EQ(damaged.size(), frame.size());
        EXPECT_NE(damaged, frame);
    }
}

TEST_F(SimulatedLineTest, ACutCableLosesEverything) {
    line.send(Direction::ToServer, frame);
    line.setConnected(false);
    line.send(Direction::ToServer, frame);
    line.setConnected(true);
    EXPECT_EQ(received({}), frame);
}

TEST_F(SimulatedLineTest, AServerThatGivesUpTooSoonIsSeen) {
    const std::string goodbye =
        buildFrame(crc, FrameType::Discon, 0, std::string_view(&kReasonTooManyErrors, 1));
    for (int copies = 0; copies < 5; ++copies) {
        line.send(Direction::ToOrganiser, frame);
        if (copies < 4) {
            EXPECT_ANY_THROW(line.send(Direction::ToOrganiser, goodbye));
        }
    }
    EXPECT_NO_THROW(line.send(Direction::ToOrganiser, goodbye));
}

class SimulatedDiskTest : public testing::Test {
  protected:
    SimulatedDiskTest() { disk.addFolder("/psion"); }

    /// Loses the power until nothing is left that happened to be written already.
    std::vector<std::optional<std::string>> afterPowerFailures(
        const std::function<void(SimulatedDisk&)>& work) {
        std::vector<std::optional<std::string>> contents;
        for (std::uint64_t seed = 0; seed < 50; ++seed) {
            SimulatedDisk each(time, faults, journal, Random(seed));
            each.addFolder("/psion");
            work(each);
            each.losePower();
            contents.push_back(each.content("/psion/a"));
        }
        return contents;
    }

    VirtualTime time;
    FaultsOfStep faults;
    Journal journal;
    SimulatedDisk disk{time, faults, journal, Random(1)};
};

TEST_F(SimulatedDiskTest, APowerFailureMayTakeWhatWasNotFlushed) {
    const auto contents = afterPowerFailures([](SimulatedDisk& each) {
        const auto file = each.open("/psion/a", OpenMode::Create);
        file->write("flushed");
        file->flush();
        file->write(" and not");
    });
    EXPECT_EQ(std::count(contents.begin(), contents.end(), "flushed") +
                  std::count(contents.begin(), contents.end(), "flushed and not"),
              50);
    EXPECT_GT(std::count(contents.begin(), contents.end(), "flushed"), 0);
    EXPECT_GT(std::count(contents.begin(), contents.end(), "flushed and not"), 0);
}

TEST_F(SimulatedDiskTest, APowerFailureMayTakeANameThatWasNotFlushed) {
    const auto contents =
        afterPowerFailures([](SimulatedDisk& each) { each.open("/psion/a", OpenMode::Create)->write("x"); });
    EXPECT_GT(std::count(contents.begin(), contents.end(), std::nullopt), 0);
}

TEST_F(SimulatedDiskTest, AReplacedFileIsTheNewOne) {
    const auto contents = afterPowerFailures([](SimulatedDisk& each) {
        each.put("/psion/a", "old");
        const std::string path = each.createTemporaryFile("/psion");
        each.open(path, OpenMode::ReadWrite)->write("new");
        each.replaceFile(path, "/psion/a");
    });
    EXPECT_EQ(std::count(contents.begin(), contents.end(), "new"), 50);
}

TEST_F(SimulatedDiskTest, AProcessThatHasEndedWritesNothing) {
    const auto file = disk.open("/psion/a", OpenMode::Create);
    file->write("before");
    disk.cutOff();
    EXPECT_EQ(disk.openFiles(), 0);
    EXPECT_THROW(file->write("after"), RunTimeError);
    EXPECT_THROW(disk.open("/psion/b", OpenMode::Create), RunTimeError);
    disk.revive();
    EXPECT_THROW(file->write("after"), RunTimeError);
    EXPECT_EQ(disk.content("/psion/a"), "before");
    EXPECT_NO_THROW(disk.open("/psion/b", OpenMode::Create));
}

TEST_F(SimulatedDiskTest, AFullDiskTakesARecordWholeOrNotAtAll) {
    faults.begin({{FaultKind::DiskFull, Direction::ToServer, 0, 5}});
    const auto file = disk.open("/psion/a", OpenMode::Create);
    file->write("1234");
    EXPECT_THROW(file->write("56"), RunTimeError);
    EXPECT_EQ(disk.content("/psion/a"), "1234");
    disk.heal();
    EXPECT_NO_THROW(file->write("56"));
}

TEST_F(SimulatedDiskTest, OtherProgramsTakeAFileAway) {
    disk.put("/psion/a", "x");
    disk.setTarget("/psion/a");
    faults.begin({{FaultKind::FileRenamed, Direction::ToServer, 1, 0}});
    const auto file = disk.open("/psion/A", OpenMode::ReadWrite);
    EXPECT_TRUE(file->isInPlace());
    file->flush();
    EXPECT_FALSE(file->isInPlace());
    EXPECT_EQ(disk.content("/psion/a"), std::nullopt);
    EXPECT_EQ(disk.content("/psion/a.moved"), "x");
}

}  // namespace
}  // namespace velmora::simulation
