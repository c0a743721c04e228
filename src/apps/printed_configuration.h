// What --print-config prints.
#pragma once

#include <iosfwd>

#include "apps/server_arguments.h"

namespace velmora {

/// Prints the path of the configuration file and every setting that a start with these arguments would use;
/// makes and changes nothing. Returns the exit status; a file that cannot be used is told on `err`. Throws
/// UsageError when the command line names a folder that is not there.
int printConfiguration(const ServerArguments& arguments, std::ostream& out, std::ostream& err);

}  // namespace velmora
