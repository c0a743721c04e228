#include "base/run_time_error.h"

namespace velmora {

const char* errorText(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::InvalidProcedureCall:
            return "Invalid procedure call";
        case ErrorNumber::Overflow:
            return "Overflow";
        case ErrorNumber::OutOfMemory:
            return "Out of memory";
        case ErrorNumber::SubscriptOutOfRange:
            return "Subscript out of range";
        case ErrorNumber::TypeMismatch:
            return "Type mismatch";
        case ErrorNumber::BadFileNameOrNumber:
            return "Bad file name or number";
        case ErrorNumber::FileNotFound:
            return "File not found";
        case ErrorNumber::FileAlreadyOpen:
            return "File already open";
        case ErrorNumber::DeviceIoError:
            return "Device I/O error";
        case ErrorNumber::FileAlreadyExists:
            return "File already exists";
        case ErrorNumber::DiskFull:
            return "Disk full";
        case ErrorNumber::InputPastEndOfFile:
            return "Input past end of file";
        case ErrorNumber::BadFileName:
            return "Bad file name";
        case ErrorNumber::TooManyFiles:
            return "Too many files";
        case ErrorNumber::DeviceUnavailable:
            return "Device unavailable";
        case ErrorNumber::PermissionDenied:
            return "Permission denied";
        case ErrorNumber::DiskNotReady:
            return "Disk not ready";
        case ErrorNumber::PathFileAccess:
            return "Path/file access error";
        case ErrorNumber::PathNotFound:
            return "Path not found";
    }
    return "Unknown error";
}

RunTimeError::RunTimeError(ErrorNumber number) : number_(number), text_(errorText(number)) {}

RunTimeError::RunTimeError(ErrorNumber number, const std::string& detail)
    : number_(number), text_(std::string(errorText(number)) + ": " + detail) {}

}  // namespace velmora
