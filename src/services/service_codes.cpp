#include "services/service_codes.h"

namespace velmora {

const char* reasonOf(int code) {
    switch (code) {
        case kCodeRecordTooLong:
            return "record too long";
        case kCodeDiskFull:
            return "disk full";
        case kCodeFileExists:
            return "file exists";
        case kCodeFileNotFound:
            return "no such file";
        case kCodeInvalidRequest:
            return "invalid request";
        case kCodeAlreadyOpen:
            return "file in use";
        case kCodeEndOfFile:
            return "end of file";
        default:
            return "not possible";
    }
}

}  // namespace velmora
