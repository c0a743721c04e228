#include "organiser/replay_command.h"

#include <gtest/gtest.h>

#include <sstream>

#include "capture/capture_cases.h"
#include "capture/pcapng_writer.h"
#include "fake_line.h"
#include "organiser/local_files.h"

namespace velmora {
namespace {

class ReplayCommandTest : public testing::Test {
  protected:
    ReplayCommandTest() {
        script.sent(0, test::frame(FrameType::Connect, 0)).received(20, "?").sent(1500, test::ack(0));
        line.arrive(test::frame(FrameType::Connect, 0));
    }
    ExitStatus run(const std::string& file) {
        std::istringstream in(file);
        std::ostringstream error;
        Progress progress;
        const ExitStatus status = runReplay("-", line, {}, {in, out, error, progress});
        EXPECT_EQ(error.str(), "");
        return status;
    }
    std::string complaintOf(const std::string& file) {
        try {
            run(file);
        } catch (const LocalFileError& error) {
            return error.what();
        }
        return "";
    }

    test::CaptureScript script;
    test::FakeLine line;
    std::ostringstream out;
};

TEST_F(ReplayCommandTest, SaysThatAllAgree) {
    line.arrive(test::ack(0));
    EXPECT_EQ(run(pcapngFile(script.capture)), kDone);
    EXPECT_EQ(out.str(), "All frames of the server agree: 2.\n");
}

TEST_F(ReplayCommandTest, SaysWhereTheServerParts) {
    line.arrive(test::ack(1));
    EXPECT_EQ(run(pcapngFile(script.capture)), kDiffers);
    EXPECT_EQ(out.str(),
              "Frame 2 of the server differs, recorded at 1.500 s:\n"
              "  then: ACK 0\n"
              "  now:  ACK 1\n");
}

TEST_F(ReplayCommandTest, AServerThatSaysNothingIsNoLink) {
    EXPECT_EQ(run(pcapngFile(script.capture)), kNoLink);
    EXPECT_NE(out.str().find("  now:  no answer\n"), std::string::npos) << out.str();
}

TEST_F(ReplayCommandTest, WhatCannotBePlayedIsSaidBeforeAnythingIsSent) {
    EXPECT_EQ(complaintOf("?"), "standard input: the file is no capture (pcapng).");
    const std::string whole = pcapngFile(script.capture);
    EXPECT_EQ(complaintOf(whole.substr(0, whole.size() - 4)),
              "standard input: the file is cut off; what follows is missing.");
    script.capture.masked = true;
    EXPECT_EQ(complaintOf(pcapngFile(script.capture)), "standard input: what the Organiser sent is masked.");
    EXPECT_TRUE(line.sent.empty());
}

}  // namespace
}  // namespace velmora
