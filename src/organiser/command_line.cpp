#include "organiser/command_line.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "arguments/argument_values.h"
#include "arguments/syntax.h"
#include "base/byte_text.h"
#include "organiser/commands.h"
#include "organiser/local_files.h"
#include "serial/mode_string.h"

namespace velmora {
namespace {

constexpr std::string_view kFormats = "wks, dif, csv, txt or tab";

double probability(std::string_view option, std::string_view value) {
    return numberValue<double>(option, value, 0, 1, "a probability from 0 to 1");
}

/// A name for the server: its bytes are Windows-1252.
std::string serverName(std::string_view what, std::string_view typed) {
    const auto name = fromUtf8(typed);
    if (!name) {
        throw UsageError(std::string(what) + ": \"" + std::string(typed) +
                         "\" has a character that the Organiser does not know");
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
    if (!value.starts_with(kBlock)) {
        wrongValue(option, value, kExpected);
    }
    return numberValue<int>(option, value.substr(kBlock.size()), kFirstBlockType, kLastBlockType, kExpected);
}

Seek seek(std::string_view option, std::string_view value) {
    constexpr std::string_view kExpected =
        "MODE:OFFSET with 0 (start), 1 (here) or 2 (end) and a whole number";
    constexpr std::int64_t kMost = 2'147'483'647;
    if (value.size() < 3 || value[0] < '0' || value[0] > '2' || value[1] != ':') {
        wrongValue(option, value, kExpected);
    }
    return {static_cast<Seek::From>(value[0] - '0'),
            numberValue<std::int64_t>(option, value.substr(2), -kMost, kMost, kExpected)};
}

std::uint16_t address(std::string_view option, std::string_view value) {
    std::string_view digits = value;
    if (digits.starts_with("0x") || digits.starts_with("0X")) {
        digits.remove_prefix(2);
    }
    return numberValue<std::uint16_t>(option, digits, 0, 0xFFFF, "an address in hexadecimal, 0 to FFFF", 16);
}

int sheetFormat(std::string_view option, std::string_view value) {
    constexpr std::array<std::string_view, 5> kNames{"wks", "dif", "csv", "txt", "tab"};
    constexpr int kFirstCode = 2;
    const std::string wanted = lowerCase(value);
    const auto* found = std::find(kNames.begin(), kNames.end(), wanted);
    if (found == kNames.end()) {
        wrongValue(option, value, kFormats);
    }
    return kFirstCode + static_cast<int>(found - kNames.begin());
}

int lineSpeed(std::string_view option, std::string_view value) {
    return numberValue<int>(option, value, kLowestRate, kHighestRate, "a line speed from 1 to 4000000");
}

/// The syntax of the whole command line. What is read goes into the line that it is made for.
class Syntax {
  public:
    explicit Syntax(CommandLine& line)
        : line_(line),
          command_(line.command),
          program_("velmora-organiser",
                   "A virtual Organiser: the handheld's side of the link, to try a cable, to demonstrate and "
                   "to test.") {
        addLine();
        addFaults();
        addFtranCommands();
        addFileCommands();
        addSheetCommands();
        addServices();
        addTour();
        addReplay();
        program_.note("velmora-organiser COMMAND --help tells about a command.");
        program_.exitStatuses({{kDone, "done"},
                               {kLocalProblem, "a file on this side, or a replay that differs"},
                               {kWrongUsage, "wrong usage"},
                               {kRefused, "refused by the server"},
                               {kNoLink, "no link"}});
    }

    void read(const std::vector<std::string>& arguments) {
        program_.read(arguments);
        if (listPorts_) {
            command_.kind = CommandKind::ListPorts;
            return;
        }
        finish();
    }

    ProgramOutline outline() const { return program_.outline(); }

  private:
    void addLine();
    void addFaults();
    void addFtranCommands();
    void addFileCommands();
    void addSheetCommands();
    void addServices();
    void addTour();
    void addReplay();
    void finish();

    CommandSyntax command(const std::string& name, CommandKind kind, const std::string& help) {
        return program_.command(name, help, [this, kind] { command_.kind = kind; });
    }
    /// An operand or option that is a name on the server.
    CommandSyntax::Take name(const std::string& what) {
        return [this, what](const std::string& value) { command_.name = serverName(what, value); };
    }
    CommandSyntax::Take file() {
        return [this](const std::string& value) { command_.file = value; };
    }
    void addFileType(CommandSyntax& syntax);
    void addMode(CommandSyntax& syntax);
    void addOutput(CommandSyntax& syntax);
    void addLineEnds(CommandSyntax& syntax);
    void addTextAndSeek(CommandSyntax& syntax);
    void addFormat(CommandSyntax& syntax);
    void addAddress(CommandSyntax& syntax, const std::string& help, Presence presence);

    CommandLine& line_;
    Command& command_;
    ProgramSyntax program_;
    std::optional<FileMode> mode_;
    bool lf_ = false;
    bool listPorts_ = false;
};

void Syntax::addLine() {
    program_.option(
        "--device", "<port>",
        "Serial device that leads to the server, or a name\nthat --list-ports prints (needed)",
        [this](const std::string& value) { line_.device = value; }, Presence::Required);
    program_.option("--baud", "<rate>", "Line speed (default: 9600)",
                    [this](const std::string& value) { line_.baud = lineSpeed("--baud", value); });
    program_.option("--tries", "<n>", "Times that a conversation is begun whose link\nbreaks (default: 3)",
                    [this](const std::string& value) {
                        line_.tries =
                            numberValue<int>("--tries", value, 1, 100, "a whole number from 1 to 100");
                    });
    program_.flag("--trace", "Print each frame on standard error", line_.trace);
    program_.standAloneFlag("--list-ports", "Print the serial ports that are present, and end", listPorts_);
    program_.flag("--json", "With --list-ports: as JSON", command_.json);
}

void Syntax::addFaults() {
    const auto addProbability = [this](const std::string& option, const std::string& help, double& target) {
        program_.option(option, "<p>", help,
                        [option, &target](const std::string& value) { target = probability(option, value); });
    };
    FaultOptions& faults = line_.faults;
    addProbability("--drop", "Lose a frame with this probability, either way\n(default: 0)", faults.drop);
    addProbability("--corrupt", "Invert a bit of a frame with this probability\n(default: 0)",
                   faults.corrupt);
    addProbability("--duplicate", "Double a frame with this probability (default: 0)", faults.duplicate);
    program_.option("--delay", "<ms>", "Hold each frame back for so many milliseconds\n(default: 0)",
                    [&faults](const std::string& value) {
                        constexpr int kEachDelay = 60'000;
                        faults.delay = std::chrono::milliseconds(numberValue<int>(
                            "--delay", value, 0, kEachDelay, "a number of milliseconds up to 60000"));
                    });
    program_.option("--seed", "<n>", "Which faults happen; the same seed, the same faults\n(default: 1)",
                    [&faults](const std::string& value) {
                        faults.seed = numberValue<std::uint64_t>("--seed", value, 0, ~std::uint64_t{0},
                                                                 "a whole number");
                    });
}

void Syntax::addFileType(CommandSyntax& syntax) {
    syntax.option("--type", "<type>", "data, procedure or block:2 to block:16\n(default: data)",
                  [this](const std::string& value) { command_.fileType = fileType("--type", value); });
}

void Syntax::addMode(CommandSyntax& syntax) {
    syntax.option(
        "--mode", "<0..4>",
        "0 read, 1 create or replace, 2 replace,\n3 create new, 4 append (default: 1; with --seek 4)",
        [this](const std::string& value) {
            mode_ =
                static_cast<FileMode>(numberValue<int>("--mode", value, 0, 4, "an open mode from 0 to 4"));
        });
}

void Syntax::addOutput(CommandSyntax& syntax) {
    syntax.option("-o", "<file>", "Write to this file (default: \"-\", standard output)",
                  [this](const std::string& value) {
                      command_.output =
                          value == kStandardStream ? std::nullopt : std::optional<std::string>(value);
                  });
}

void Syntax::addLineEnds(CommandSyntax& syntax) {
    syntax.flag("--lf", "End the lines that are written here with LF\n(default: CR LF)", lf_);
}

void Syntax::addTextAndSeek(CommandSyntax& syntax) {
    syntax.flag("--text", "Lines of a text file instead of bytes", command_.text);
    syntax.option("--seek", "<mode:offset>", "Begin there: 0 from the start, 1 from here,\n2 from the end",
                  [this](const std::string& value) { command_.seek = seek("--seek", value); });
}

void Syntax::addFormat(CommandSyntax& syntax) {
    syntax.option(
        "--format", "<format>", std::string(kFormats) + " (needed)",
        [this](const std::string& value) { command_.sheetFormat = sheetFormat("--format", value); },
        Presence::Required);
}

void Syntax::addAddress(CommandSyntax& syntax, const std::string& help, Presence presence) {
    syntax.option(
        "--address", "<hex>", help,
        [this](const std::string& value) { command_.address = address("--address", value); }, presence);
}

void Syntax::addFtranCommands() {
    CommandSyntax save = command("save", CommandKind::Save, "Save a file on the server");
    save.operand("FILE", "File on this side, \"-\" for standard input", file());
    save.option("--as", "<name>", "Name on the server (default: from FILE's own)", name("--as"));
    addFileType(save);
    addMode(save);
    CommandSyntax load = command("load", CommandKind::Load, "Load a file from the server");
    load.operand("NAME", "Name on the server", name("NAME"));
    addFileType(load);
    addOutput(load);
    addLineEnds(load);
}

void Syntax::addFileCommands() {
    CommandSyntax dir = command("dir", CommandKind::Dir, "List the server's folder");
    dir.operand("PATTERN", "Names, such as TOUR* (default: all)", name("PATTERN"), Presence::Optional);
    dir.flag("--long", "Long names instead of short ones", command_.longNames);
    CommandSyntax read = command("read", CommandKind::Read, "Read any file of the server");
    read.operand("NAME", "Name on the server", name("NAME"));
    addTextAndSeek(read);
    addOutput(read);
    addLineEnds(read);
    CommandSyntax write = command("write", CommandKind::Write, "Write any file of the server");
    write.operand("NAME", "Name on the server", name("NAME"));
    write.operand("FILE", "File on this side, \"-\" for standard input", file());
    addTextAndSeek(write);
    addMode(write);
}

void Syntax::addSheetCommands() {
    CommandSyntax save =
        command("sheet-save", CommandKind::SheetSave, "Save a spreadsheet as a worksheet file");
    save.operand("CELLS", "File on this side, one cell a line, or \"-\"", file());
    save.option("--as", "<name>", "Name on the server (needed)", name("--as"), Presence::Required);
    addFormat(save);
    CommandSyntax load =
        command("sheet-load", CommandKind::SheetLoad, "Load a worksheet file as a spreadsheet");
    load.operand("NAME", "Name on the server", name("NAME"));
    addFormat(load);
    addOutput(load);
    addLineEnds(load);
    command("formats", CommandKind::Formats, "List the server's worksheet formats");
}

void Syntax::addServices() {
    command("time", CommandKind::Time, "Ask for the local time");
    command("gmt", CommandKind::Gmt, "Ask for universal time");
    command("timeinfo", CommandKind::TimeInfo, "Ask for the local time and its zone");
    CommandSyntax boot = command("boot", CommandKind::Boot, "Fetch machine code for an address");
    boot.operand("NAME", "Name on the server, without .bin", name("NAME"));
    addAddress(boot, "Load address of the code (needed)", Presence::Required);
    addOutput(boot);
    CommandSyntax service = command("service", CommandKind::Service, "Open any service and print its answer");
    service.operand("SERVICE", "Name of the service", name("SERVICE"));
    command("exit", CommandKind::Exit, "Ask the server to stop serving");
    command("shutdown", CommandKind::Shutdown, "Ask the server's program to end");
}

void Syntax::addTour() {
    CommandSyntax tour = command("tour", CommandKind::Tour, "Try everything in turn and tell about it");
    tour.option("--boot", "<name>", "Boot file to fetch on the way",
                [this](const std::string& value) { command_.bootName = serverName("--boot", value); });
    addAddress(tour, "Load address of its code (default: 2000)", Presence::Optional);
}

void Syntax::addReplay() {
    CommandSyntax replay =
        command("replay", CommandKind::Replay, "Play a capture's Organiser and compare the answers");
    replay.operand("CAPTURE", "File (pcapng), as velmorad --capture makes it, or \"-\"", file());
}

/// What follows from the options together.
void Syntax::finish() {
    if (command_.json) {
        throw UsageError("--json goes with --list-ports");
    }
    if (command_.text && command_.seek) {
        throw UsageError("--seek counts bytes and does not go with --text");
    }
    command_.crLf = !lf_;
    command_.mode = mode_.value_or(command_.seek ? FileMode::Append : FileMode::Create);
    if (command_.kind == CommandKind::Save && command_.name.empty()) {
        if (command_.file == kStandardStream) {
            throw UsageError("--as is required when FILE is standard input");
        }
        command_.name = upperCase(serverName("FILE", stemOf(command_.file)));
    }
    if (command_.kind == CommandKind::Dir && command_.name.empty()) {
        command_.name = "*";
    }
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    Syntax(line).read(arguments);
    return line;
}

ProgramOutline commandLineOutline() {
    CommandLine line;
    return Syntax(line).outline();
}

}  // namespace velmora
