// What the command line of velmorad says instead of the configuration file.
#pragma once

#include "apps/server_arguments.h"
#include "startup/run_overrides.h"

namespace velmora {

/// velmorad's exit status for a configuration file that cannot be used.
constexpr int kStatusConfiguration = 3;

inline RunOverrides overridesOf(const ServerArguments& arguments) {
    RunOverrides overrides;
    overrides.configPath = arguments.config;
    overrides.port = arguments.port;
    overrides.baud = arguments.baud;
    overrides.folder = arguments.folder;
    overrides.fileType = arguments.fileType;
    if (arguments.stayInFolder) {
        overrides.stayInFolder = true;
    }
    overrides.autoStart = true;  // this program exists to serve
    return overrides;
}

}  // namespace velmora
