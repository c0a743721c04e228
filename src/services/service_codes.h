// The one-byte error codes that a DISCON frame carries to the Organiser.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

enum ServiceCode : std::uint8_t {
    kCodeNone = 0,
    kCodeRecordTooLong = 185,   ///< the text record is longer than the maximum that was asked for
    kCodeDiskFull = 186,        ///< the disk is full
    kCodeFileExists = 187,      ///< the file to be created exists
    kCodeNotPossible = 188,     ///< the request does not fit the open file; any other failure
    kCodeFileNotFound = 189,    ///< no such file, or its name was refused
    kCodeInvalidRequest = 190,  ///< unknown service or operation, bad argument, block header mismatch
    kCodeAlreadyOpen = 199,     ///< a file is open already, or is held by another program
    kCodeEndOfFile = 238,       ///< end of file on a read
};

/// Why the Organiser was refused, in a few words.
const char* reasonOf(int code);

/// The payload of a DISCON frame with this code.
inline std::string codePayload(int code) {
    return {static_cast<char>(code)};
}

}  // namespace velmora
