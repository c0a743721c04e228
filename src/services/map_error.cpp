#include "services/map_error.h"

namespace velmora {

ServiceCode map_Error(const RunTimeError& error) {
    switch (error.errorNumber()) {
        case ErrorNumber::BadFileNameOrNumber:
            return kCodeInvalidRequest;
        case ErrorNumber::FileNotFound:
        case ErrorNumber::BadFileName:
        case ErrorNumber::PathFileAccess:
        case ErrorNumber::PathNotFound:
            return kCodeFileNotFound;
        case ErrorNumber::FileAlreadyOpen:
        case ErrorNumber::PermissionDenied:
            return kCodeAlreadyOpen;
        case ErrorNumber::FileAlreadyExists:
            return kCodeFileExists;
        case ErrorNumber::DiskFull:
            return kCodeDiskFull;
        case ErrorNumber::InputPastEndOfFile:
            return kCodeEndOfFile;
        case ErrorNumber::InvalidProcedureCall:
        case ErrorNumber::Overflow:
        case ErrorNumber::OutOfMemory:
        case ErrorNumber::SubscriptOutOfRange:
        case ErrorNumber::TypeMismatch:
        case ErrorNumber::DeviceIoError:
        case ErrorNumber::TooManyFiles:
        case ErrorNumber::DeviceUnavailable:
        case ErrorNumber::DiskNotReady:
            break;
    }
    return kCodeNotPossible;
}

}  // namespace velmora
