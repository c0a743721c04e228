// The command line of velmora-organiser.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "arguments/outline.h"
#include "organiser/fault_injector.h"
#include "organiser/file_client.h"
#include "organiser/ftran_client.h"

namespace velmora {

enum class CommandKind : std::uint8_t {
    Save,
    Load,
    Dir,
    Read,
    Write,
    Formats,
    Exit,
    Shutdown,
    Service,
    Time,
    Gmt,
    TimeInfo,
    Boot,
    SheetSave,
    SheetLoad,
    Tour,
    Replay,
    ListPorts,
};

/// What is to be done. Names of the server's files are Windows-1252 bytes, paths are UTF-8.
struct Command {
    CommandKind kind{};
    std::string file;  ///< FILE, CELLS or CAPTURE: a path on this side, "-" for standard input
    std::string name;  ///< NAME, PATTERN or --as: a name on the server
    int fileType = 0;  ///< --type: 0 data, 1 procedure, 2 to 16 block file
    FileMode mode = FileMode::Create;      ///< --mode
    std::optional<std::string> output;     ///< -o: a path on this side; without it, standard output
    bool text = false;                     ///< --text
    bool longNames = false;                ///< --long
    bool crLf = true;                      ///< not --lf
    std::optional<Seek> seek;              ///< --seek
    std::optional<std::uint16_t> address;  ///< --address
    int sheetFormat = 0;                   ///< --format: 2 WKS, 3 DIF, 4 CSV, 5 TXT, 6 TXT with tabs
    std::optional<std::string> bootName;   ///< --boot
    bool json = false;                     ///< --json, for ListPorts
};

struct CommandLine {
    std::string device;  ///< empty only for ListPorts
    int baud = 9600;
    FaultOptions faults;
    bool trace = false;
    int tries = 3;
    Command command;
};

/// Reads the arguments behind the program's name. Throws UsageError, and RequestedText for --help and
/// --version.
CommandLine readCommandLine(const std::vector<std::string>& arguments);

/// What readCommandLine takes.
ProgramOutline commandLineOutline();

}  // namespace velmora
