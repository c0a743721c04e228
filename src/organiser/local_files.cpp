#include "organiser/local_files.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>
#include <iterator>
#include <sstream>

namespace velmora {
namespace {

[[noreturn]] void failed(const std::string& path, const std::string& what) {
    throw LocalFileError(path + " cannot be " + what + ": " + std::strerror(errno != 0 ? errno : EIO) + ".");
}

}  // namespace

std::filesystem::path localPath(const std::string& path) {
    // From char8_t nothing is converted where paths are bytes; Windows makes UTF-16 of it.
    return {std::u8string(path.begin(), path.end())};
}

std::string readLocalFile(const std::string& path) {
    errno = 0;
    std::ifstream file(localPath(path), std::ios::binary);
    if (!file) {
        failed(path, "read");
    }
    std::ostringstream bytes;
    // An empty file sets the failure bit of the stream that receives nothing, so only the source is asked.
    bytes << file.rdbuf();
    if (file.bad() || errno == EISDIR) {
        failed(path, "read");
    }
    return bytes.str();
}

std::string readLocalInput(const std::string& path, std::istream& standardInput) {
    if (path != kStandardStream) {
        return readLocalFile(path);
    }
    std::string bytes;
    std::array<char, 65'536> buffer{};
    while (standardInput.read(buffer.data(), buffer.size()), standardInput.gcount() > 0) {
        bytes.append(buffer.data(), static_cast<std::size_t>(standardInput.gcount()));
    }
    if (standardInput.bad()) {
        throw LocalFileError(inputName(path) + " cannot be read.");
    }
    return bytes;
}

std::string inputName(const std::string& path) {
    return path == kStandardStream ? "standard input" : path;
}

void writeLocalFile(const std::string& path, std::string_view bytes) {
    errno = 0;
    std::ofstream file(localPath(path), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        failed(path, "written");
    }
}

std::vector<std::string> splitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
    }
    return lines;
}

std::string joinLines(const std::vector<std::string>& lines, bool crLf) {
    std::string text;
    for (const std::string& line : lines) {
        text.append(line).append(crLf ? "\r\n" : "\n");
    }
    return text;
}

void checkLines(const std::string& path, const std::vector<std::string>& lines, std::size_t longest) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string where = path + ", line " + std::to_string(i + 1);
        if (lines[i].size() > longest) {
            throw LocalFileError(where + ": " + std::to_string(lines[i].size()) +
                                 " bytes are more than the " + std::to_string(longest) +
                                 " that one message holds.");
        }
        if (lines[i].find('\0') != std::string::npos) {
            throw LocalFileError(where + ": a zero byte cannot be part of a line.");
        }
    }
}

}  // namespace velmora
