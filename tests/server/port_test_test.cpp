#include "server/port_test.h"

#include <gtest/gtest.h>

#include <string>

#include "server/port_status.h"
#include "support/fake_timers.h"
#include "support/no_yield.h"
#include "support/scripted_port.h"

namespace velmora {
namespace {

using test::FakeTime;
using test::milliseconds;

class PortTest : public testing::Test {
  protected:
    PortTest() {
        yield.onYield = [this] { time.advance(milliseconds(1)); };
    }
    std::int32_t run(bool probe = true) { return testPort(port, 7, probe, time, yield); }
    void answer(const std::string& bytes) {
        port.onSend = [this, bytes](const std::string&) { port.input = bytes; };
    }

    FakeTime time;
    test::NoYield yield;
    test::ScriptedPort port;
};

struct FlagRow {
    std::int16_t flags;
    bool dontTestModem;
    bool probes;
};

TEST(PortTestFlags, BitFourHasNoEffect) {
    for (const FlagRow& row :
         {FlagRow{0, false, true}, FlagRow{0, true, false}, FlagRow{2, false, true}, FlagRow{2, true, true},
          FlagRow{4, false, true}, FlagRow{4, true, false}, FlagRow{6, false, true}, FlagRow{6, true, true},
          FlagRow{-1, true, true}, FlagRow{1, true, false}}) {
        EXPECT_EQ(portTestProbes(row.flags, row.dontTestModem), row.probes)
            << row.flags << " " << row.dontTestModem;
    }
}

TEST_F(PortTest, ASilentPortIsAvailableAfterAQuarterOfASecond) {
    EXPECT_EQ(run(), kStatusAvailable);
    EXPECT_EQ(port.sent, std::vector<std::string>{"AT\r"});
    EXPECT_NEAR(time.secondsSinceMidnight() - 40'000, 0.25, 0.002);
    EXPECT_EQ(port.number, 7);
    EXPECT_FALSE(port.open);
}

TEST_F(PortTest, WithoutTheProbeNothingIsWritten) {
    EXPECT_EQ(run(false), kStatusAvailable);
    EXPECT_TRUE(port.sent.empty());
    EXPECT_EQ(port.opened, 1);
    EXPECT_FALSE(port.open);
}

struct AnswerRow {
    const char* name;
    std::string answer;
    std::int32_t status;
};

class PortAnswer : public PortTest, public testing::WithParamInterface<AnswerRow> {};

TEST_P(PortAnswer, IsJudgedByItsFirstBytes) {
    answer(GetParam().answer);
    EXPECT_EQ(run(), GetParam().status);
    EXPECT_FALSE(port.open);
}

INSTANTIATE_TEST_SUITE_P(Answers, PortAnswer,
                         testing::Values(AnswerRow{"Echo", "AT\r", kStatusModem},
                                         AnswerRow{"Ok", "\r\nOK\r\n", kStatusModem},
                                         AnswerRow{"OkAtTheTenth", "12345678OK", kStatusModem},
                                         AnswerRow{"OkTooLate", "123456789OK", kStatusDevice},
                                         AnswerRow{"Other", "hello", kStatusDevice},
                                         AnswerRow{"SmallLetters", "at ok", kStatusDevice},
                                         AnswerRow{"OneLetterOfTheEcho", "A", kStatusDevice},
                                         AnswerRow{"ZeroByte", std::string(1, '\0'), kStatusDevice}),
                         [](const auto& row) { return row.param.name; });

TEST_F(PortTest, AnEchoThatArrivesByCharactersIsADevice) {
    std::string echo = "AT\r";
    yield.onYield = [&] {
        time.advance(milliseconds(10));
        port.input += echo.substr(0, 1);
        echo.erase(0, 1);
    };
    EXPECT_EQ(run(), kStatusDevice);
}

TEST_F(PortTest, ALateAnswerWithinTheTimeCounts) {
    yield.onYield = [&] {
        time.advance(milliseconds(10));
        if (time.secondsSinceMidnight() > 40'000.2) {
            port.input = "OK";
        }
    };
    EXPECT_EQ(run(), kStatusModem);
}

TEST_F(PortTest, AnAnswerAfterTheTimeIsMissed) {
    yield.onYield = [&] {
        time.advance(milliseconds(10));
        if (time.secondsSinceMidnight() > 40'000.27) {
            port.input = "OK";
        }
    };
    EXPECT_EQ(run(), kStatusAvailable);
}

struct OpenRow {
    const char* name;
    std::int32_t error;
    std::int32_t status;
};

class PortOpening : public PortTest, public testing::WithParamInterface<OpenRow> {};

TEST_P(PortOpening, FailsWithItsStatus) {
    port.openError = CommError(GetParam().error, "no", "OpenPort");
    EXPECT_EQ(run(), GetParam().status);
    EXPECT_TRUE(port.sent.empty());
    EXPECT_EQ(port.closed, 0);
}

INSTANTIATE_TEST_SUITE_P(Errors, PortOpening,
                         testing::Values(OpenRow{"NoSuchPort", kCommInvalidPort, kStatusNotAccessible},
                                         OpenRow{"Held", kCommAlreadyOpen, kStatusInUse},
                                         OpenRow{"Settings", kCommInvalidSettings, kStatusError},
                                         OpenRow{"Other", kCommFailed, kStatusError}),
                         [](const auto& row) { return row.param.name; });

TEST_F(PortTest, AFailedWriteIsAnErrorAndThePortIsClosed) {
    port.sendError = CommError(kCommFailed, "no", "Send");
    EXPECT_EQ(run(), kStatusError);
    EXPECT_FALSE(port.open);
    EXPECT_EQ(port.closed, 1);
}

TEST_F(PortTest, AFailedReadIsAnErrorAndThePortIsClosed) {
    port.readError = CommError(kCommFailed, "no", "GetInput");
    EXPECT_EQ(run(), kStatusError);
    EXPECT_FALSE(port.open);
}

TEST_F(PortTest, AroundMidnightNothingIsRead) {
    for (const double now : {0.0, 0.5, 1.0}) {
        time.midnightOffset = now;
        answer("OK");
        EXPECT_EQ(run(), kStatusAvailable) << now;
        EXPECT_EQ(yield.calls, 0);
    }
}

TEST_F(PortTest, ClockThatPassesMidnightEndsTheWait) {
    time.midnightOffset = 86'399.9;
    yield.onYield = [&] {
        time.advance(milliseconds(50));
        if (yield.calls == 3) {
            time.midnightOffset -= 86'400;
        }
    };
    EXPECT_EQ(run(), kStatusAvailable);
    EXPECT_EQ(yield.calls, 3);
}

TEST_F(PortTest, AClockSetBackEndsTheWait) {
    yield.onYield = [&] { time.midnightOffset -= 3600; };
    EXPECT_EQ(run(), kStatusAvailable);
    EXPECT_EQ(yield.calls, 1);
}

TEST_F(PortTest, AClockThatStandsStillDoesNotHang) {
    yield.onYield = {};
    EXPECT_EQ(run(), kStatusAvailable);
    EXPECT_GT(yield.calls, 1000);
}

}  // namespace
}  // namespace velmora
