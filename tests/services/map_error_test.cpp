#include "services/map_error.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct Row {
    const char* name;
    ErrorNumber error;
    int code;
};

class MapErrorTest : public testing::TestWithParam<Row> {};

TEST_P(MapErrorTest, FailureBecomesItsCode) {
    EXPECT_EQ(map_Error(RunTimeError(GetParam().error)), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Rows, MapErrorTest,
                         testing::Values(Row{"BadFileNameOrNumber", ErrorNumber::BadFileNameOrNumber, 190},
                                         Row{"FileNotFound", ErrorNumber::FileNotFound, 189},
                                         Row{"BadFileName", ErrorNumber::BadFileName, 189},
                                         Row{"PathFileAccess", ErrorNumber::PathFileAccess, 189},
                                         Row{"PathNotFound", ErrorNumber::PathNotFound, 189},
                                         Row{"FileAlreadyOpen", ErrorNumber::FileAlreadyOpen, 199},
                                         Row{"PermissionDenied", ErrorNumber::PermissionDenied, 199},
                                         Row{"FileAlreadyExists", ErrorNumber::FileAlreadyExists, 187},
                                         Row{"DiskFull", ErrorNumber::DiskFull, 186},
                                         Row{"InputPastEndOfFile", ErrorNumber::InputPastEndOfFile, 238},
                                         Row{"DeviceIoError", ErrorNumber::DeviceIoError, 188},
                                         Row{"TooManyFiles", ErrorNumber::TooManyFiles, 188},
                                         Row{"OutOfMemory", ErrorNumber::OutOfMemory, 188},
                                         Row{"DiskNotReady", ErrorNumber::DiskNotReady, 188}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace velmora
