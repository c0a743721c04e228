#include "organiser/fault_injector.h"

#include <gtest/gtest.h>

#include <bit>
#include <set>
#include <string>
#include <vector>

#include "fake_line.h"
#include "link/crc.h"
#include "link/frames.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class FaultInjectorTest : public testing::Test {
  protected:
    void SetUp() override { crc.load_CRCtable(); }

    std::string frame(int n) {
        return buildFrame(crc, FrameType::Data, static_cast<std::uint8_t>(n % 8),
                          "frame " + std::to_string(n));
    }
    /// What leaves of 200 frames.
    std::vector<std::string> sendFrames(const FaultOptions& options) {
        test::FakeLine line;
        FaultInjector injector(line, options);
        for (int n = 0; n < 200; ++n) {
            injector.write(frame(n));
        }
        std::vector<std::string> sent;
        for (const auto& entry : line.sent) {
            sent.push_back(entry.bytes);
        }
        return sent;
    }
    /// What arrives of 200 frames, cut into pieces of any size.
    std::vector<std::string> receiveFrames(const FaultOptions& options, std::size_t piece) {
        test::FakeLine line;
        FaultInjector injector(line, options);
        std::string stream;
        for (int n = 0; n < 200; ++n) {
            stream += frame(n);
        }
        for (std::size_t i = 0; i < stream.size(); i += piece) {
            line.arrive(stream.substr(i, piece));
        }
        std::vector<std::string> received;
        while (true) {
            std::string bytes = injector.read(line.clock + 1s);
            if (bytes.empty()) {
                return received;
            }
            received.push_back(std::move(bytes));
        }
    }

    Crc crc;
};

TEST_F(FaultInjectorTest, WithoutFaultsEverythingPassesUnchanged) {
    const auto sent = sendFrames({});
    const auto received = receiveFrames({}, 7);
    ASSERT_EQ(sent.size(), 200U);
    EXPECT_EQ(sent[17], frame(17));
    EXPECT_EQ(received, sent);
    EXPECT_FALSE(FaultOptions{}.any());
}

TEST_F(FaultInjectorTest, SameSeedSameFaults) {
    const FaultOptions options{.drop = 0.1, .corrupt = 0.1, .duplicate = 0.1, .seed = 42};
    FaultOptions other = options;
    other.seed = 43;
    EXPECT_EQ(sendFrames(options), sendFrames(options));
    EXPECT_NE(sendFrames(options), sendFrames(other));
}

TEST_F(FaultInjectorTest, FateOfAFrameDoesNotDependOnHowItsBytesArrive) {
    const FaultOptions options{.drop = 0.1, .corrupt = 0.1, .duplicate = 0.1, .seed = 42};
    EXPECT_EQ(receiveFrames(options, 1), receiveFrames(options, 1000));
}

TEST_F(FaultInjectorTest, DirectionsHaveDifferentFates) {
    const FaultOptions options{.drop = 0.5};
    EXPECT_NE(sendFrames(options), receiveFrames(options, 100));
}

TEST_F(FaultInjectorTest, CertainLossLetsNothingThrough) {
    EXPECT_TRUE(sendFrames({.drop = 1}).empty());
    EXPECT_TRUE(receiveFrames({.drop = 1}, 100).empty());
}

TEST_F(FaultInjectorTest, CertainDoublingSendsEachFrameTwice) {
    const auto sent = sendFrames({.duplicate = 1});
    ASSERT_EQ(sent.size(), 400U);
    EXPECT_EQ(sent[0], sent[1]);
    EXPECT_EQ(sent[2], frame(1));
}

TEST_F(FaultInjectorTest, DamageIsOneBitOfEachFrame) {
    const auto sent = sendFrames({.corrupt = 1});
    ASSERT_EQ(sent.size(), 200U);
    for (int n = 0; n < 200; ++n) {
        const std::string good = frame(n);
        int bits = 0;
        for (std::size_t i = 0; i < good.size(); ++i) {
            bits += std::popcount(static_cast<unsigned char>(sent[static_cast<std::size_t>(n)][i] ^ good[i]));
        }
        EXPECT_EQ(bits, 1) << n;
    }
}

TEST_F(FaultInjectorTest, NothingIsNotDamaged) {
    FaultOptions options;
    options.corrupt = 1;
    test::FakeLine line;
    FaultInjector injector(line, options);
    injector.write("");
    ASSERT_EQ(line.sent.size(), 1U);
    EXPECT_EQ(line.sent[0].bytes, "");
}

TEST_F(FaultInjectorTest, ProbabilityIsAboutWhatWasAskedFor) {
    const std::size_t left = sendFrames({.drop = 0.25}).size();
    EXPECT_GT(left, 130U);
    EXPECT_LT(left, 170U);
}

TEST_F(FaultInjectorTest, ChangingOneProbabilityKeepsTheOtherDecisions) {
    const auto dropped = sendFrames({.drop = 0.2});
    const auto both = sendFrames({.drop = 0.2, .duplicate = 1});
    const std::set<std::string> once(dropped.begin(), dropped.end());
    const std::set<std::string> twice(both.begin(), both.end());
    EXPECT_EQ(once, twice);
    EXPECT_EQ(both.size(), 2 * dropped.size());
}

TEST_F(FaultInjectorTest, DelayHoldsFramesBackInBothDirections) {
    test::FakeLine line;
    FaultInjector injector(line, {.delay = 80ms});
    injector.write(frame(1));
    line.arrive(frame(2), 10ms);
    EXPECT_TRUE(line.sent.empty());
    EXPECT_EQ(injector.read(50ms), "");
    EXPECT_TRUE(line.sent.empty());
    EXPECT_EQ(injector.read(1s), frame(2));
    EXPECT_EQ(line.clock, 90ms);
    ASSERT_EQ(line.sent.size(), 1U);
    EXPECT_EQ(line.sent[0].at, 80ms);
}

TEST_F(FaultInjectorTest, CountsWhatItDoes) {
    test::FakeLine line;
    FaultInjector injector(line, {.drop = 1, .corrupt = 1, .duplicate = 1});
    injector.write(frame(1));
    EXPECT_EQ(injector.sent().frames, 1U);
    EXPECT_EQ(injector.sent().dropped, 1U);
    EXPECT_EQ(injector.sent().duplicated, 0U);
    EXPECT_EQ(injector.received().frames, 0U);
}

}  // namespace
}  // namespace velmora
