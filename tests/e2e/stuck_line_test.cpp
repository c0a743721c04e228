// A line that takes no bytes although many wait to be answered.
#include <gtest/gtest.h>
#include <termios.h>

#include <string>

#include "e2e/support/server_fixture.h"
#include "link/crc.h"
#include "link/frames.h"
#include "support/pty_pair.h"

namespace velmora::e2e {
namespace {

class StuckLineTest : public ServerFixture {};

TEST_F(StuckLineTest, ALineThatTakesNoBytesEndsTheServerAtTheFirstWriteThatFails) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "a write that ends early is no failure there";
    }
    test::PtyPair line;
    serverPort = line.slavePath();
    // Kept open, so that the server's own closing does not start the output again.
    const int slave = ::open(line.slavePath().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    startServer({"--trace"});
    Crc crc;
    crc.load_CRCtable();
    line.write(buildFrame(crc, FrameType::Connect, 0, "") + buildFrame(crc, FrameType::Data, 1, ""));
    ASSERT_TRUE(server->waitForError("ready"));

    ASSERT_EQ(::tcflow(slave, TCOOFF), 0);
    std::string frames;
    while (frames.size() < 4000) {
        frames += buildFrame(crc, FrameType::Data, 5, "out of order");
    }
    EXPECT_EQ(line.write(frames), frames.size());

    EXPECT_EQ(server->wait(), 1);
    const std::string& said = server->error();
    const std::size_t failure = said.find("velmorad: Send error");
    ASSERT_NE(failure, said.npos) << said;
    EXPECT_NE(said.find("did not take the bytes", failure), said.npos) << said;
    EXPECT_EQ(said.find("send \t", failure), said.npos) << said;
    ::close(slave);
}

}  // namespace
}  // namespace velmora::e2e
