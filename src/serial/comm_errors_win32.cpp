#include "serial/comm_errors_win32.h"

namespace velmora {

SystemError failure(DWORD error) {
    return error == ERROR_SUCCESS ? kDeviceFailed : static_cast<SystemError>(error);
}

SystemError openFailure(DWORD error) {
    switch (error) {
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_DEV_NOT_EXIST:
        case kNoSuchDevice:
        case ERROR_DEVICE_NOT_CONNECTED:
            return kNoSuchPort;
        // Windows says "access denied" of a port that another program holds. Some drivers of virtual ports
        // say so in the words for files, and Wine does in these three.
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_BUSY:
            return kPortInUse;
        default:
            return failure(error);
    }
}

SystemError transferFailure(DWORD error) {
    return error == ERROR_ACCESS_DENIED ? kDeviceFailed : failure(error);
}

SystemError writeFailure(DWORD error) {
    return error == ERROR_SUCCESS ? kNoReason : transferFailure(error);
}

}  // namespace velmora
