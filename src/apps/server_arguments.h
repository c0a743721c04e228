// The command line of the headless server.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmora {

/// What `velmorad` was asked to do. Everything that is not set is taken from the configuration file.
struct ServerArguments {
    std::optional<std::string> config;     ///< path of the configuration file
    std::optional<std::string> port;       ///< "COMn" or a device
    std::optional<std::int32_t> baud;      ///< bits a second, above 0
    std::optional<std::string> folder;     ///< download folder
    std::optional<std::int32_t> fileType;  ///< 0 to 3
    bool trace = false;
    std::vector<std::string> traceCategories;  ///< in capitals; empty means all
    std::optional<std::string> traceFile;
    bool help = false;
    bool version = false;
};

/// A command line that makes no sense; the text says what is wrong with it.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments that follow the program's name; an option's value may follow it or stand behind "=".
/// Throws UsageError.
ServerArguments parseServerArguments(const std::vector<std::string>& arguments);

/// The help text.
std::string serverUsage();

}  // namespace velmora
