#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <memory>

#include "apps/non_blocking_output.h"

namespace velmora {
namespace {

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream streamOn(int descriptor) {
    return {::fdopen(descriptor, "w"), std::fclose};
}

/// Writes until nothing is taken; a call that waits lets the test run into its time limit.
std::size_t fill(const LineOutput::Write& write) {
    std::size_t total = 0;
    for (const std::size_t size : {1000, 1}) {
        const std::string bytes(size, 'x');
        for (std::size_t taken = 1; taken > 0 && total < 10'000'000;) {
            taken = write(bytes);
            total += taken;
        }
    }
    return total;
}

TEST(NonBlockingOutputTest, AFullPipeTakesNothingUntilItIsRead) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const Stream stream = streamOn(ends[1]);
    const LineOutput::Write write = nonBlockingOutput(stream.get());
    const std::size_t held = fill(write);
    EXPECT_GT(held, 0U);
    EXPECT_EQ(write("more"), 0U);
    EXPECT_EQ(::fcntl(ends[1], F_GETFL) & O_NONBLOCK, 0) << "others have the pipe too";
    std::string read(held, '\0');
    ASSERT_GT(::read(ends[0], read.data(), read.size()), 0);
    EXPECT_EQ(write("more"), 4U);
    ::close(ends[0]);
}

TEST(NonBlockingOutputTest, AFullSocketTakesNothing) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
    const Stream stream = streamOn(ends[1]);
    const LineOutput::Write write = nonBlockingOutput(stream.get());
    EXPECT_GT(fill(write), 0U);
    EXPECT_EQ(write("more"), 0U);
    ::close(ends[0]);
}

TEST(NonBlockingOutputTest, AFullTerminalTakesNothing) {
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(master >= 0 && ::grantpt(master) == 0 && ::unlockpt(master) == 0);
    const Stream stream = streamOn(::open(::ptsname(master), O_RDWR | O_NOCTTY));
    const LineOutput::Write write = nonBlockingOutput(stream.get());
    EXPECT_GT(fill(write), 0U);
    EXPECT_EQ(write("more"), 0U);
    ::close(master);
}

TEST(NonBlockingOutputTest, AFullDiskTakesNothing) {
    const Stream stream = streamOn(::open("/dev/full", O_WRONLY));
    EXPECT_EQ(nonBlockingOutput(stream.get())("more"), 0U);
}

TEST(NonBlockingOutputTest, APipeWhoseReaderHasGoneTakesEverything) {
    ::signal(SIGPIPE, SIG_IGN);
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const Stream stream = streamOn(ends[1]);
    const LineOutput::Write write = nonBlockingOutput(stream.get());
    ::close(ends[0]);
    EXPECT_EQ(write("one"), 3U);
    EXPECT_EQ(nonBlockingOutput(stream.get())("two"), 3U);
    ::signal(SIGPIPE, SIG_DFL);
}

TEST(NonBlockingOutputTest, AFileIsWrittenWhereItsOwnerIs) {
    const Stream file(std::tmpfile(), std::fclose);
    ASSERT_NE(file, nullptr);
    std::fputs("before ", file.get());
    std::fflush(file.get());
    EXPECT_EQ(nonBlockingOutput(file.get())("after"), 5U);
    std::array<char, 20> text{};
    EXPECT_EQ(::pread(::fileno(file.get()), text.data(), text.size(), 0), 12);
    EXPECT_STREQ(text.data(), "before after");
}

}  // namespace
}  // namespace velmora
