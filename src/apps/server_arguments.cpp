#include "apps/server_arguments.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "arguments/argument_values.h"
#include "arguments/syntax.h"
#include "base/byte_text.h"
#include "serial/adapter_key.h"
#include "serial/mode_string.h"

namespace velmora {
namespace {

constexpr std::array<std::string_view, 6> kCategories{"PLP", "STATE", "EVENT", "COM", "DATA", "ERROR"};

std::vector<std::string> traceCategories(const std::string& list) {
    std::vector<std::string> categories;
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t comma = std::min(list.find(',', start), list.size());
        const std::string word = upperCase(trimBlanks(list.substr(start, comma - start)));
        if (!word.empty()) {
            if (std::find(kCategories.begin(), kCategories.end(), word) == kCategories.end()) {
                wrongValue("--trace", word, "PLP, STATE, EVENT, COM, DATA or ERROR");
            }
            categories.push_back(word);
        }
        start = comma + 1;
    }
    return categories;
}

/// Keeps a value as it was given.
CommandSyntax::Take into(std::optional<std::string>& target) {
    return [&target](const std::string& value) { target = value; };
}

void addServingOptions(CommandSyntax& syntax, ServerArguments& result) {
    syntax.option("--config", "<file>",
                  "Configuration file (default: Velmora.ini in\nthe user's configuration folder)",
                  into(result.config));
    syntax.option(
        "--port", "<port>",
        "Serial port, for example COM5, /dev/ttyUSB0 or\nusb:0403:6001:A50285BI (default: the file's "
        "Port)",
        [&result](const std::string& value) {
            if (namesAdapter(value) && !adapterKeyOfName(value)) {
                wrongValue("--port", value, "usb:VENDOR:PRODUCT:SERIAL, as --list-ports prints it");
            }
            result.port = value;
        });
    syntax.flag("--wait", "Wait for a port that is missing or lost instead\nof ending", result.wait);
    syntax.option("--baud", "<rate>", "Line speed (default: the file's Baud, 9600)",
                  [&result](const std::string& value) {
                      result.baud = numberValue<std::int32_t>("--baud", value, kLowestRate, kHighestRate,
                                                              "a number from 1 to 4000000");
                  });
    syntax.option("--folder", "<folder>", "Download folder (default: the file's DownloadPath)",
                  into(result.folder));
    syntax.flag("--stay-in-folder", "Refuse names that lead outside the download folder",
                result.stayInFolder);
    syntax.option("--file-type", "<0..3>", "Data files as 0 ODB, 1 TXT, 2 CSV (comma),\n3 CSV (semicolon)",
                  [&result](const std::string& value) {
                      result.fileType =
                          numberValue<std::int32_t>("--file-type", value, 0, 3, "a number from 0 to 3");
                  });
}

void addLogOptions(CommandSyntax& syntax, ServerArguments& result) {
    syntax.option("--log-format", "<format>", "What is printed: text, or json for programs",
                  [&result](const std::string& value) {
                      if (value != "text" && value != "json") {
                          wrongValue("--log-format", value, "text or json");
                      }
                      result.logFormat = value == "json" ? LogFormat::Json : LogFormat::Text;
                  });
    syntax.option("--on-transfer", "<program>",
                  "Run a program after each complete file, with its\n"
                  "name, path, save or load, and size",
                  into(result.onTransfer));
    syntax.flag("--quiet", "Print errors only", result.quiet);
}

void addTraceOptions(CommandSyntax& syntax, ServerArguments& result) {
    syntax.optionalValue("--trace", "<list>",
                         "Protocol trace on standard error: all categories,\n"
                         "or some of PLP,STATE,EVENT,COM,DATA,ERROR",
                         [&result](const std::string& list) {
                             result.trace = true;
                             result.traceCategories = traceCategories(list);
                         });
    syntax.option("--trace-file", "<file>", "Protocol trace into a file", [&result](const std::string& file) {
        result.trace = true;
        result.traceFile = file;
    });
}

void addCaptureOptions(CommandSyntax& syntax, ServerArguments& result) {
    syntax.option("--capture", "<file>", "Record what passes over the line, as pcapng",
                  [&result](const std::string& file) { result.capture.path = file; });
    syntax.option(
        "--capture-limit", "<limit>", "How much of it is kept, for example 20M or 10min\n(default: all)",
        [&result](const std::string& value) {
            const auto limit = parseCaptureLimit(value);
            if (!limit) {
                wrongValue("--capture-limit", value, "a number with K, M, G, s, min or h behind it");
            }
            result.capture.limit = *limit;
        });
    syntax.flag("--mask", "Leave the contents of files out of the record", result.capture.masked);
}

void addListing(CommandSyntax& syntax, ServerArguments& result) {
    syntax.flag("--list-ports", "Print the serial ports that are present, and end", result.listPorts);
    syntax.flag("--print-config",
                "Print the settings that this command line starts\nwith, and where each comes from",
                result.printConfig);
    syntax.flag("--json", "With --list-ports: as JSON", result.json);
}

#ifdef _WIN32
/// Other systems have services for it.
void addTaskOptions(CommandSyntax& syntax, ServerArguments& result) {
    syntax.flag(
        "--install-task",
        "Have Windows start the server, with the other\noptions of this command line, whenever you log on",
        result.installTask);
    syntax.flag("--remove-task", "Remove what --install-task has made", result.removeTask);
}
#endif

/// The syntax of the whole command line. What is read goes into the result.
class ServerSyntax : public ProgramSyntax {
  public:
    explicit ServerSyntax(ServerArguments& result)
        : ProgramSyntax("velmorad",
                        "Serves a Psion Organiser II on a serial port, without a window, until it is told "
                        "to stop.") {
        addServingOptions(*this, result);
        addLogOptions(*this, result);
        addTraceOptions(*this, result);
        addCaptureOptions(*this, result);
        addListing(*this, result);
#ifdef _WIN32
        addTaskOptions(*this, result);
#endif
        note("Options hold for this run and are not saved.");
        exitStatuses({{0, "stopped (by a signal or by the Organiser)"},
                      {1, "the port cannot be opened or failed (without --wait)"},
                      {2, "the command line makes no sense"},
                      {3, "the configuration file cannot be used"}});
    }
};

}  // namespace

ServerArguments readServerArguments(const std::vector<std::string>& arguments) {
    ServerArguments result;
    ServerSyntax(result).read(arguments);
    if (result.json && !result.listPorts) {
        throw UsageError("--json goes with --list-ports");
    }
    if (result.capture.path.empty() && (result.capture.masked || result.capture.limit != CaptureLimit{})) {
        throw UsageError("--capture-limit and --mask go with --capture");
    }
    if (result.installTask && (result.removeTask || result.listPorts || result.printConfig)) {
        throw UsageError("--install-task goes with the options of a server only");
    }
    if (result.removeTask && arguments.size() > 1) {
        throw UsageError("--remove-task stands alone");
    }
    return result;
}

std::vector<std::string> argumentsOfTask(std::vector<std::string> arguments) {
    std::erase(arguments, "--install-task");
    return arguments;
}

ProgramOutline serverOutline() {
    ServerArguments result;
    return ServerSyntax(result).outline();
}

}  // namespace velmora
