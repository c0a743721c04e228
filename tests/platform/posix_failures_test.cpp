// What the file layer makes of system calls that fail or are interrupted.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>

#include "platform/posix/folder_reader.h"
#include "platform/posix/posix_files.h"
#include "support/failing_file_calls.h"
#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;
using test::FailingCall;
using testing::ElementsAre;
using testing::IsEmpty;

class PosixFailuresTest : public testing::Test {
  protected:
    std::unique_ptr<File> opened(const std::string& name, OpenMode mode = OpenMode::ReadWrite) {
        return files.open(folder.path(name), mode);
    }
    /// The number of the error with which "new" replaces "old".
    int replaceError() {
        folder.write("old", "old");
        const std::string fresh = folder.write("new", "new");
        return errorOf([&] { files.replaceFile(fresh, folder.path("old")); });
    }

    test::TempFolder folder;
    PosixFiles files{folder.path()};
};

// Opening.

TEST_F(PosixFailuresTest, ASignalThatInterruptsOpeningDoesNoHarm) {
    folder.write("file", "content");
    const FailingCall open("open", EINTR, 2);
    const FailingCall lock("flock", EINTR, 2);
    const FailingCall empty("ftruncate", EINTR, 2);
    EXPECT_EQ(opened("file", OpenMode::Create)->size(), 0U);
}

TEST_F(PosixFailuresTest, AFileOnADiskWithoutLocksOpens) {
    folder.write("file", "content");
    const FailingCall lock("flock", ENOLCK);
    EXPECT_EQ(opened("file")->size(), 7U);
}

TEST_F(PosixFailuresTest, AFileThatTheSystemTellsNothingOfIsNotOpened) {
    folder.write("file", "content");
    const FailingCall look("fstat", EIO);
    EXPECT_EQ(errorOf([&] { opened("file", OpenMode::Create); }), 57);
    EXPECT_EQ(folder.read("file"), "content");
}

TEST_F(PosixFailuresTest, AFileThatCannotBeEmptiedIsNotOpenedAndKept) {
    folder.write("file", "content");
    const FailingCall empty("ftruncate", EIO);
    EXPECT_EQ(errorOf([&] { opened("file", OpenMode::Create); }), 57);
    EXPECT_EQ(folder.read("file"), "content");
}

// Reading and writing.

TEST_F(PosixFailuresTest, InterruptedTransfersGoOn) {
    folder.write("file");
    const auto file = opened("file");
    const FailingCall write("pwrite", EINTR, 2);
    const FailingCall read("pread", EINTR, 2);
    file->write("content");
    file->seek(0);
    std::array<char, 7> bytes{};
    EXPECT_EQ(file->read(bytes.data(), bytes.size()), 7U);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "content");
}

TEST_F(PosixFailuresTest, AReadThatFailsIsToldAndLeavesThePosition) {
    folder.write("file", "content");
    const auto file = opened("file");
    file->seek(3);
    const FailingCall read("pread", EIO);
    char byte = 0;
    EXPECT_EQ(errorOf([&] { file->read(&byte, 1); }), 57);
    EXPECT_EQ(file->position(), 3U);
}

TEST_F(PosixFailuresTest, ADiskThatTakesNothingIsFull) {
    folder.write("file", "content");
    const auto file = opened("file");
    const FailingCall write("pwrite", 0, 100);
    EXPECT_EQ(errorOf([&] { file->write("x"); }), 61);
    EXPECT_EQ(folder.read("file"), "content");
}

TEST_F(PosixFailuresTest, ASignalDoesNotKeepAFailedWriteFromBeingUndone) {
    folder.write("file", "content");
    const auto file = opened("file");
    file->seek(10);
    const FailingCall full("pwrite", ENOSPC);
    const FailingCall interrupted("ftruncate", EINTR, 2);
    EXPECT_EQ(errorOf([&] { file->write("x"); }), 61);
    EXPECT_EQ(folder.read("file"), "content");
}

TEST_F(PosixFailuresTest, TheSizeOfAFileThatTheSystemTellsNothingOfIsAnError) {
    folder.write("file");
    const auto file = opened("file");
    const FailingCall look("fstat", EIO, 2);
    EXPECT_EQ(errorOf([&] { file->size(); }), 57);
    EXPECT_FALSE(file->isInPlace());
}

TEST_F(PosixFailuresTest, AFileThatASignalInterruptsInClosingIsClosed) {
    folder.write("file");
    const auto file = opened("file");
    const FailingCall close("close", EINTR);
    EXPECT_EQ(errorOf([&] { file->close(); }), 0);
}

TEST_F(PosixFailuresTest, BytesThatAreLostInClosingAreTold) {
    folder.write("file");
    const auto file = opened("file");
    const FailingCall close("close", ENOSPC);
    EXPECT_EQ(errorOf([&] { file->close(); }), 61);
}

// Replacing and deleting.

TEST_F(PosixFailuresTest, AFileThatCannotGetTheRightsOfTheOldOneDoesNotReplaceIt) {
    std::filesystem::permissions(folder.write("old", "old"), std::filesystem::perms(0600));
    const FailingCall rights("chmod", EPERM);
    EXPECT_EQ(replaceError(), 75);
    EXPECT_EQ(folder.read("old"), "old");
}

TEST_F(PosixFailuresTest, OnAFileSystemThatKeepsNoRightsTheOldFileIsReplaced) {
    const FailingCall rights("chmod", EPERM);
    EXPECT_EQ(replaceError(), 0);
    EXPECT_EQ(folder.read("old"), "new");
}

TEST_F(PosixFailuresTest, AnotherUsersFileIsReplacedAllTheSame) {
    const FailingCall owner("chown", EPERM, 2);
    EXPECT_EQ(replaceError(), 0);
    EXPECT_EQ(folder.read("old"), "new");
}

TEST_F(PosixFailuresTest, AFileThatCannotBeReadBackDoesNotReplaceTheOldOne) {
    const FailingCall open("open", EIO);
    EXPECT_EQ(replaceError(), 57);
    EXPECT_EQ(folder.read("old"), "old");
}

TEST_F(PosixFailuresTest, ANameThatIsTakenByAFolderMeanwhileIsNotReplaced) {
    // No rename puts a file in the place of a folder that holds something.
    folder.makeFolder("old/sub");
    const std::string fresh = folder.write("new", "new");
    EXPECT_EQ(errorOf([&] { files.replaceFile(fresh, folder.path("old")); }), 75);
    EXPECT_EQ(folder.read("new"), "new");
}

TEST_F(PosixFailuresTest, AFileThatCannotBeDeletedIsToldAndKept) {
    folder.write("file", "content");
    const FailingCall remove("unlink", EROFS);
    EXPECT_EQ(errorOf([&] { files.deleteFile(folder.path("file")); }), 75);
    EXPECT_EQ(folder.read("file"), "content");
}

// Folders.

TEST_F(PosixFailuresTest, ATemporaryFileThatCannotGetItsRightsIsNotLeft) {
    const FailingCall rights("fchmod", EIO);
    EXPECT_EQ(errorOf([&] { files.createTemporaryFile(folder.path()); }), 57);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PosixFailuresTest, AFileSystemThatKeepsNoRightsTakesNewFiles) {
    // FAT as Linux mounts it says EPERM to what it cannot keep.
    for (const int error : {EPERM, EOPNOTSUPP, ENOSYS}) {
        const FailingCall rights("fchmod", error);
        const std::string path = files.createTemporaryFile(folder.path());
        EXPECT_TRUE(files.fileExists(path)) << error;
    }
}

TEST_F(PosixFailuresTest, AFolderThatCannotBeReadToItsEndIsNoShorterFolder) {
    folder.write("a");
    folder.write("b");
    const FailingCall read("readdir", EIO, 1, 1);
    EXPECT_EQ(errorOf([&] { readFolder(folder.path(), [](std::string_view, EntryKind) { return true; }); }),
              57);
}

TEST_F(PosixFailuresTest, ALeftoverThatMayNotBeOpenedStays) {
    const std::string path = files.createTemporaryFile(folder.path());
    const FailingCall open("open", EACCES);
    files.removeLeftovers(folder.path());
    EXPECT_THAT(folder.names(), ElementsAre(std::filesystem::path(path).filename()));
}

}  // namespace
}  // namespace velmora
