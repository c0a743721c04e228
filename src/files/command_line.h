// The command line of velmora-files.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "arguments/outline.h"
#include "files/file_access.h"

namespace velmora {

/// Does what a command line asks for; false when a file that was looked at is damaged. UsageError,
/// RunTimeError.
using FilesCommand = std::function<bool(const FileAccess& access)>;

struct FilesCommandLine {
    FilesCommand command;
    bool strict = false;  ///< what is left out gives a status of its own
};

/// Reads the arguments behind the program's name. Throws UsageError, and RequestedText for --help and
/// --version.
FilesCommandLine readFilesCommandLine(const std::vector<std::string>& arguments);

/// What readFilesCommandLine takes.
ProgramOutline filesOutline();

}  // namespace velmora
