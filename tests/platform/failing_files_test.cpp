#include "support/failing_files.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"
#include "support/run_time_errors.h"

namespace velmora {
namespace {

using test::errorOf;
using test::FileCall;

class FailingFilesTest : public testing::Test {
  protected:
    test::MemoryFiles disk;
    test::FailingFiles files{disk};
};

TEST_F(FailingFilesTest, ForwardUntilToldOtherwise) {
    files.open("/tmp/a", OpenMode::Create)->write("x");
    EXPECT_EQ(disk.content("/tmp/a"), "x");
}

TEST_F(FailingFilesTest, FailOnceAtTheNamedCall) {
    const auto file = files.open("/tmp/a", OpenMode::Create);
    file->write("1");
    files.failAtCall(FileCall::Write, 2, ErrorNumber::DeviceIoError);
    file->write("2");
    EXPECT_EQ(errorOf([&] { file->write("3"); }), 57);
    file->write("4");
    EXPECT_EQ(disk.content("/tmp/a"), "124");
    EXPECT_EQ(files.calls(FileCall::Write), 4);
}

TEST_F(FailingFilesTest, FailEveryWriteBeyondTheRoom) {
    files.failAfterBytes(3, ErrorNumber::DiskFull);
    const auto file = files.open("/tmp/a", OpenMode::Create);
    file->write("12");
    EXPECT_EQ(errorOf([&] { file->write("34"); }), 61);
    EXPECT_EQ(errorOf([&] { file->write("34"); }), 61);
    files.healthy();
    file->write("34");
    EXPECT_EQ(disk.content("/tmp/a"), "1234");
}

TEST_F(FailingFilesTest, DoNotReachTheDiskWithAFailedCall) {
    disk.addFile("/tmp/a");
    files.failAtCall(FileCall::Delete, 1, ErrorNumber::PermissionDenied);
    EXPECT_EQ(errorOf([&] { files.deleteFile("/tmp/a"); }), 70);
    EXPECT_TRUE(disk.fileExists("/tmp/a"));
}

}  // namespace
}  // namespace velmora
