#include "services/data_conversion.h"

namespace velmora {
namespace {

constexpr char kTab = '\t';
constexpr char kQuote = '"';

void appendField(std::string& line, std::string_view field, char separator) {
    if (field.find(separator) == std::string_view::npos && field.find(kQuote) == std::string_view::npos) {
        line += field;
        return;
    }
    line += kQuote;
    for (const char c : field) {
        line.append(c == kQuote ? 2 : 1, c);
    }
    line += kQuote;
}

}  // namespace

std::string record_ToLine(std::string_view record, char separator) {
    std::string line;
    while (true) {
        const std::size_t tab = record.find(kTab);
        appendField(line, record.substr(0, tab), separator);
        if (tab == std::string_view::npos) {
            return line;
        }
        line += separator;
        record.remove_prefix(tab + 1);
    }
}

std::string line_ToRecord(std::string_view line, char separator) {
    std::string record;
    bool insideQuotes = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        const bool last = i + 1 == line.size();
        const bool quoteFollows = !last && line[i + 1] == kQuote;
        if (c == kQuote && insideQuotes && (last || line[i + 1] == separator)) {
            insideQuotes = false;
        } else if (c == kQuote) {
            record += kQuote;
            i += quoteFollows ? 1 : 0;
        } else if (c == separator && !insideQuotes) {
            record += kTab;
            insideQuotes = quoteFollows;
            i += quoteFollows ? 1 : 0;
        } else {
            record += c;
        }
    }
    record.erase(record.find_last_not_of(kTab) + 1);
    return record;
}

}  // namespace velmora
