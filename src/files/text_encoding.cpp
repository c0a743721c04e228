#include "files/text_encoding.h"

#include <algorithm>
#include <cstddef>
#include <functional>

#include "base/byte_text.h"

namespace velmora {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

/// How many bytes at the front are one character of UTF-8, or one byte that is none.
std::size_t characterLength(std::string_view utf8) {
    constexpr std::size_t kLongest = 4;
    const auto byteAt = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    std::size_t length = 1;
    while (byteAt(0) >= 0xC0 && length < std::min(kLongest, utf8.size()) && (byteAt(length) & 0xC0) == 0x80) {
        ++length;
    }
    return length;
}

std::string fromUtf8WithMarks(std::string_view line, std::size_t& lost) {
    std::string text;
    while (!line.empty()) {
        const std::size_t length = characterLength(line);
        const auto letter = fromUtf8(line.substr(0, length));
        lost += letter ? 0 : 1;
        text += letter.value_or("?");
        line.remove_prefix(length);
    }
    return text;
}

std::size_t countUnassigned(std::string_view windows1252) {
    return static_cast<std::size_t>(std::count_if(windows1252.begin(), windows1252.end(), [](const char& c) {
        return !toUtf8Exact(std::string_view(&c, 1));
    }));
}

/// Converts line by line, ends included, and tells of lines in which something is lost.
std::string convertLines(
    std::string_view text, const Tell& tell, const std::string& complaint,
    const std::function<std::string(std::string_view line, std::size_t& lost)>& convert) {
    std::string converted;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
        std::size_t lost = 0;
        converted += convert(line, lost);
        if (lost > 0) {
            tell("line " + std::to_string(number) + ": " + complaint + ": " + std::to_string(lost));
        }
        text.remove_prefix(line.size());
    }
    return converted;
}

}  // namespace

std::string_view withoutMark(std::string_view bytes) {
    return bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes;
}

std::string textFromBytes(std::string_view bytes, TextEncoding encoding, const Tell& tell) {
    const std::string_view text = withoutMark(bytes);
    if (encoding == TextEncoding::Windows1252 && text.size() == bytes.size()) {
        return std::string(text);
    }
    return convertLines(text, tell, "letters that Windows-1252 lacks became \"?\"",
                        [](std::string_view line, std::size_t& lost) {
                            const auto whole = fromUtf8(line);
                            return whole ? *whole : fromUtf8WithMarks(line, lost);
                        });
}

std::string bytesFromText(std::string_view windows1252, TextEncoding encoding, const Tell& tell) {
    if (encoding == TextEncoding::Windows1252) {
        return std::string(windows1252);
    }
    return convertLines(windows1252, tell, "bytes are no letters of Windows-1252",
                        [](std::string_view line, std::size_t& lost) {
                            lost = countUnassigned(line);
                            return toUtf8(line);
                        });
}

}  // namespace velmora
