// velmora-files boot: boot files made and checked.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "files/file_access.h"

namespace velmora {

constexpr const char* kBootUsage =
    "velmora-files boot make CODE --relocations OFFSETS -o NAME.bin\n"
    "velmora-files boot check NAME.bin";

/// "make" wraps machine code that was assembled for address 0; OFFSETS are those of its words that hold an
/// address, separated by commas, decimal or hexadecimal with "0x", or "@FILE" for a text file of them; "" for
/// none. "check" prints lengths, sums, the table and what is wrong. False when something is.
/// UsageError, RunTimeError.
bool runBootCommand(const std::vector<std::string>& arguments, const FileAccess& access);

/// Prints what a boot file holds; whether it is right.
bool describeBootFile(std::string_view bytes, std::ostream& out);

}  // namespace velmora
