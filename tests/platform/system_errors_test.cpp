#include "platform/posix/system_errors.h"

#include <gmock/gmock.h>

#include <cerrno>

#include "support/temp_folder.h"

namespace velmora {
namespace {

using testing::HasSubstr;

TEST(SystemErrors, EveryNumberHasItsRunTimeError) {
    struct {
        int error;
        int number;
    } const rows[] = {
        {EACCES, 75}, {EPERM, 75},   {EROFS, 75},  {EISDIR, 75},      {ENXIO, 75},   {ENODEV, 75},
        {EBUSY, 70},  {ETXTBSY, 70}, {EAGAIN, 70}, {EWOULDBLOCK, 70}, {ENOSPC, 61},  {EDQUOT, 61},
        {EFBIG, 61},  {EEXIST, 58},  {EMFILE, 67}, {ENFILE, 67},      {ENOTDIR, 76}, {ENAMETOOLONG, 64},
        {EILSEQ, 64}, {EINVAL, 64},  {ELOOP, 64},  {EIO, 57},         {ENOMEM, 57},  {EXDEV, 57},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(systemError(row.error, "/x").number(), row.number) << row.error;
    }
}

TEST(SystemErrors, AMissingFileAndAMissingFolderAreToldApart) {
    const test::TempFolder folder;
    EXPECT_EQ(systemError(ENOENT, folder.path("file")).number(), 53);
    EXPECT_EQ(systemError(ENOENT, folder.path("none/file")).number(), 76);
    EXPECT_EQ(systemError(ENOENT, "/file").number(), 53);
    EXPECT_EQ(systemError(ENOENT, "file").number(), 53);
}

TEST(SystemErrors, AnOpenFileHasNoBadName) {
    EXPECT_EQ(openFileError(EINVAL, "/x").number(), 57);
    EXPECT_EQ(openFileError(ENOENT, "/x").number(), 57);
    EXPECT_EQ(openFileError(ENOSPC, "/x").number(), 61);
    EXPECT_EQ(openFileError(EBADF, "/x").number(), 52);
}

TEST(SystemErrors, TheTextNamesThePathAndWhatTheSystemSaid) {
    EXPECT_THAT(systemError(ENOSPC, "/psion/Memo").what(), HasSubstr("/psion/Memo"));
    EXPECT_THAT(systemError(ENOSPC, "/psion/Memo").what(), HasSubstr("No space"));
}

}  // namespace
}  // namespace velmora
