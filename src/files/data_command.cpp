#include "files/data_command.h"

#include <array>
#include <limits>
#include <string_view>

#include "arguments/usage_error.h"
#include "files/quoted_line_breaks.h"
#include "services/data_conversion.h"
#include "services/line_reader.h"

namespace velmora {
namespace {

/// What stands between the fields of a form's lines.
char separatorOf(DataForm form) {
    switch (form) {
        case DataForm::Odb:
        case DataForm::Txt:
            return kTabs;
        case DataForm::Csv:
            return ',';
        case DataForm::CsvSemicolon:
            break;
    }
    return ';';
}

TextEncoding encodingOf(DataForm form, TextEncoding ofTexts) {
    return form == DataForm::Odb ? TextEncoding::Windows1252 : ofTexts;
}

/// The form that was given or else the one that the name's extension tells.
DataForm chosenForm(const std::optional<DataForm>& given, const char* option, const std::string& name,
                    const FileAccess& access) {
    const auto form = given ? given : dataFormNamed(lowerExtension(access.rules(), name));
    if (!form) {
        throw UsageError("the name \"" + name + "\" tells no form; use " + option +
                         " odb, txt, csv or csv-semicolon");
    }
    return *form;
}

}  // namespace

std::optional<DataForm> dataFormNamed(const std::string& name) {
    constexpr std::array<std::string_view, 4> kNames{"odb", "txt", "csv", "csv-semicolon"};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        if (name == kNames[i]) {
            return static_cast<DataForm>(i);
        }
    }
    return std::nullopt;
}

std::vector<std::string> readRecords(const std::string& text, char separator, const Tell& tell) {
    if (separator != kTabs) {
        tellQuotedLineBreaks(text, std::string_view(&separator, 1), InnerQuotes::Doubled, tell);
    }
    BytesFile file(text);
    LineReader reader(file);
    std::vector<std::string> records;
    std::string line;
    while (!reader.atEnd()) {
        reader.readLine(line, std::numeric_limits<std::size_t>::max());
        const std::string where = "line " + std::to_string(records.size() + 1) + ": ";
        if (separator != kTabs && line.find('\t') != std::string::npos) {
            tell(where + "a tab within a field makes two fields of it");
        }
        const std::string& record =
            records.emplace_back(separator == kTabs ? line : line_ToRecord(line, separator));
        if (record.size() > kLongestRecord) {
            tell(where + "the record is too long for the Organiser: " + std::to_string(record.size()) +
                 " bytes, it holds " + std::to_string(kLongestRecord));
        }
    }
    return records;
}

void runDataCommand(const DataRequest& request, const FileAccess& access) {
    const DataForm from = chosenForm(request.from, "--from", request.in, access);
    const DataForm to = chosenForm(request.to, "--to", request.out, access);
    const char separator = separatorOf(to);

    const std::string text = access.readText(request.in, encodingOf(from, request.encoding));
    std::string lines;
    for (const std::string& record : readRecords(text, separatorOf(from), access.tellOfInput(request.in))) {
        lines += separator == kTabs ? record : record_ToLine(record, separator);
        lines += "\r\n";
    }
    access.writeText(request.out, lines, encodingOf(to, request.encoding));
}

}  // namespace velmora
