#include "file_contents.h"

#include <algorithm>

#include "simulated_server.h"

namespace velmora::simulation {
namespace {

constexpr std::size_t kMessage = 250;

std::string csvLine(const std::string& record, char separator) {
    std::string line;
    std::size_t begin = 0;
    for (bool last = false; !last;) {
        const std::size_t end = record.find('\t', begin);
        last = end == std::string::npos;
        const std::string field = record.substr(begin, last ? end : end - begin);
        if (field.find_first_of(std::string{separator, '"'}) == std::string::npos) {
            line += field;
        } else {
            line += '"';
            for (const char c : field) {
                line += c == '"' ? std::string("\"\"") : std::string(1, c);
            }
            line += '"';
        }
        line += last ? "" : std::string(1, separator);
        begin = end + 1;
    }
    return line;
}

std::string twoBytes(std::size_t number) {
    return {static_cast<char>(number / 256), static_cast<char>(number % 256)};
}

}  // namespace

FileContent recordsContent(const std::vector<std::string>& records, std::size_t count, int dataFileType,
                           bool ownExtension) {
    FileContent content{{}, Form::Records, dataFileType, ownExtension, {}};
    for (std::size_t i = 0; i < count; ++i) {
        const bool separated = dataFileType >= 2 && !ownExtension;
        content.bytes += separated ? csvLine(records[i], dataFileType == 2 ? ',' : ';') : records[i];
        content.bytes += "\r\n";
        content.records.push_back(records[i]);
    }
    return content;
}

FileContent procedureContent(const std::vector<std::string>& lines, std::size_t chunks) {
    std::string source;
    for (const std::string& line : lines) {
        source += line + '\0';
    }
    FileContent content{{}, Form::Procedure, 0, false, {}};
    for (const char c : carried(source, chunks)) {
        content.bytes += c == '\0' ? std::string("\r\n") : std::string(1, c);
    }
    return content;
}

FileContent blockContent(std::string_view data, int type, std::size_t chunks, bool complete) {
    const std::string_view arrived = carried(data, chunks);
    return {"ORG" + twoBytes(complete ? arrived.size() : 0) + static_cast<char>(128 + type) +
                std::string(arrived),
            Form::Block,
            type,
            false,
            {}};
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find("\r\n"), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 2, text.size()));
    }
    return lines;
}

std::string_view carried(std::string_view bytes, std::size_t count) {
    return bytes.substr(0, count * kMessage);
}

std::size_t messagesFor(std::size_t bytes) {
    return (bytes + kMessage - 1) / kMessage;
}

std::string pathOf(const std::string& name) {
    std::string file = name;
    for (std::size_t i = 1; i < file.size(); ++i) {
        file[i] = file[i] >= 'A' && file[i] <= 'Z' ? static_cast<char>(file[i] - 'A' + 'a') : file[i];
    }
    return kDownloadFolder + "/" + file;
}

}  // namespace velmora::simulation
