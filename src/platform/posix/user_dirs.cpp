#include "platform/posix/user_dirs.h"

#include <algorithm>
#include <istream>
#include <utility>

namespace velmora {
namespace {

void skipBlanks(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
}

bool skip(std::string_view& line, std::string_view expected) {
    if (line.substr(0, expected.size()) != expected) {
        return false;
    }
    line.remove_prefix(expected.size());
    return true;
}

/// The text up to the closing quote with its escapes resolved; nothing when the quote is missing.
std::optional<std::string> quotedRest(std::string_view line) {
    std::string value;
    for (std::size_t i = 0; i < line.size() && line[i] != '"'; ++i) {
        if (line[i] == '\\' && i + 1 < line.size()) {
            ++i;
        }
        value += line[i];
        if (i + 1 == line.size()) {
            return std::nullopt;
        }
    }
    return line.empty() ? std::nullopt : std::optional(value);
}

std::optional<std::string> valueOfLine(std::string_view line, std::string_view key, const std::string& home) {
    skipBlanks(line);
    if (!skip(line, key)) {
        return std::nullopt;
    }
    skipBlanks(line);
    if (!skip(line, "=")) {
        return std::nullopt;
    }
    skipBlanks(line);
    if (!skip(line, "\"")) {
        return std::nullopt;
    }
    const bool belowHome = skip(line, "$HOME");
    std::optional<std::string> value = quotedRest(line);
    if (!value || (value->empty() ? !belowHome : value->front() != '/')) {
        return std::nullopt;
    }
    std::string path = belowHome ? home + *value : *value;
    path.resize(std::max<std::size_t>(path.find_last_not_of('/') + 1, 1));
    return path;
}

}  // namespace

std::optional<std::string> userDir(std::istream& file, std::string_view key, const std::string& home) {
    std::optional<std::string> found;
    for (std::string line; std::getline(file, line);) {
        if (std::optional<std::string> value = valueOfLine(line, key, home)) {
            found = std::move(value);
        }
    }
    return found;
}

}  // namespace velmora
