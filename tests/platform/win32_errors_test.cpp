#include "platform/win32/win32_errors.h"

#include <gmock/gmock.h>
#include <windows.h>

#include "support/temp_folder.h"

namespace velmora {
namespace {

using testing::HasSubstr;

TEST(Win32Errors, EveryNumberHasItsRunTimeError) {
    struct {
        DWORD error;
        int number;
    } const rows[] = {
        {ERROR_FILE_NOT_FOUND, 53},
        {ERROR_PATH_NOT_FOUND, 76},
        {ERROR_INVALID_DRIVE, 76},
        {ERROR_DIRECTORY, 76},
        {ERROR_BAD_NETPATH, 76},
        {ERROR_BAD_NET_NAME, 76},
        {ERROR_ACCESS_DENIED, 75},
        {ERROR_WRITE_PROTECT, 75},
        {ERROR_NETWORK_ACCESS_DENIED, 75},
        {ERROR_CANNOT_MAKE, 75},
        {ERROR_SHARING_VIOLATION, 70},
        {ERROR_LOCK_VIOLATION, 70},
        {ERROR_USER_MAPPED_FILE, 70},
        {ERROR_DISK_FULL, 61},
        {ERROR_HANDLE_DISK_FULL, 61},
        {1295, 61},  // the disk quota
        {ERROR_FILE_TOO_LARGE, 61},
        {ERROR_FILE_EXISTS, 58},
        {ERROR_ALREADY_EXISTS, 58},
        {ERROR_TOO_MANY_OPEN_FILES, 67},
        {ERROR_INVALID_NAME, 64},
        {ERROR_BAD_PATHNAME, 64},
        {ERROR_FILENAME_EXCED_RANGE, 64},
        {ERROR_NOT_READY, 71},
        {ERROR_NO_MEDIA_IN_DRIVE, 71},
        {ERROR_DEV_NOT_EXIST, 68},
        {ERROR_CRC, 57},
        {ERROR_IO_DEVICE, 57},
        {ERROR_NOT_SAME_DEVICE, 57},
        {ERROR_GEN_FAILURE, 57},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(win32Error(row.error, "C:\\x").number(), row.number) << row.error;
    }
}

TEST(Win32Errors, AMissingFileAndAMissingFolderAreToldApart) {
    const test::TempFolder folder;
    EXPECT_EQ(win32Error(ERROR_FILE_NOT_FOUND, folder.path("file")).number(), 53);
    EXPECT_EQ(win32Error(ERROR_FILE_NOT_FOUND, folder.path() + "\\none\\file").number(), 76);
    EXPECT_EQ(win32Error(ERROR_FILE_NOT_FOUND, "C:\\file").number(), 53);
    EXPECT_EQ(win32Error(ERROR_FILE_NOT_FOUND, "file").number(), 53);
}

TEST(Win32Errors, AnOpenFileHasNoBadName) {
    EXPECT_EQ(win32OpenFileError(ERROR_INVALID_NAME, "C:\\x").number(), 57);
    EXPECT_EQ(win32OpenFileError(ERROR_FILE_NOT_FOUND, "C:\\x").number(), 57);
    EXPECT_EQ(win32OpenFileError(ERROR_DISK_FULL, "C:\\x").number(), 61);
    EXPECT_EQ(win32OpenFileError(ERROR_INVALID_HANDLE, "C:\\x").number(), 52);
}

TEST(Win32Errors, TheTextNamesThePathAndWhatTheSystemSaid) {
    const std::string text = win32Error(ERROR_DISK_FULL, "C:\\Psion\\Memo").what();
    EXPECT_THAT(text, HasSubstr("C:\\Psion\\Memo ("));
    EXPECT_EQ(text.back(), ')') << "no line end or full stop of the system's message";
    EXPECT_EQ(text.find_first_of("\r\n"), std::string::npos);
    EXPECT_THAT(win32Error(0x0FFF'FFFF, "C:\\x").what(), HasSubstr("error 268435455"));
}

}  // namespace
}  // namespace velmora
