#include "files/sheet_command.h"

#include <array>

#include "arguments/usage_error.h"
#include "base/byte_text.h"
#include "base/system_text.h"
#include "files/quoted_line_breaks.h"
#include "spreadsheet/spreadsheet.h"
#include "spreadsheet/text_reader.h"
#include "spreadsheet/wks_reader.h"

namespace velmora {
namespace {

/// The format that was given or else that of the name's extension.
int chosenFormat(const std::optional<int>& given, const char* option, const std::string& name,
                 const FileAccess& access) {
    const int format = given.value_or(sheetFormatOf(lowerExtension(access.rules(), name)));
    if (format == 0) {
        throw UsageError("the name \"" + name + "\" tells no format; use " + option +
                         " wks, dif, csv, txt or tab");
    }
    return format;
}

/// Reads a file of any format but WKS.
SheetGrid readText(const SheetRequest& request, int format, const FileAccess& access, LeftOut& leftOut) {
    const std::string text = access.readText(request.in, request.encoding);
    BytesFile file(text);
    if (format != kFormatCsv && format != kFormatTab) {
        return sheetFromFile(file, format, {request.locale, request.fromDialect}, &leftOut);
    }
    const std::string separator = request.separator.value_or(format == kFormatTab ? "\t" : ";");
    tellQuotedLineBreaks(text, separator.empty() ? ";,\t" : separator, InnerQuotes::AsTheyAre,
                         access.tellOfInput(request.in));
    return readDelimited(file, separator, request.locale, &leftOut);
}

}  // namespace

int sheetFormatOf(const std::string& extension) {
    struct Row {
        const char* extension;
        int format;
    };
    static constexpr auto kKnown = std::to_array<Row>({{"wks", kFormatWks},
                                                       {"wk1", kFormatWks},
                                                       {"dif", kFormatDif},
                                                       {"csv", kFormatCsv},
                                                       {"txt", kFormatTxt},
                                                       {"tab", kFormatTab},
                                                       {"tsv", kFormatTab}});
    for (const Row& row : kKnown) {
        if (extension == row.extension) {
            return row.format;
        }
    }
    return 0;
}

void tellLeftOut(const LeftOut& leftOut, const Tell& tell) {
    const auto tellCount = [&tell](std::size_t count, const std::string& what) {
        if (count > 0) {
            tell(what + ": " + std::to_string(count));
        }
    };
    tellCount(leftOut.rows, "rows below 99 are left out");
    tellCount(leftOut.columns, "columns to the right of Z are left out");
    tellCount(leftOut.cells, "cells outside A1 to Z99 are left out");
    tellCount(leftOut.texts, "texts are cut to 250 characters");
    if (leftOut.end) {
        tell("the file is cut off; what follows is missing");
    }
}

void runSheetCommand(const SheetRequest& request, const FileAccess& access) {
    const int from = chosenFormat(request.from, "--from", request.in, access);
    const int to = chosenFormat(request.to, "--to", request.out, access);
    LeftOut leftOut;
    SheetGrid sheet;
    if (from == kFormatWks) {
        const std::unique_ptr<File> file = access.openInput(request.in);
        sheet = readWks(*file, request.fromDialect, &leftOut);
        file->close();
    } else {
        sheet = readText(request, from, access, leftOut);
    }
    tellLeftOut(leftOut, access.tellOfInput(request.in));
    const Tell tellOfOut = access.tellOfOutput(request.out);
    const std::string bytes =
        sheetBytes(sheet, to, {request.locale, request.toDialect},
                   [&tellOfOut](const std::string& line) { tellOfOut(toSystemText(showControls(line))); });
    if (to == kFormatWks) {
        access.writeOutput(request.out, bytes);
    } else {
        access.writeText(request.out, bytes, request.encoding);
    }
}

}  // namespace velmora
