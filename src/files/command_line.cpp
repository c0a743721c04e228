#include "files/command_line.h"

#include "arguments/argument_values.h"
#include "arguments/syntax.h"
#include "base/byte_text.h"
#include "files/boot_command.h"
#include "files/capture_command.h"
#include "files/data_command.h"
#include "files/sheet_command.h"
#include "files/show_command.h"

namespace velmora {
namespace {

CommandSyntax::Take into(std::string& target) {
    return [&target](const std::string& value) { target = value; };
}

TextEncoding textEncoding(const std::string& value) {
    const std::string name = lowerCase(value);
    if (name == "utf-8") {
        return TextEncoding::Utf8;
    }
    if (name != "windows-1252") {
        wrongValue("--encoding", value, "utf-8 or windows-1252");
    }
    return TextEncoding::Windows1252;
}

WksDialect dialect(const std::string& option, const std::string& value) {
    const std::string name = lowerCase(value);
    if (name == "common" || name == "1") {
        return WksDialect::Common;
    }
    if (name == "own" || name == "0") {
        return WksDialect::Own;
    }
    wrongValue(option, value, "own or common");
}

NumberLocale locale(const std::string& value) {
    const auto found = namedNumberLocale(value);
    if (!found) {
        wrongValue("--locale", value, "a known locale; try a language such as de or en_US");
    }
    return *found;
}

/// The sign between fields; empty to find it from the lines.
std::string separator(const std::string& value) {
    if (value == "auto") {
        return {};
    }
    if (value == "tab") {
        return "\t";
    }
    if (value.size() != 1) {
        wrongValue("--separator", value, "one character, tab or auto");
    }
    return value;
}

/// The commands and what is read for them.
class Syntax {
  public:
    Syntax()
        : program_("velmora-files",
                   "Converts what the Organiser keeps on a PC. \"-\" is standard input or output.",
                   ProgramSyntax::Repeated::Refused) {
        addCommon();
        addSheet();
        addData();
        addBoot();
        addShow();
        addCapture();
        program_.note("velmora-files COMMAND --help tells about a command.");
        program_.exitStatuses({{0, "done"},
                               {1, "a file failed or is damaged"},
                               {2, "wrong usage"},
                               {3, "something was left out and --strict was given"}});
    }

    FilesCommandLine read(const std::vector<std::string>& arguments) {
        program_.read(arguments);
        return {chosen_, strict_};
    }

    ProgramOutline outline() const { return program_.outline(); }

  private:
    void addCommon();
    void addSheet();
    void addData();
    void addBoot();
    void addShow();
    void addCapture();
    static void addInAndOut(CommandSyntax& command, std::string& in, std::string& out);

    ProgramSyntax program_;
    bool strict_ = false;
    SheetRequest sheet_;
    DataRequest data_;
    BootMakeRequest bootMake_;
    std::string bootFile_;
    ShowRequest show_;
    std::string captureFile_;
    FilesCommand chosen_;
};

void Syntax::addCommon() {
    program_.flag("--strict", "Status 3 when something is left out or changed", strict_);
    program_.option("--encoding", "<name>",
                    "Of texts on the PC's side, all but odb and wks:\nutf-8 or windows-1252 (default)",
                    [this](const std::string& value) {
                        const TextEncoding encoding = textEncoding(value);
                        sheet_.encoding = data_.encoding = show_.encoding = encoding;
                    });
}

void Syntax::addInAndOut(CommandSyntax& command, std::string& in, std::string& out) {
    command.operand("IN", "File to read", into(in));
    command.operand("OUT", "File to write", into(out));
}

void Syntax::addSheet() {
    CommandSyntax sheet = program_.command("sheet", "Convert a worksheet from one format to another", [this] {
        chosen_ = [request = sheet_](const FileAccess& access) {
            runSheetCommand(request, access);
            return true;
        };
    });
    addInAndOut(sheet, sheet_.in, sheet_.out);
    const auto addFormat = [&sheet](const std::string& option, const std::string& help,
                                    std::optional<int>& target) {
        sheet.option(option, "<format>", help, [option, &target](const std::string& value) {
            target = sheetFormatOf(lowerCase(value));
            if (target == 0) {
                wrongValue(option, value, "wks, dif, csv, txt or tab");
            }
        });
    };
    addFormat("--from", "Of IN: wks, dif, csv, txt or tab\n(default: from the extension)", sheet_.from);
    addFormat("--to", "The same of OUT", sheet_.to);
    sheet_.locale = namedNumberLocale("").value_or(NumberLocale{});
    sheet.option("--locale", "<name>", "How numbers are written in text files\n(default: the user's)",
                 [this](const std::string& value) { sheet_.locale = locale(value); });
    sheet.option("--separator", "<sign>",
                 "Between the fields of a csv or tab file that is\n"
                 "read: one character, tab, or auto to find it\n(default: ; for csv, tab for tab)",
                 [this](const std::string& value) { sheet_.separator = separator(value); });
    sheet.option("--wks-dialect", "<name>",
                 "Tokens of formulas: own (default) or common,\nwhich other programs use",
                 [this](const std::string& value) {
                     sheet_.fromDialect = sheet_.toDialect = dialect("--wks-dialect", value);
                 });
    sheet.option("--from-dialect", "<name>", "The same for IN only",
                 [this](const std::string& value) { sheet_.fromDialect = dialect("--from-dialect", value); });
    sheet.option("--to-dialect", "<name>", "The same for OUT only",
                 [this](const std::string& value) { sheet_.toDialect = dialect("--to-dialect", value); });
}

void Syntax::addData() {
    CommandSyntax data = program_.command("data", "Convert a data file from one form to another", [this] {
        chosen_ = [request = data_](const FileAccess& access) {
            runDataCommand(request, access);
            return true;
        };
    });
    addInAndOut(data, data_.in, data_.out);
    const auto addForm = [&data](const std::string& option, const std::string& help,
                                 std::optional<DataForm>& target) {
        data.option(option, "<form>", help, [option, &target](const std::string& value) {
            target = dataFormNamed(lowerCase(value));
            if (!target) {
                wrongValue(option, value, "odb, txt, csv or csv-semicolon");
            }
        });
    };
    addForm("--from", "Of IN: odb, txt, csv or csv-semicolon\n(default: from the extension)", data_.from);
    addForm("--to", "The same of OUT", data_.to);
}

void Syntax::addBoot() {
    CommandSyntax boot = program_.command("boot", "Make a boot file from machine code, or check one", {});
    CommandSyntax make = boot.command("make", "Make a boot file", [this] {
        chosen_ = [request = bootMake_](const FileAccess& access) {
            runBootMakeCommand(request, access);
            return true;
        };
    });
    make.operand("CODE", "Machine code that was assembled for address 0", into(bootMake_.code));
    make.optionOrEmpty("--relocations", "<offsets>",
                       "Of words that hold an address: 16,0x20 or @FILE,\n\"\" for none (needed)",
                       into(bootMake_.relocations), Presence::Required);
    make.option("-o", "<file>", "File to write (needed)", into(bootMake_.out), Presence::Required);
    CommandSyntax check = boot.command("check", "Tell what a boot file holds and what is wrong", [this] {
        chosen_ = [name = bootFile_](const FileAccess& access) { return runBootCheckCommand(name, access); };
    });
    check.operand("FILE", "The boot file", into(bootFile_));
}

void Syntax::addShow() {
    CommandSyntax show = program_.command("show", "Tell what a file holds", [this] {
        chosen_ = [request = show_](const FileAccess& access) { return runShowCommand(request, access); };
    });
    show.operand("FILE", "File to read", into(show_.file));
    show.option("--as", "<kind>", "wks, dif, data, csv, block, opl or boot\n(default: recognised)",
                [this](const std::string& value) {
                    show_.as = kindNamed(lowerCase(value));
                    if (show_.as == FileKind::Unknown) {
                        wrongValue("--as", value, "wks, dif, data, csv, block, opl or boot");
                    }
                });
    show.option("--wks-dialect", "<name>", "Tokens of formulas: own (default) or common",
                [this](const std::string& value) { show_.dialect = dialect("--wks-dialect", value); });
}

void Syntax::addCapture() {
    CommandSyntax capture =
        program_.command("capture", "Print what passed over the line, and count it", [this] {
            chosen_ = [name = captureFile_](const FileAccess& access) {
                return runCaptureCommand(name, access);
            };
        });
    capture.operand("FILE", "A capture (pcapng), as velmorad --capture makes it", into(captureFile_));
}

}  // namespace

FilesCommandLine readFilesCommandLine(const std::vector<std::string>& arguments) {
    return Syntax().read(arguments);
}

ProgramOutline filesOutline() {
    return Syntax().outline();
}

}  // namespace velmora
