// Run-time errors of the file layer as the Organiser is told of them.
#pragma once

#include "base/run_time_error.h"
#include "services/service_codes.h"

namespace velmora {

/// The code for a failure: bad file name or number 190; file not found, bad file name, path/file access
/// error and path not found 189; file already open and permission denied 199; file already exists 187; disk
/// full 186; input past end 238; anything else 188.
ServiceCode map_Error(const RunTimeError& error);

}  // namespace velmora
