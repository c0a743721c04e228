// velmora-files data: data files between their forms.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/file_access.h"

namespace velmora {

constexpr const char* kDataUsage = "velmora-files data IN OUT [--from FORM] [--to FORM]";

/// Converts a data file: one record a line, fields separated by tabs ("odb", "txt") or quoted as needed and
/// separated by commas ("csv") or semicolons ("csv-semicolon"). Forms are taken from the extensions where
/// they are not given. UsageError, RunTimeError.
void runDataCommand(const std::vector<std::string>& arguments, const FileAccess& access);

/// The records in a data file: fields separated by tabs. `separator`: that of the file's lines, a zero byte
/// where they are the records themselves.
std::vector<std::string> readRecords(File& file, char separator);

}  // namespace velmora
