#include "serial/comm_errors_win32.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(CommErrorsTest, EveryWayToSayThatAPortIsMissingIsOneNumber) {
    for (const DWORD error : {2, 3, 55, 123, 161, 433, 1167}) {
        EXPECT_EQ(openFailure(error), kNoSuchPort) << error;
    }
}

TEST(CommErrorsTest, EveryWayToSayThatAPortIsHeldIsOneNumber) {
    for (const DWORD error : {5, 32, 33, 170}) {
        EXPECT_EQ(openFailure(error), kPortInUse) << error;
    }
}

TEST(CommErrorsTest, OtherFailuresToOpenKeepTheirNumbers) {
    for (const DWORD error : {1, 6, 8, 21, 31, 87, 1117}) {
        EXPECT_EQ(openFailure(error), static_cast<SystemError>(error)) << error;
    }
}

TEST(CommErrorsTest, DeniedAccessToAnOpenDeviceIsAPulledAdapterOnlyWhereBytesAreCarried) {
    EXPECT_EQ(transferFailure(ERROR_ACCESS_DENIED), kDeviceFailed);
    EXPECT_EQ(writeFailure(ERROR_ACCESS_DENIED), kDeviceFailed);
    EXPECT_EQ(failure(ERROR_ACCESS_DENIED), kPortInUse);
}

TEST(CommErrorsTest, OtherFailuresOfATransferKeepTheirNumbers) {
    for (const DWORD error : {3, 6, 22, 32, 433, 995, 996, 997, 1167}) {
        EXPECT_EQ(transferFailure(error), static_cast<SystemError>(error)) << error;
        EXPECT_EQ(writeFailure(error), static_cast<SystemError>(error)) << error;
        EXPECT_EQ(failure(error), static_cast<SystemError>(error)) << error;
    }
}

TEST(CommErrorsTest, AFailureWithoutANumberIsNoSuccess) {
    EXPECT_EQ(failure(ERROR_SUCCESS), kDeviceFailed);
    EXPECT_EQ(openFailure(ERROR_SUCCESS), kDeviceFailed);
    EXPECT_EQ(transferFailure(ERROR_SUCCESS), kDeviceFailed);
    EXPECT_EQ(writeFailure(ERROR_SUCCESS), kNoReason);
}

}  // namespace
}  // namespace velmora
