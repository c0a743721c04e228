// velmora-files boot: boot files made and checked.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "files/file_access.h"

namespace velmora {

/// What a boot file is to be made of.
struct BootMakeRequest {
    std::string code;         ///< name of a file with machine code that was assembled for address 0
    std::string relocations;  ///< offsets of its words that hold an address, separated by commas, decimal or
                              ///< hexadecimal with "0x"; "@FILE" for a text file of them
    std::string out;
};

/// Makes a boot file. UsageError when an offset makes no sense, RunTimeError.
void runBootMakeCommand(const BootMakeRequest& request, const FileAccess& access);

/// Prints lengths, sums, the table of a boot file and what is wrong. False when something is. RunTimeError.
bool runBootCheckCommand(const std::string& name, const FileAccess& access);

/// Prints what a boot file holds; whether it is right.
bool describeBootFile(std::string_view bytes, std::ostream& out);

}  // namespace velmora
