#include "files/data_command.h"

#include <limits>

#include "arguments/usage_error.h"
#include "services/data_conversion.h"
#include "services/line_reader.h"

namespace velmora {
namespace {

constexpr char kTabs = '\0';

/// The separator of the form that was given or else of the one that the name's extension tells.
char chosenSeparator(const std::optional<char>& given, const char* option, const std::string& name,
                     const FileAccess& access) {
    const auto separator = given ? given : separatorOfForm(lowerExtension(access.rules(), name));
    if (!separator) {
        throw UsageError("the name \"" + name + "\" tells no form; use " + option +
                         " odb, txt, csv or csv-semicolon");
    }
    return *separator;
}

}  // namespace

std::optional<char> separatorOfForm(const std::string& form) {
    if (form == "odb" || form == "txt") {
        return kTabs;
    }
    if (form == "csv") {
        return ',';
    }
    if (form == "csv-semicolon") {
        return ';';
    }
    return std::nullopt;
}

std::vector<std::string> readRecords(File& file, char separator) {
    LineReader reader(file);
    std::vector<std::string> records;
    std::string line;
    while (!reader.atEnd()) {
        reader.readLine(line, std::numeric_limits<std::size_t>::max());
        records.push_back(separator == kTabs ? line : line_ToRecord(line, separator));
    }
    return records;
}

void runDataCommand(const DataRequest& request, const FileAccess& access) {
    const char from = chosenSeparator(request.from, "--from", request.in, access);
    const char to = chosenSeparator(request.to, "--to", request.out, access);

    const std::unique_ptr<File> file = access.openInput(request.in);
    std::string bytes;
    for (const std::string& record : readRecords(*file, from)) {
        bytes += to == kTabs ? record : record_ToLine(record, to);
        bytes += "\r\n";
    }
    file->close();
    access.writeOutput(request.out, bytes);
}

}  // namespace velmora
