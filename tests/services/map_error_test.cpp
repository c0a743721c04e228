#include "services/map_error.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct MapRow {
    const char* name;
    ErrorNumber error;
    int code;
};

class MapErrorTest : public testing::TestWithParam<MapRow> {};

TEST_P(MapErrorTest, FailureBecomesItsCode) {
    EXPECT_EQ(map_Error(RunTimeError(GetParam().error)), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(Rows, MapErrorTest,
                         testing::Values(MapRow{"BadFileNameOrNumber", ErrorNumber::BadFileNameOrNumber, 190},
                                         MapRow{"FileNotFound", ErrorNumber::FileNotFound, 189},
                                         MapRow{"BadFileName", ErrorNumber::BadFileName, 189},
                                         MapRow{"PathFileAccess", ErrorNumber::PathFileAccess, 189},
                                         MapRow{"PathNotFound", ErrorNumber::PathNotFound, 189},
                                         MapRow{"FileAlreadyOpen", ErrorNumber::FileAlreadyOpen, 199},
                                         MapRow{"PermissionDenied", ErrorNumber::PermissionDenied, 199},
                                         MapRow{"FileAlreadyExists", ErrorNumber::FileAlreadyExists, 187},
                                         MapRow{"DiskFull", ErrorNumber::DiskFull, 186},
                                         MapRow{"InputPastEndOfFile", ErrorNumber::InputPastEndOfFile, 238},
                                         MapRow{"DeviceIoError", ErrorNumber::DeviceIoError, 188},
                                         MapRow{"TooManyFiles", ErrorNumber::TooManyFiles, 188},
                                         MapRow{"OutOfMemory", ErrorNumber::OutOfMemory, 188},
                                         MapRow{"InvalidProcedureCall", ErrorNumber::InvalidProcedureCall,
                                                188},
                                         MapRow{"Overflow", ErrorNumber::Overflow, 188},
                                         MapRow{"SubscriptOutOfRange", ErrorNumber::SubscriptOutOfRange, 188},
                                         MapRow{"TypeMismatch", ErrorNumber::TypeMismatch, 188},
                                         MapRow{"DeviceUnavailable", ErrorNumber::DeviceUnavailable, 188},
                                         MapRow{"DiskNotReady", ErrorNumber::DiskNotReady, 188}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace velmora
