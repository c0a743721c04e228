// velmora-files data: data files between their forms.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "files/file_access.h"

namespace velmora {

/// Longest record that the handheld sends and asks for, in bytes.
constexpr std::size_t kLongestRecord = 250;

/// The forms of data files, as they are called on the command line: "odb", "txt", "csv", "csv-semicolon".
enum class DataForm { Odb, Txt, Csv, CsvSemicolon };

/// The form of that name; nothing for any other text.
std::optional<DataForm> dataFormNamed(const std::string& name);

/// Stands for a separator where lines are the records themselves.
constexpr char kTabs = '\0';

/// What is to be converted. A form that is not given is told by the name's extension.
struct DataRequest {
    std::string in;
    std::string out;
    std::optional<DataForm> from;
    std::optional<DataForm> to;
    TextEncoding encoding =
        TextEncoding::Windows1252;  ///< of all forms but Odb, which is the Organiser's own
};

/// Converts a data file: one record a line, fields separated by tabs or quoted as needed and separated by
/// the form's sign. Tells of records that the Organiser cannot hold and of fields that come out otherwise
/// than they were. UsageError when a name tells no form, RunTimeError.
void runDataCommand(const DataRequest& request, const FileAccess& access);

/// The records in a data file's text: fields separated by tabs. `separator`: that of the file's lines, or
/// kTabs. Tells as above.
std::vector<std::string> readRecords(const std::string& text, char separator, const Tell& tell);

}  // namespace velmora
