#include "platform/posix/posix_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;

/// For its lifetime no file of this process may grow beyond a size: a full disk that needs no disk.
class SizeLimit {
  public:
    explicit SizeLimit(rlim_t size) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limited{size, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;
    ~SizeLimit() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }

  private:
    void (*oldHandler_)(int);
    rlimit old_{};
};

class PosixFileTest : public testing::Test {
  protected:
    /// Opens a file with this content for reading and writing.
    std::unique_ptr<PosixFile> opened(const std::string& content) {
        const std::string path = folder.write("file", content);
        return std::make_unique<PosixFile>(::open(path.c_str(), O_RDWR | O_CLOEXEC), true, path);
    }
    test::TempFolder folder;
};

TEST_F(PosixFileTest, AWriteThatFailsHalfWayLeavesTheOldLengthAndPosition) {
    const auto file = opened("12345");
    file->seek(5);
    {
        const SizeLimit limit(8);
        EXPECT_EQ(errorOf([&] { file->write("abcdef"); }), 61);
    }
    EXPECT_EQ(file->position(), 5U);
    EXPECT_EQ(folder.read("file"), "12345");
    file->write("abcdef");
    EXPECT_EQ(folder.read("file"), "12345abcdef");
}

TEST_F(PosixFileTest, AWriteThatFailsOutrightChangesNothing) {
    const auto file = opened("12345678");
    file->seek(8);
    const SizeLimit limit(8);
    EXPECT_EQ(errorOf([&] { file->write("x"); }), 61);
    EXPECT_EQ(folder.read("file"), "12345678");
}

TEST_F(PosixFileTest, OverwritingInsideTheFileNeedsNoRoom) {
    const auto file = opened("12345678");
    const SizeLimit limit(8);
    file->seek(2);
    file->write("ab");
    EXPECT_EQ(folder.read("file"), "12ab5678");
}

TEST_F(PosixFileTest, PositionsThatNoFileCanHaveAreRefused) {
    const auto file = opened("x");
    EXPECT_EQ(errorOf([&] { file->seek(std::uint64_t{1} << 63); }), 5);
    EXPECT_EQ(file->position(), 0U);
    file->seek((std::uint64_t{1} << 63) - 1);
    EXPECT_EQ(errorOf([&] { file->write("xy"); }), 61);
    EXPECT_EQ(folder.read("file"), "x");
}

TEST_F(PosixFileTest, WritingNothingIsFine) {
    const auto file = opened("x");
    file->write("");
    EXPECT_EQ(file->position(), 0U);
    EXPECT_EQ(file->size(), 1U);
}

TEST_F(PosixFileTest, ADescriptorThatTheSystemTookAwayIsABadFileNumber) {
    const std::string path = folder.write("file", "x");
    const int descriptor = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    PosixFile file(descriptor, true, path);
    ::close(descriptor);
    char byte = 0;
    EXPECT_EQ(errorOf([&] { file.read(&byte, 1); }), 52);
    EXPECT_EQ(errorOf([&] { file.close(); }), 52) << "the system's word on closing is passed on";
}

}  // namespace
}  // namespace velmora
