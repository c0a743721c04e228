// velmora-files capture: what passed over the line, as the protocol trace tells it, and in numbers.
#pragma once

#include <string>

#include "files/file_access.h"

namespace velmora {

/// Prints a recording: a line for each frame behind the seconds since the first, for bytes that make no
/// frame and for each comment, then the statistics. Tells where the file breaks off, and is false then.
/// CaptureError when it is no recording, RunTimeError.
bool runCaptureCommand(const std::string& name, const FileAccess& access);

}  // namespace velmora
