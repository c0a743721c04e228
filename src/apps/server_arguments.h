// The command line of the headless server.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "arguments/outline.h"
#include "capture/capture_file.h"
#include "ui/server_log.h"

namespace velmora {

/// What `velmorad` was asked to do. Everything that is not set is taken from the configuration file.
struct ServerArguments {
    std::optional<std::string> config;     ///< path of the configuration file
    std::optional<std::string> port;       ///< "COMn", a device or "usb:VENDOR:PRODUCT:SERIAL"
    std::optional<std::int32_t> baud;      ///< bits a second, above 0
    std::optional<std::string> folder;     ///< download folder
    std::optional<std::int32_t> fileType;  ///< 0 to 3
    bool stayInFolder = false;             ///< refuse names that lead outside the download folder
    bool wait = false;                     ///< wait for a port that is missing or lost
    bool listPorts = false;                ///< print the ports and end
    bool printConfig = false;              ///< print the settings and end
    bool json = false;                     ///< them as JSON
    bool installTask = false;              ///< make the task that starts the server; Windows only
    bool removeTask = false;               ///< remove it
    LogFormat logFormat = LogFormat::Text;
    bool quiet = false;                     ///< print errors only
    std::optional<std::string> onTransfer;  ///< program to run after each complete file
    bool trace = false;
    std::vector<std::string> traceCategories;  ///< in capitals; empty means all
    std::optional<std::string> traceFile;
    CaptureRequest capture;  ///< how to record what passes over the port; without a path not at all
};

/// Reads the arguments behind the program's name. Throws UsageError, and RequestedText for --help and
/// --version.
ServerArguments readServerArguments(const std::vector<std::string>& arguments);

/// What the task starts the server with, when these asked to install it.
std::vector<std::string> argumentsOfTask(std::vector<std::string> arguments);

/// What readServerArguments takes.
ProgramOutline serverOutline();

}  // namespace velmora
