// What is on the disk when the file layer says that it is.
#include <gmock/gmock.h>

#include <cerrno>

#include "platform/posix/posix_files.h"
#include "support/disk_calls.h"
#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;
using testing::ElementsAre;
using testing::IsEmpty;

class PosixFlushTest : public testing::Test {
  protected:
    PosixFlushTest() { calls = {}; }
    ~PosixFlushTest() override { calls = {}; }

    test::TempFolder folder;
    test::DiskCalls& calls = test::diskCalls();
    PosixFiles files{folder.path()};
};

TEST_F(PosixFlushTest, AReplacedFileIsOnTheDiskBeforeItsNameAndThenTheName) {
    const std::string fresh = folder.write("new", "new");
    const std::string old = folder.write("old", "old");
    files.replaceFile(fresh, old);
    EXPECT_THAT(calls.made,
                ElementsAre("flush " + fresh, "rename " + fresh + " to " + old, "flush " + folder.path()));
}

TEST_F(PosixFlushTest, ANewFileIsOnTheDiskWithItsName) {
    const auto file = files.open(folder.path("new"), OpenMode::CreateNew);
    file->write("x");
    EXPECT_THAT(calls.made, IsEmpty()) << "records are not flushed one by one";
    file->flush();
    EXPECT_THAT(calls.made, ElementsAre("flush " + folder.path("new"), "flush " + folder.path()));
}

TEST_F(PosixFlushTest, AFailureOfTheDiskIsTold) {
    const auto file = files.open(folder.path("new"), OpenMode::CreateNew);
    calls.failingPath = folder.path("new");
    calls.flushError = EIO;
    EXPECT_EQ(errorOf([&] { file->flush(); }), 57);
    calls.flushError = ENOSPC;
    EXPECT_EQ(errorOf([&] { file->flush(); }), 61);
    calls.failingPath = folder.path();
    EXPECT_EQ(errorOf([&] { file->flush(); }), 61) << "the name is not on the disk";
}

TEST_F(PosixFlushTest, ADiskThatFailsBeforeTheRenameLeavesTheOldFile) {
    const std::string fresh = folder.write("new", "new");
    const std::string old = folder.write("old", "old");
    calls.failingPath = fresh;
    calls.flushError = EIO;
    EXPECT_EQ(errorOf([&] { files.replaceFile(fresh, old); }), 57);
    EXPECT_EQ(folder.read("old"), "old");
}

TEST_F(PosixFlushTest, AFileThatIsAboutToTakeItsNameIsNoLeftover) {
    const std::string fresh = files.createTemporaryFile(folder.path());
    files.open(fresh, OpenMode::ReadWrite)->write("new");
    PosixFiles another{folder.path()};
    calls.meanwhile = [&] { another.removeLeftovers(folder.path()); };
    files.replaceFile(fresh, folder.path("saved"));
    EXPECT_EQ(folder.read("saved"), "new");
}

TEST_F(PosixFlushTest, AFileThatAnotherProgramLocksTakesItsNameAllTheSame) {
    const std::string fresh = folder.write("new", "new");
    const auto locked = files.open(fresh, OpenMode::ReadWrite);
    files.replaceFile(fresh, folder.path("saved"));
    EXPECT_EQ(folder.read("saved"), "new");
}

TEST_F(PosixFlushTest, AFileSystemThatKeepsNothingBackIsFine) {
    const auto file = files.open(folder.path("new"), OpenMode::CreateNew);
    for (const std::string& path : {folder.path("new"), folder.path()}) {
        calls.failingPath = path;
        calls.flushError = EINVAL;
        EXPECT_EQ(errorOf([&] { file->flush(); }), 0);
    }
}

}  // namespace
}  // namespace velmora
