#include "organiser/commands.h"

#include <ostream>
#include <string>

#include "base/byte_text.h"
#include "organiser/boot_client.h"
#include "organiser/cells_file.h"
#include "organiser/conversation.h"
#include "organiser/local_files.h"
#include "organiser/sheet_client.h"
#include "organiser/tour.h"

namespace velmora {
namespace {

std::string counted(std::size_t count, const std::string& unit) {
    return std::to_string(count) + " " + unit + (count == 1 ? "" : "s");
}

/// The commands of one run. Contents go to a file or to standard output, and in the second case words go to
/// standard error.
class Commands {
  public:
    Commands(const CommandLine& line, OrganiserLink& link, const Console& console)
        : command_(line.command),
          link_(link),
          console_(console),
          attempts_(link, line.tries,
                    [&console](const std::string& text) { console.error << text << '\n'; }) {}

    void save();
    void load();
    void dir();
    void read();
    void write();
    void formats();
    void stop(const std::string& service, const std::string& effect);
    void service();
    void clock(const std::string& service);
    void boot();
    void sheetSave();
    void sheetLoad();

  private:
    std::ostream& talk() { return command_.output ? console_.out : console_.error; }
    void deliver(std::string_view contents);

    const Command& command_;
    OrganiserLink& link_;
    const Console& console_;
    Attempts attempts_;
};

void Commands::deliver(std::string_view contents) {
    if (command_.output) {
        writeLocalFile(*command_.output, contents);
    } else {
        console_.out << contents << std::flush;
    }
}

void Commands::save() {
    FtranClient client(link_, console_.progress);
    const std::string bytes = readLocalInput(command_.file, console_.in);
    std::vector<std::string> lines;
    if (command_.fileType == kDataFile || command_.fileType == kProcedure) {
        lines = splitLines(bytes);
        // The lines of a procedure share messages, so only records have a limit of their own.
        checkLines(inputName(command_.file), lines,
                   command_.fileType == kDataFile ? kMostData : bytes.size());
    }
    bool made = false;
    attempts_.run(
        [&] {
            // A file that an earlier try has made is ours to make again.
            const FileMode mode =
                made && command_.mode == FileMode::CreateNew ? FileMode::Create : command_.mode;
            if (command_.fileType == kDataFile) {
                client.saveRecords(command_.name, mode, lines);
            } else if (command_.fileType == kProcedure) {
                client.saveProcedure(command_.name, mode, lines);
            } else {
                client.saveBlock(command_.name, mode, command_.fileType, bytes);
            }
        },
        [&] {
            made = made || client.written().opened;
            // Only records are added behind what is there; bytes are written over it from the start.
            const bool adds = command_.mode == FileMode::Append && command_.fileType == kDataFile;
            return !(adds && client.written().sentData);
        });
    console_.out << "Saved " << toUtf8(command_.name) << ", "
                 << (command_.fileType == kDataFile    ? counted(lines.size(), "record")
                     : command_.fileType == kProcedure ? counted(lines.size(), "line")
                                                       : counted(bytes.size(), "byte"))
                 << ".\n";
}

void Commands::load() {
    FtranClient client(link_, console_.progress);
    std::string contents;
    std::string amount;
    attempts_.run([&] {
        if (command_.fileType == kDataFile || command_.fileType == kProcedure) {
            const bool data = command_.fileType == kDataFile;
            const auto lines = data ? client.loadRecords(command_.name) : client.loadProcedure(command_.name);
            contents = joinLines(lines, command_.crLf);
            amount = counted(lines.size(), data ? "record" : "line");
        } else {
            contents = client.loadBlock(command_.name, command_.fileType);
            amount = counted(contents.size(), "byte");
        }
    });
    deliver(contents);
    talk() << "Loaded " << toUtf8(command_.name) << ", " << amount << ".\n";
}

void Commands::dir() {
    FileClient client(link_, console_.progress);
    std::vector<std::string> names;
    attempts_.run([&] { names = client.list(command_.name, command_.longNames); });
    for (const std::string& name : names) {
        console_.out << toUtf8(name) << '\n';
    }
}

void Commands::read() {
    FileClient client(link_, console_.progress);
    std::string contents;
    attempts_.run([&] {
        contents = command_.text ? joinLines(client.readLines(command_.name), command_.crLf)
                                 : client.readBytes(command_.name, command_.seek);
    });
    deliver(contents);
    talk() << "Read " << toUtf8(command_.name) << ", " << counted(contents.size(), "byte") << ".\n";
}

void Commands::write() {
    FileClient client(link_, console_.progress);
    const std::string bytes = readLocalInput(command_.file, console_.in);
    std::vector<std::string> lines;
    if (command_.text) {
        lines = splitLines(bytes);
        checkLines(inputName(command_.file), lines, kMostData);
    }
    bool made = false;
    attempts_.run(
        [&] {
            const FileMode mode =
                made && command_.mode == FileMode::CreateNew ? FileMode::Create : command_.mode;
            if (command_.text) {
                client.writeLines(command_.name, mode, lines);
            } else {
                client.writeBytes(command_.name, mode, command_.seek, bytes);
            }
        },
        [&] {
            made = made || client.written().opened;
            // Where bytes are counted from the end, the end has moved.
            const bool adds = (command_.text && command_.mode == FileMode::Append) ||
                              (command_.seek && command_.seek->from == Seek::From::End);
            return !(adds && client.written().sentData);
        });
    console_.out << "Wrote " << toUtf8(command_.name) << ", " << counted(bytes.size(), "byte") << ".\n";
}

void Commands::formats() {
    SheetClient client(link_, console_.progress);
    std::vector<OfferedFormat> entries;
    attempts_.run([&] { entries = client.formats(); });
    for (const OfferedFormat& entry : entries) {
        console_.out << entry.code << "  " << toUtf8(entry.name) << '\n';
    }
}

/// The server acts on the request when the link drops, which the end of the conversation sees to.
void Commands::stop(const std::string& service, const std::string& effect) {
    attempts_.run([&] { openService(link_, service); });
    console_.out << effect << '\n';
}

void Commands::service() {
    std::string reply;
    attempts_.run([&] { reply = openService(link_, command_.name); });
    console_.out << toUtf8(command_.name) << " answered " << counted(reply.size(), "byte") << ".\n";
    if (!reply.empty()) {
        console_.out << "hex:  " << hexDump(reply) << "\ntext: " << hexEscaped(reply) << '\n';
    }
}

void Commands::clock(const std::string& service) {
    std::string reply;
    attempts_.run([&] { reply = openService(link_, service); });
    console_.out << hexEscaped(reply) << '\n';
}

void Commands::boot() {
    BootCode code;
    attempts_.run(
        [&] { code = fetchBootCode(link_, console_.progress, command_.name, command_.address.value_or(0)); });
    deliver(code.code);
    std::string pieces;
    for (const std::size_t length : code.chunks) {
        pieces += (pieces.empty() ? " (" : ", ") + std::to_string(length);
    }
    talk() << "Loaded " << toUtf8(command_.name) << ", " << counted(code.code.size(), "byte")
           << " of code in " << counted(code.chunks.size(), "piece") << pieces << (pieces.empty() ? "" : ")")
           << ".\n";
}

void Commands::sheetSave() {
    SheetClient client(link_, console_.progress);
    const auto cells = parseCells(inputName(command_.file), readLocalInput(command_.file, console_.in));
    attempts_.run([&] { client.save(command_.name, command_.sheetFormat, cells); });
    console_.out << "Saved " << toUtf8(command_.name) << ", " << counted(cells.size(), "cell") << ".\n";
}

void Commands::sheetLoad() {
    SheetClient client(link_, console_.progress);
    std::vector<SheetCell> cells;
    attempts_.run([&] { cells = client.load(command_.name, command_.sheetFormat); });
    deliver(joinLines(cellLines(cells), command_.crLf));
    talk() << "Loaded " << toUtf8(command_.name) << ", " << counted(cells.size(), "cell") << ".\n";
}

ExitStatus statusOf(const LinkFailure& failure) {
    switch (failure.kind()) {
        case LinkFailure::Kind::Refused:
            return kRefused;
        case LinkFailure::Kind::Lost:
        case LinkFailure::Kind::NoLink:
        case LinkFailure::Kind::Unexpected:
            break;
    }
    return kNoLink;
}

}  // namespace

ExitStatus guarded(std::ostream& error, const std::function<void()>& action) {
    try {
        action();
        return kDone;
    } catch (const LocalFileError& problem) {
        error << problem.what() << '\n';
        return kLocalProblem;
    } catch (const LinkFailure& failure) {
        error << failure.what() << '\n';
        return statusOf(failure);
    } catch (const LineError& problem) {
        error << problem.what() << '\n';
        return kNoLink;
    }
}

ExitStatus runCommand(const CommandLine& line, OrganiserLink& link, const Console& console) {
    Commands commands(line, link, console);
    ExitStatus status = kDone;
    const ExitStatus failed = guarded(console.error, [&] {
        switch (line.command.kind) {
            case CommandKind::Save:
                commands.save();
                break;
            case CommandKind::Load:
                commands.load();
                break;
            case CommandKind::Dir:
                commands.dir();
                break;
            case CommandKind::Read:
                commands.read();
                break;
            case CommandKind::Write:
                commands.write();
                break;
            case CommandKind::Formats:
                commands.formats();
                break;
            case CommandKind::Exit:
                commands.stop("EXIT", "The server was asked to stop serving.");
                break;
            case CommandKind::Shutdown:
                commands.stop("SHUTDOWN", "The server's program was asked to end.");
                break;
            case CommandKind::Service:
                commands.service();
                break;
            case CommandKind::Time:
                commands.clock("TIME");
                break;
            case CommandKind::Gmt:
                commands.clock("GMT");
                break;
            case CommandKind::TimeInfo:
                commands.clock("TIMEINFO");
                break;
            case CommandKind::Boot:
                commands.boot();
                break;
            case CommandKind::SheetSave:
                commands.sheetSave();
                break;
            case CommandKind::SheetLoad:
                commands.sheetLoad();
                break;
            case CommandKind::ListPorts:  // unreachable: needs no link, and is done before
            case CommandKind::Replay:     // unreachable: has a link of its own
                break;                    // unreachable: as above
            case CommandKind::Tour:
                status = runTour(line, link, console);
                break;
        }
    });
    return failed != kDone ? failed : status;
}

}  // namespace velmora
