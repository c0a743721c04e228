// velmora-files show: what a file of the download folder holds.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/file_access.h"

namespace velmora {

constexpr const char* kShowUsage = "velmora-files show FILE [--as KIND] [--wks-dialect own|common]";

/// Kinds of files that the server keeps.
enum class FileKind { Worksheet, Dif, DataFile, CsvFile, BlockFile, Procedure, BootFile, Unknown };

/// The kind of a file by its first bytes, else by its extension (in small letters).
FileKind recogniseFile(std::string_view bytes, const std::string& extension);

/// Prints a file: worksheets as a table with their formulas, data files as records, block files and
/// procedures with their headers, boot files with their parts. Texts are printed in the system's encoding.
/// KIND is wks, dif, data, csv, block, opl or boot. False when the file is damaged. UsageError, RunTimeError.
bool runShowCommand(const std::vector<std::string>& arguments, const FileAccess& access);

}  // namespace velmora
