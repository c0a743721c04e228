#include "files/data_command.h"

#include <limits>

#include "base/byte_text.h"
#include "files/arguments.h"
#include "services/data_conversion.h"
#include "services/line_reader.h"

namespace velmora {
namespace {

constexpr char kTabs = '\0';

std::optional<char> separatorOf(const std::string& form) {
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

char chosenSeparator(const Arguments& arguments, const std::string& option, const std::string& name,
                     const FileAccess& access) {
    const bool given = arguments.has(option);
    const auto separator =
        separatorOf(given ? lowerCase(arguments.value(option)) : lowerExtension(access.rules(), name));
    if (!separator && given) {
        throw UsageError("\"" + arguments.value(option) + "\" is no form: odb, txt, csv or csv-semicolon");
    }
    if (!separator) {
        throw UsageError("the name \"" + name + "\" tells no form; use " + option +
                         " odb, txt, csv or csv-semicolon");
    }
    return *separator;
}

}  // namespace

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

void runDataCommand(const std::vector<std::string>& arguments, const FileAccess& access) {
    const Arguments parsed(arguments, {"--from", "--to"});
    parsed.requireWords({"IN", "OUT"});
    const std::string& in = parsed.words()[0];
    const std::string& out = parsed.words()[1];
    const char from = chosenSeparator(parsed, "--from", in, access);
    const char to = chosenSeparator(parsed, "--to", out, access);

    const std::unique_ptr<File> file = access.openInput(in);
    std::string bytes;
    for (const std::string& record : readRecords(*file, from)) {
        bytes += to == kTabs ? record : record_ToLine(record, to);
        bytes += "\r\n";
    }
    file->close();
    access.writeOutput(out, bytes);
}

}  // namespace velmora
