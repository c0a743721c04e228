#include "files/sheet_command.h"

#include <array>

#include "arguments/usage_error.h"
#include "spreadsheet/spreadsheet.h"
#include "spreadsheet/text_reader.h"

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

void runSheetCommand(const SheetRequest& request, const FileAccess& access) {
    const int from = chosenFormat(request.from, "--from", request.in, access);
    const int to = chosenFormat(request.to, "--to", request.out, access);
    const std::string separator = request.separator.value_or(from == kFormatTab ? "\t" : ";");

    const std::unique_ptr<File> file = access.openInput(request.in);
    const bool isDelimited = from == kFormatCsv || from == kFormatTab;
    const SheetGrid sheet = isDelimited ? readDelimited(*file, separator, request.locale)
                                        : sheetFromFile(*file, from, {request.locale, request.fromDialect});
    file->close();
    access.writeOutput(request.out, sheetBytes(sheet, to, {request.locale, request.toDialect}));
}

}  // namespace velmora
