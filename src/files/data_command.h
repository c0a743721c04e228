// velmora-files data: data files between their forms.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/file_access.h"

namespace velmora {

/// What stands between the fields of a form's lines: a zero byte where they are the records themselves
/// ("odb", "txt"), a comma ("csv") or a semicolon ("csv-semicolon"). Nothing for any other text.
std::optional<char> separatorOfForm(const std::string& form);

/// What is to be converted. Forms are given by their separators; without one it is told by the name's
/// extension.
struct DataRequest {
    std::string in;
    std::string out;
    std::optional<char> from;
    std::optional<char> to;
};

/// Converts a data file: one record a line, fields separated by tabs or quoted as needed and separated by
/// the form's sign. UsageError when a name tells no form, RunTimeError.
void runDataCommand(const DataRequest& request, const FileAccess& access);

/// The records in a data file: fields separated by tabs. `separator`: that of the file's lines, a zero byte
/// where they are the records themselves.
std::vector<std::string> readRecords(File& file, char separator);

}  // namespace velmora
