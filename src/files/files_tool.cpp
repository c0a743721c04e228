#include "files/files_tool.h"

#include <ostream>

#include "base/run_time_error.h"
#include "files/arguments.h"
#include "files/boot_command.h"
#include "files/data_command.h"
#include "files/file_access.h"
#include "files/sheet_command.h"
#include "files/show_command.h"

namespace velmora {
namespace {

constexpr const char* kHelp =
    "\n"
    "Converts what the Organiser keeps on a PC. \"-\" is standard input or output.\n"
    "\n"
    "sheet  a worksheet from one format to another\n"
    "  --from, --to <format>   wks, dif, csv, txt or tab (default: from the extension)\n"
    "  --locale <name>         how numbers are written in text files (default: the user's)\n"
    "  --separator <sign>      between the fields of a csv or tab file that is read: one character,\n"
    "                          tab, or auto to find it (default: ; for csv, tab for tab)\n"
    "  --wks-dialect <name>    tokens of formulas: own (default) or common, which other programs use\n"
    "  --from-dialect, --to-dialect <name>   the same for one side only\n"
    "data   a data file from one form to another\n"
    "  --from, --to <form>     odb, txt, csv or csv-semicolon (default: from the extension)\n"
    "boot   a boot file made from machine code, or checked\n"
    "  --relocations <offsets> of words that hold an address: 16,0x20 or @FILE\n"
    "show   what a file holds\n"
    "  --as <kind>             wks, dif, data, csv, block, opl or boot (default: recognised)\n"
    "\n"
    "Exit status: 0 done, 1 a file failed or is damaged, 2 wrong usage.\n";

void printUsage(std::ostream& out) {
    out << "Usage:\n"
        << kSheetUsage << "\n"
        << kDataUsage << "\n"
        << kBootUsage << "\n"
        << kShowUsage << "\n";
}

bool runCommand(const std::string& command, const std::vector<std::string>& arguments,
                const FileAccess& access) {
    if (command == "sheet") {
        runSheetCommand(arguments, access);
        return true;
    }
    if (command == "data") {
        runDataCommand(arguments, access);
        return true;
    }
    if (command == "boot") {
        return runBootCommand(arguments, access);
    }
    if (command == "show") {
        return runShowCommand(arguments, access);
    }
    throw UsageError("\"" + command + "\" is no command: sheet, data, boot or show");
}

}  // namespace

int runFilesTool(const std::vector<std::string>& arguments, Files& files, const PathRules& rules,
                 std::istream& in, std::ostream& out, std::ostream& err) {
    if (arguments.empty()) {
        printUsage(err);
        return kExitUsage;
    }
    if (arguments.front() == "--help" || arguments.front() == "-h") {
        printUsage(out);
        out << kHelp;
        return kExitDone;
    }
    try {
        const FileAccess access(files, rules, in, out);
        return runCommand(arguments.front(), {arguments.begin() + 1, arguments.end()}, access) ? kExitDone
                                                                                               : kExitFailure;
    } catch (const UsageError& error) {
        err << "velmora-files: " << error.what() << "\n"
            << "Try \"velmora-files --help\".\n";
        return kExitUsage;
    } catch (const RunTimeError& error) {
        err << "velmora-files: " << error.what() << "\n";
        return kExitFailure;
    }
}

}  // namespace velmora
