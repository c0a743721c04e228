// The one place where the system's error numbers become run-time errors.
#pragma once

#include <string>

#include "base/run_time_error.h"

namespace velmora {

/// What an errno value means for an operation that named a path. For ENOENT the disk is asked whether the
/// file is missing (53) or a folder on the way to it (76).
RunTimeError systemError(int error, const std::string& path);

/// What it means for an operation on an open file; `path` is the one that it was opened by, for the text.
RunTimeError openFileError(int error, const std::string& path);

}  // namespace velmora
