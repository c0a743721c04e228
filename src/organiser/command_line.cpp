#include "organiser/command_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

#include "base/byte_text.h"
#include "organiser/local_files.h"

namespace velmora {
namespace {

constexpr int kEachDelay = 60'000;

template <typename... Kinds>
constexpr std::uint32_t only(Kinds... kinds) {
    return ((1U << static_cast<unsigned>(kinds)) | ...);
}
constexpr std::uint32_t kEverywhere = ~0U;

[[noreturn]] void wrongValue(std::string_view option, std::string_view value, std::string_view expected) {
    throw UsageError(std::string(option) + ": \"" + std::string(value) + "\" is not " +
                     std::string(expected) + ".");
}

/// A number that takes up the whole text and lies within the bounds.
template <typename Number, typename... Base>
Number number(std::string_view option, std::string_view value, Number least, Number most,
              std::string_view expected, Base... base) {
    Number result{};
    const char* end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, result, base...);
    // Written so that what is not a number at all fails too.
    if (error != std::errc() || stop != end || !(result >= least && result <= most)) {
        wrongValue(option, value, expected);
    }
    return result;
}

double probability(std::string_view option, std::string_view value) {
    return number<double>(option, value, 0, 1, "a probability from 0 to 1");
}

/// A name for the server: its bytes are Windows-1252.
std::string serverName(std::string_view what, std::string_view typed) {
    const auto name = fromUtf8(typed);
    if (!name) {
        throw UsageError(std::string(what) + ": \"" + std::string(typed) +
                         "\" has a character that the Organiser does not know.");
    }
    return *name;
}

/// The last part of a path without its extension, in UTF-8 as the path is.
std::string stemOf(const std::string& path) {
    const std::u8string stem = localPath(path).stem().u8string();
    return {stem.begin(), stem.end()};
}

int fileType(std::string_view option, std::string_view value) {
    constexpr std::string_view kExpected = "data, procedure or block:2 to block:16";
    constexpr std::string_view kBlock = "block:";
    if (value == "data") {
        return kDataFile;
    }
    if (value == "procedure") {
        return kProcedure;
    }
    if (value.substr(0, kBlock.size()) != kBlock) {
        wrongValue(option, value, kExpected);
    }
    return number<int>(option, value.substr(kBlock.size()), kFirstBlockType, kLastBlockType, kExpected);
}

Seek seek(std::string_view option, std::string_view value) {
    constexpr std::string_view kExpected =
        "MODE:OFFSET with 0 (start), 1 (here) or 2 (end) and a whole number";
    constexpr std::int64_t kMost = 2'147'483'647;
    if (value.size() < 3 || value[0] < '0' || value[0] > '2' || value[1] != ':') {
        wrongValue(option, value, kExpected);
    }
    return {static_cast<Seek::From>(value[0] - '0'),
            number<std::int64_t>(option, value.substr(2), -kMost, kMost, kExpected)};
}

std::uint16_t address(std::string_view option, std::string_view value) {
    std::string_view digits = value;
    if (digits.substr(0, 2) == "0x" || digits.substr(0, 2) == "0X") {
        digits.remove_prefix(2);
    }
    return number<std::uint16_t>(option, digits, 0, 0xFFFF, "an address in hexadecimal, 0 to FFFF", 16);
}

int sheetFormat(std::string_view option, std::string_view value) {
    constexpr std::array<std::string_view, 5> kNames{"wks", "dif", "csv", "txt", "tab"};
    constexpr int kFirstCode = 2;
    const std::string wanted = lowerCase(value);
    const auto* found = std::find(kNames.begin(), kNames.end(), wanted);
    if (found == kNames.end()) {
        wrongValue(option, value, "wks, dif, csv, txt or tab");
    }
    return kFirstCode + static_cast<int>(found - kNames.begin());
}

int lineSpeed(std::string_view option, std::string_view value) {
    const auto& speeds = knownLineSpeeds();
    const int baud = number<int>(option, value, 1, 10'000'000, "a line speed");
    if (std::find(speeds.begin(), speeds.end(), baud) == speeds.end()) {
        wrongValue(option, value, "a line speed that serial devices know, such as 1200, 9600 or 38400");
    }
    return baud;
}

/// One option: how it is written, what it takes, where it belongs and what it does.
struct Option {
    std::string_view name;
    std::string_view value;  // its placeholder; empty for a switch
    std::uint32_t commands;
    std::string_view help;
    void (*apply)(CommandLine& line, std::string_view option, std::string_view value);
};

using Kind = CommandKind;
using Text = std::string_view;
constexpr std::array kOptions{
    Option{"--device", "<path>", kEverywhere, "Serial device that leads to the server",
           [](CommandLine& line, Text, Text value) { line.device = value; }},
    Option{"--baud", "<rate>", kEverywhere, "Line speed (default: 9600)",
           [](CommandLine& line, Text option, Text value) { line.baud = lineSpeed(option, value); }},
    Option{"--tries", "<n>", kEverywhere, "Times that a conversation is begun whose link breaks (default: 3)",
           [](CommandLine& line, Text option, Text value) {
               line.tries = number<int>(option, value, 1, 100, "a whole number from 1 to 100");
           }},
    Option{"--trace", "", kEverywhere, "Print each frame on standard error",
           [](CommandLine& line, Text, Text) { line.trace = true; }},
    Option{"--drop", "<p>", kEverywhere, "Lose a frame with this probability, either way (default: 0)",
           [](CommandLine& line, Text option, Text value) { line.faults.drop = probability(option, value); }},
    Option{
        "--corrupt", "<p>", kEverywhere, "Invert a bit of a frame with this probability (default: 0)",
        [](CommandLine& line, Text option, Text value) { line.faults.corrupt = probability(option, value); }},
    Option{"--duplicate", "<p>", kEverywhere, "Double a frame with this probability (default: 0)",
           [](CommandLine& line, Text option, Text value) {
               line.faults.duplicate = probability(option, value);
           }},
    Option{"--delay", "<ms>", kEverywhere, "Hold each frame back for so many milliseconds (default: 0)",
           [](CommandLine& line, Text option, Text value) {
               line.faults.delay = std::chrono::milliseconds(
                   number<int>(option, value, 0, kEachDelay, "a number of milliseconds up to 60000"));
           }},
    Option{"--seed", "<n>", kEverywhere, "Which faults happen; the same seed, the same faults (default: 1)",
           [](CommandLine& line, Text option, Text value) {
               line.faults.seed =
                   number<std::uint64_t>(option, value, 0, ~std::uint64_t{0}, "a whole number");
           }},
    Option{"--as", "<name>", only(Kind::Save, Kind::SheetSave), "Name on the server (save: from FILE's own)",
           [](CommandLine& line, Text option, Text value) { line.command.name = serverName(option, value); }},
    Option{
        "--type", "<type>", only(Kind::Save, Kind::Load),
        "data, procedure or block:2 to block:16 (default: data)",
        [](CommandLine& line, Text option, Text value) { line.command.fileType = fileType(option, value); }},
    Option{"--mode", "<0..4>", only(Kind::Save, Kind::Write),
           "0 read, 1 create or replace, 2 replace, 3 create new, 4 append (default: 1; with --seek 4)",
           [](CommandLine& line, Text option, Text value) {
               line.command.mode =
                   static_cast<FileMode>(number<int>(option, value, 0, 4, "an open mode from 0 to 4"));
           }},
    Option{"-o", "<file>", only(Kind::Load, Kind::Read, Kind::Boot, Kind::SheetLoad),
           "Write to this file (default: standard output)",
           [](CommandLine& line, Text, Text value) { line.command.output = value; }},
    Option{"--lf", "", only(Kind::Load, Kind::Read, Kind::SheetLoad),
           "End the lines that are written here with LF (default: CR LF)",
           [](CommandLine& line, Text, Text) { line.command.crLf = false; }},
    Option{"--text", "", only(Kind::Read, Kind::Write), "Lines of a text file instead of bytes",
           [](CommandLine& line, Text, Text) { line.command.text = true; }},
    Option{"--seek", "<mode:offset>", only(Kind::Read, Kind::Write),
           "Begin there: 0 from the start, 1 from here, 2 from the end",
           [](CommandLine& line, Text option, Text value) { line.command.seek = seek(option, value); }},
    Option{"--long", "", only(Kind::Dir), "Long names instead of short ones",
           [](CommandLine& line, Text, Text) { line.command.longNames = true; }},
    Option{"--address", "<hex>", only(Kind::Boot, Kind::Tour), "Load address of the code (tour: 2000)",
           [](CommandLine& line, Text option, Text value) { line.command.address = address(option, value); }},
    Option{"--format", "<format>", only(Kind::SheetSave, Kind::SheetLoad), "wks, dif, csv, txt or tab",
           [](CommandLine& line, Text option, Text value) {
               line.command.sheetFormat = sheetFormat(option, value);
           }},
    Option{"--boot", "<name>", only(Kind::Tour), "Boot file to fetch on the way",
           [](CommandLine& line, Text option, Text value) {
               line.command.bootName = serverName(option, value);
           }},
};

/// What the one argument of a command is.
enum class Operand { None, LocalFile, ServerName, Pattern, NameAndFile };

struct CommandRow {
    std::string_view name;
    Kind kind;
    Operand operand;
    std::string_view arguments;  // for the help
    std::string_view help;
};

constexpr std::array kCommands{
    CommandRow{"save", Kind::Save, Operand::LocalFile, "FILE [--as NAME] [--type TYPE] [--mode 0..4]",
               "Save a file on the server"},
    CommandRow{"load", Kind::Load, Operand::ServerName, "NAME [--type TYPE] [-o FILE] [--lf]",
               "Load a file from the server"},
    CommandRow{"dir", Kind::Dir, Operand::Pattern, "[PATTERN] [--long]", "List the server's folder"},
    CommandRow{"read", Kind::Read, Operand::ServerName, "NAME [--text] [--seek MODE:OFFSET] [-o FILE] [--lf]",
               "Read any file of the server"},
    CommandRow{"write", Kind::Write, Operand::NameAndFile,
               "NAME FILE [--text] [--seek MODE:OFFSET] [--mode 0..4]", "Write any file of the server"},
    CommandRow{"sheet-save", Kind::SheetSave, Operand::LocalFile, "CELLS --as NAME --format FORMAT",
               "Save a spreadsheet as a worksheet file"},
    CommandRow{"sheet-load", Kind::SheetLoad, Operand::ServerName, "NAME --format FORMAT [-o FILE] [--lf]",
               "Load a worksheet file as a spreadsheet"},
    CommandRow{"formats", Kind::Formats, Operand::None, "", "List the server's worksheet formats"},
    CommandRow{"time", Kind::Time, Operand::None, "", "Ask for the local time"},
    CommandRow{"gmt", Kind::Gmt, Operand::None, "", "Ask for universal time"},
    CommandRow{"timeinfo", Kind::TimeInfo, Operand::None, "", "Ask for the local time and its zone"},
    CommandRow{"boot", Kind::Boot, Operand::ServerName, "NAME --address HEX [-o FILE]",
               "Fetch machine code for an address"},
    CommandRow{"service", Kind::Service, Operand::ServerName, "NAME",
               "Open any service and print its answer"},
    CommandRow{"exit", Kind::Exit, Operand::None, "", "Ask the server to stop serving"},
    CommandRow{"shutdown", Kind::Shutdown, Operand::None, "", "Ask the server's program to end"},
    CommandRow{"tour", Kind::Tour, Operand::None, "[--boot NAME] [--address HEX]",
               "Try everything in turn and tell about it"},
};

const CommandRow& commandRow(std::string_view name) {
    const auto* row = std::find_if(kCommands.begin(), kCommands.end(),
                                   [name](const CommandRow& candidate) { return candidate.name == name; });
    if (row == kCommands.end()) {
        throw UsageError("There is no command \"" + std::string(name) + "\".");
    }
    return *row;
}

/// Walks over the arguments. Options may stand anywhere and take their value behind "=" or as the next
/// argument; behind "--" nothing is an option.
class Parser {
  public:
    explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

    CommandLine parse() {
        for (bool options = true; next_ < arguments_.size();) {
            const std::string& argument = arguments_[next_++];
            if (options && argument == "--") {
                options = false;
            } else if (options && (argument == "--help" || argument == "-h")) {
                return {};
            } else if (options && argument.size() > 1 && argument[0] == '-') {
                option(argument);
            } else {
                operands_.push_back(argument);
            }
        }
        if (operands_.empty()) {
            throw UsageError("A command is missing.");
        }
        const CommandRow& row = commandRow(operands_.front());
        line_.command.kind = row.kind;
        operands_.erase(operands_.begin());
        takeOperands(row);
        check(row);
        return line_;
    }

  private:
    void option(const std::string& argument) {
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        const auto* row = std::find_if(kOptions.begin(), kOptions.end(),
                                       [&name](const Option& candidate) { return candidate.name == name; });
        if (row == kOptions.end()) {
            throw UsageError("There is no option " + name + ".");
        }
        std::string value;
        if (!row->value.empty()) {
            if (equals != std::string::npos) {
                value = argument.substr(equals + 1);
            } else if (next_ < arguments_.size()) {
                value = arguments_[next_++];
            } else {
                throw UsageError(name + " needs a value: " + std::string(row->value) + ".");
            }
        } else if (equals != std::string::npos) {
            throw UsageError(name + " takes no value.");
        }
        row->apply(line_, name, value);
        given_.push_back(row);
    }

    bool given(std::string_view name) const {
        return std::any_of(given_.begin(), given_.end(),
                           [name](const Option* option) { return option->name == name; });
    }

    void takeOperands(const CommandRow& row) {
        std::size_t least = 1;
        std::size_t most = 1;
        switch (row.operand) {
            case Operand::None:
                least = most = 0;
                break;
            case Operand::Pattern:
                least = 0;
                break;
            case Operand::NameAndFile:
                least = most = 2;
                break;
            case Operand::LocalFile:
            case Operand::ServerName:
                break;
        }
        if (operands_.size() < least || operands_.size() > most) {
            throw UsageError("It is: " + std::string(row.name) + (row.arguments.empty() ? "" : " ") +
                             std::string(row.arguments) + ".");
        }
        switch (row.operand) {
            case Operand::None:
                break;
            case Operand::LocalFile:
                line_.command.file = operands_[0];
                break;
            case Operand::ServerName:
                line_.command.name = serverName("NAME", operands_[0]);
                break;
            case Operand::Pattern:
                line_.command.name = operands_.empty() ? "*" : serverName("PATTERN", operands_[0]);
                break;
            case Operand::NameAndFile:
                line_.command.name = serverName("NAME", operands_[0]);
                line_.command.file = operands_[1];
                break;
        }
    }

    void require(std::string_view option, const CommandRow& row) const {
        if (!given(option)) {
            throw UsageError(std::string(row.name) + " needs " + std::string(option) + ".");
        }
    }

    void check(const CommandRow& row) {
        for (const Option* option : given_) {
            if ((option->commands & only(row.kind)) == 0) {
                throw UsageError(std::string(option->name) + " does not go with " + std::string(row.name) +
                                 ".");
            }
        }
        require("--device", row);
        Command& command = line_.command;
        if (command.kind == Kind::SheetSave || command.kind == Kind::SheetLoad) {
            require("--format", row);
        }
        if (command.kind == Kind::SheetSave) {
            require("--as", row);
        }
        if (command.kind == Kind::Boot) {
            require("--address", row);
        }
        if (command.text && command.seek) {
            throw UsageError("--seek counts bytes and does not go with --text.");
        }
        if (command.kind == Kind::Write && command.seek && !given("--mode")) {
            command.mode = FileMode::Append;
        }
        if (command.kind == Kind::Save && !given("--as")) {
            command.name = upperCase(serverName("FILE", stemOf(command.file)));
        }
    }

    const std::vector<std::string>& arguments_;
    std::size_t next_ = 0;
    CommandLine line_;
    std::vector<std::string> operands_;
    std::vector<const Option*> given_;
};

std::string helpRow(std::string_view left, std::string_view right, std::size_t width) {
    std::string row = "  " + std::string(left);
    row.append(row.size() < width ? width - row.size() : 1, ' ');
    return row.append(right) + "\n";
}

}  // namespace

const std::vector<int>& knownLineSpeeds() {
    static const std::vector<int> speeds{75,   110,  150,   300,   600,   1200,  2400,
                                         4800, 9600, 19200, 38400, 57600, 115200};
    return speeds;
}

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
    return Parser(arguments).parse();
}

std::string helpText() {
    constexpr std::size_t kCommandWidth = 14;
    constexpr std::size_t kOptionWidth = 26;
    std::string text =
        "Usage: velmora-organiser --device PATH [options] COMMAND ...\n"
        "\n"
        "A virtual Organiser: the handheld's side of the link, to try a cable, to demonstrate and to test.\n"
        "\n"
        "Commands:\n";
    for (const CommandRow& row : kCommands) {
        text += helpRow(row.name, row.help, kCommandWidth);
        if (!row.arguments.empty()) {
            text += helpRow("", row.arguments, kCommandWidth);
        }
    }
    text += "\nOptions:\n";
    for (const Option& option : kOptions) {
        const std::string left =
            std::string(option.name) + (option.value.empty() ? "" : " ") + std::string(option.value);
        text += helpRow(left, option.help, kOptionWidth);
    }
    text += helpRow("-h, --help", "Show this text", kOptionWidth);
    text +=
        "\n"
        "Exit status: 0 done, 1 a file on this side, 2 wrong usage, 3 refused by the server, 4 no link.\n";
    return text;
}

}  // namespace velmora
