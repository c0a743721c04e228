// velmora-files show: what a file of the download folder holds.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "files/file_access.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// Kinds of files that the server keeps.
enum class FileKind { Worksheet, Dif, DataFile, CsvFile, BlockFile, Procedure, BootFile, Unknown };

/// The kind of a file by its first bytes, else by its extension (in small letters).
FileKind recogniseFile(std::string_view bytes, const std::string& extension);

/// The kind of a name that users give it: wks, dif, data, csv, block, opl or boot. Unknown for any other.
FileKind kindNamed(const std::string& name);

/// What is to be shown.
struct ShowRequest {
    std::string file;
    std::optional<FileKind> as;  ///< without one it is recognised
    WksDialect dialect = WksDialect::Own;
    TextEncoding encoding = TextEncoding::Windows1252;  ///< of what is text
};

/// Prints a file: worksheets as a table with their formulas, data files as records, block files and
/// procedures with their headers, boot files with their parts. Texts are printed in the system's encoding.
/// Tells of what the Organiser could not hold. False when the file is damaged. UsageError when its kind is
/// not recognised, RunTimeError.
bool runShowCommand(const ShowRequest& request, const FileAccess& access);

}  // namespace velmora
