#include "ui/server_log.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using Json = nlohmann::json;
using Lines = std::vector<std::string>;
using std::chrono::milliseconds;

class ServerLogTest : public testing::Test {
  protected:
    ServerLogTest() {
        time.local = {2026, 11, 22, 9, 5, 7};
        time.universal = {2026, 11, 22, 8, 5, 7};
    }

    ServerLog make(LogFormat format, bool quiet = false) {
        return {[this](const std::string& line) { output.push_back(line); },
                [this](const std::string& line) { errors.push_back(line); }, time, format, quiet};
    }
    /// A whole transfer, with news at each of the times since its beginning.
    void transfer(ServerLog& log, const std::vector<int>& times, const TransferEnd& end = {}) {
        Transfer memo;
        memo.name = "M\xE9mo.odb";
        memo.path = "/psion/M\xC3\xA9mo.odb";
        memo.direction = TransferDirection::Load;
        memo.size = 300;
        log.transferBegan(memo);
        for (const int moment : times) {
            memo.bytes += 100;
            memo.duration = milliseconds{moment};
            log.transferMoved(memo);
        }
        log.transferEnded(memo, end);
    }

    test::FakeTime time;
    Lines output;
    Lines errors;
};

TEST_F(ServerLogTest, PeopleReadLines) {
    ServerLog log = make(LogFormat::Text);
    log.message("Waiting for link");
    log.error("COM5 failed");
    EXPECT_EQ(output, Lines{"Waiting for link"});
    EXPECT_EQ(errors, Lines{"velmorad: COM5 failed"});
}

#ifndef _WIN32
TEST_F(ServerLogTest, ATransferIsOneLineWithTheTimeOfDay) {
    ServerLog log = make(LogFormat::Text);
    transfer(log, {500, 1'000, 1'500});
    EXPECT_EQ(output, Lines{"09:05:07 loaded M\xC3\xA9mo.odb 300 bytes in 1.5 s (200 bytes/s)"});
}
#endif

TEST_F(ServerLogTest, WhatANameHoldsDoesNotBreakTheLine) {
    ServerLog log = make(LogFormat::Text);
    Transfer odd;
    odd.name = "A\nB\x1B[2J";
    log.transferEnded(odd, {TransferResult::Refused, 189, "no such file"});
    ASSERT_EQ(output.size(), 1U);
    EXPECT_EQ(output[0].find('\n'), std::string::npos);
    EXPECT_EQ(output[0].find('\x1B'), std::string::npos);
}

TEST_F(ServerLogTest, AQuietLogHasErrorsOnly) {
    for (const LogFormat format : {LogFormat::Text, LogFormat::Json}) {
        ServerLog log = make(format, true);
        log.message("Waiting for link");
        transfer(log, {2'000});
        log.error("COM5 failed");
    }
    EXPECT_TRUE(output.empty());
    EXPECT_EQ(errors.size(), 2U);
}

TEST_F(ServerLogTest, ProgramsReadObjects) {
    ServerLog log = make(LogFormat::Json);
    log.message("Waiting for \"link\"");
    log.error("COM5 failed");
    EXPECT_EQ(output, Lines{"{\"time\":\"2026-11-22T08:05:07Z\",\"event\":\"message\","
                            "\"text\":\"Waiting for \\\"link\\\"\"}"});
    EXPECT_EQ(errors,
              Lines{"{\"time\":\"2026-11-22T08:05:07Z\",\"event\":\"error\",\"text\":\"COM5 failed\"}"});
}

TEST_F(ServerLogTest, ProgramsFollowATransferSecondBySecond) {
    ServerLog log = make(LogFormat::Json);
    transfer(log, {999, 1'000, 1'500, 2'100}, {TransferResult::Incomplete, 186, "disk full"});
    ASSERT_EQ(output.size(), 4U);
    const Json began = Json::parse(output[0]);
    EXPECT_EQ(began["event"], "transfer-begin");
    EXPECT_EQ(began["name"], "M\xC3\xA9mo.odb");
    EXPECT_EQ(began["direction"], "load");
    EXPECT_EQ(began["kind"], "data");
    EXPECT_EQ(began["size"], 300);
    EXPECT_FALSE(began.contains("bytes"));
    const Json progress = Json::parse(output[1]);
    EXPECT_EQ(progress["event"], "transfer-progress");
    EXPECT_EQ(progress["bytes"], 200);
    EXPECT_EQ(progress["seconds"], 1.0);
    EXPECT_EQ(Json::parse(output[2])["seconds"], 2.1);
    const Json ended = Json::parse(output[3]);
    EXPECT_EQ(ended["event"], "transfer-end");
    EXPECT_EQ(ended["bytes"], 400);
    EXPECT_EQ(ended["result"], "incomplete");
    EXPECT_EQ(ended["code"], 186);
    EXPECT_EQ(ended["reason"], "disk full");
    EXPECT_EQ(ended["time"], "2026-11-22T08:05:07Z");
}

TEST_F(ServerLogTest, ProgramsReadWhatWasReplacedAndWhichFormulasChanged) {
    ServerLog log = make(LogFormat::Json);
    Transfer sums;
    log.transferEnded(sums, {});
    EXPECT_FALSE(Json::parse(output.at(0)).contains("earlierCopy"));
    EXPECT_FALSE(Json::parse(output.at(0)).contains("remarks"));
    sums.earlierCopy = "/copies/Sums.wks";
    sums.remarks = {"A1: =A2-(B2-C2) comes back as =A2-B2-C2", "B1: =1"};
    log.transferEnded(sums, {});
    EXPECT_EQ(Json::parse(output.at(1))["earlierCopy"], "/copies/Sums.wks");
    EXPECT_EQ(Json::parse(output.at(1))["remarks"], Json(sums.remarks));
}

TEST_F(ServerLogTest, EachTransferHasItsOwnSeconds) {
    ServerLog log = make(LogFormat::Json);
    transfer(log, {5'000});
    output.clear();
    transfer(log, {1'000});
    ASSERT_EQ(output.size(), 3U);
    EXPECT_EQ(Json::parse(output[1])["seconds"], 1.0);
}

TEST_F(ServerLogTest, WhatIsNotKnownIsLeftOut) {
    ServerLog log = make(LogFormat::Json);
    log.transferBegan({});
    EXPECT_FALSE(Json::parse(output.at(0)).contains("size"));
}

#ifndef _WIN32
TEST_F(ServerLogTest, ANameOfTheSystemThatIsNoUtf8StillMakesAnObject) {
    ServerLog log = make(LogFormat::Json);
    Transfer odd;
    odd.path = "/psion/\xFF.odb";
    log.transferBegan(odd);
    EXPECT_EQ(Json::parse(output.at(0))["path"], "/psion/\xEF\xBF\xBD.odb");
}
#endif

}  // namespace
}  // namespace velmora
