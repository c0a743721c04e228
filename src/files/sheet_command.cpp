#include "files/sheet_command.h"

#include "base/byte_text.h"
#include "files/arguments.h"
#include "spreadsheet/spreadsheet.h"
#include "spreadsheet/text_reader.h"

namespace velmora {
namespace {

/// The format that an option or else the extension of a name gives.
int chosenFormat(const Arguments& arguments, const std::string& option, const std::string& name,
                 const FileAccess& access) {
    if (arguments.has(option)) {
        const int format = sheetFormatOf(lowerCase(arguments.value(option)));
        if (format == 0) {
            throw UsageError("\"" + arguments.value(option) + "\" is no format: wks, dif, csv, txt or tab");
        }
        return format;
    }
    const int format = sheetFormatOf(lowerExtension(access.rules(), name));
    if (format == 0) {
        throw UsageError("the name \"" + name + "\" tells no format; use " + option +
                         " wks, dif, csv, txt or tab");
    }
    return format;
}

NumberLocale chosenLocale(const Arguments& arguments) {
    const auto locale = namedNumberLocale(arguments.value("--locale"));
    if (!locale && arguments.has("--locale")) {
        throw UsageError("the locale \"" + arguments.value("--locale") +
                         "\" is not known; try a language such as de or en_US");
    }
    return locale.value_or(NumberLocale{});
}

WksDialect chosenDialect(const Arguments& arguments, const std::string& side) {
    const std::string option = arguments.has(side) ? side : "--wks-dialect";
    const std::string value = lowerCase(arguments.value(option));
    if (value == "common" || value == "1") {
        return WksDialect::Common;
    }
    if (value == "own" || value == "0" || !arguments.has(option)) {
        return WksDialect::Own;
    }
    throw UsageError("\"" + arguments.value(option) + "\" is no dialect: own or common");
}

/// The sign between fields; empty to find it from the lines.
std::string chosenSeparator(const Arguments& arguments, int format) {
    std::string sign = arguments.value("--separator");
    if (!arguments.has("--separator")) {
        return format == kFormatTab ? "\t" : ";";
    }
    if (sign == "auto") {
        return {};
    }
    if (sign == "tab") {
        return "\t";
    }
    if (sign.size() != 1) {
        throw UsageError("\"" + sign + "\" is no separator: one character, \"tab\" or \"auto\"");
    }
    return sign;
}

}  // namespace

int sheetFormatOf(const std::string& extension) {
    const struct {
        const char* extension;
        int format;
    } known[] = {{"wks", kFormatWks}, {"wk1", kFormatWks}, {"dif", kFormatDif}, {"csv", kFormatCsv},
                 {"txt", kFormatTxt}, {"tab", kFormatTab}, {"tsv", kFormatTab}};
    for (const auto& row : known) {
        if (extension == row.extension) {
            return row.format;
        }
    }
    return 0;
}

void runSheetCommand(const std::vector<std::string>& arguments, const FileAccess& access) {
    const Arguments parsed(arguments, {"--from", "--to", "--locale", "--separator", "--wks-dialect",
                                       "--from-dialect", "--to-dialect"});
    parsed.requireWords({"IN", "OUT"});
    const std::string& in = parsed.words()[0];
    const std::string& out = parsed.words()[1];
    const int from = chosenFormat(parsed, "--from", in, access);
    const int to = chosenFormat(parsed, "--to", out, access);
    const NumberLocale locale = chosenLocale(parsed);
    const SpreadsheetSettings reading{locale, chosenDialect(parsed, "--from-dialect")};
    const SpreadsheetSettings writing{locale, chosenDialect(parsed, "--to-dialect")};
    const std::string separator = chosenSeparator(parsed, from);

    const std::unique_ptr<File> file = access.openInput(in);
    const bool isDelimited = from == kFormatCsv || from == kFormatTab;
    const SheetGrid sheet =
        isDelimited ? readDelimited(*file, separator, locale) : sheetFromFile(*file, from, reading);
    file->close();
    access.writeOutput(out, sheetBytes(sheet, to, writing));
}

}  // namespace velmora
