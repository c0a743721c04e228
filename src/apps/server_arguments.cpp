#include "apps/server_arguments.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "arguments/argument_values.h"
#include "arguments/syntax.h"
#include "base/byte_text.h"
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
    syntax.option("--port", "<COMn|device>",
                  "Serial port, for example COM5 or /dev/ttyUSB0\n(default: the file's Port)",
                  into(result.port));
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

}  // namespace

ServerArguments readServerArguments(const std::vector<std::string>& arguments) {
    ServerArguments result;
    ProgramSyntax syntax("velmorad",
                         "Serves a Psion Organiser II on a serial port, without a window, until it is told "
                         "to stop.");
    addServingOptions(syntax, result);
    addTraceOptions(syntax, result);
    syntax.note(
        "Options hold for this run and are not saved. Exit status: 0 stopped (by a signal or by the\n"
        "Organiser), 1 the port cannot be opened or failed, 2 the command line makes no sense,\n"
        "3 the configuration file cannot be used.");
    syntax.read(arguments);
    return result;
}

}  // namespace velmora
