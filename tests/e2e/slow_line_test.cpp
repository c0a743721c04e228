// A line as slow as the Organiser's own settings offer: nothing is sent twice because it was still on its
// way.
#include <gtest/gtest.h>

#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

std::size_t count(const std::string& text, const std::string& wanted) {
    std::size_t found = 0;
    for (std::size_t at = text.find(wanted); at != text.npos; at = text.find(wanted, at + wanted.size())) {
        ++found;
    }
    return found;
}

/// Both programs and the cable between them run at the rate of the parameter.
class SlowLineTest : public ServerFixture, public testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        connectCable({"--baud", rate});
        startServer({"--baud", rate, "--trace", "--trace-file", serverPath(home / "trace")});
    }
    /// Runs the Organiser to its end and expects that it succeeds and repeats nothing.
    void run(const std::vector<std::string>& command) {
        const Finished done = organiser(command, {"--baud", rate, "--trace"});
        EXPECT_EQ(done.status, 0) << done.output << done.error;
        // Each request has one reply.
        EXPECT_EQ(count(done.error, "send  DATA"), count(done.error, "recv  DATA")) << done.error;
    }
    /// Ends the server and expects that it repeated nothing and met no error.
    void expectNoRepeatsOfTheServer() {
        stopServer();
        EXPECT_EQ(server->wait(), 0) << server->error();
        const std::string trace = contentsOf(home / "trace");
        EXPECT_EQ(count(trace, "resend"), 0U) << trace;
        EXPECT_EQ(count(trace, "PLP_ERROR"), 0U) << trace;
    }

    std::string rate = std::to_string(GetParam());
};

/// A full block of bytes that all take twice their room on the line, and one of every byte.
TEST_P(SlowLineTest, BlocksOfAnyBytesAreSavedAndLoadedWithoutARepeat) {
    std::string block(250, '\x10');
    for (int i = 0; i < 250; ++i) {
        block += static_cast<char>(i);
    }
    writeFile(home / "local", block);
    run({"save", organiserPath(home / "local"), "--as", "BLOCK", "--type", "block:2"});
    EXPECT_EQ(contentsOf(psion / "Block.ob2").substr(6), block);
    run({"load", "BLOCK", "--type", "block:2", "-o", organiserPath(home / "loaded")});
    EXPECT_EQ(contentsOf(home / "loaded"), block);
    expectNoRepeatsOfTheServer();
}

INSTANTIATE_TEST_SUITE_P(Rates, SlowLineTest, testing::Values(1200, 2400, 9600),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace velmora::e2e
