#include "base/byte_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace velmora {
namespace {

/// Unicode code points of the bytes 0x80 to 0x9F; 0 where Windows-1252 assigns none.
constexpr std::array<std::uint16_t, 32> kHigh = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// Code point of a byte, 0 for an unassigned one (and for the zero byte itself).
constexpr std::uint32_t codePoint(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kHigh[byte - 0x80U] : byte;
}

std::string hexPair(char c) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {kDigits[byte >> 4], kDigits[byte & 15]};
}

void appendUtf8(std::string& out, std::uint32_t code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

char upperByte(unsigned char c) {
    if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) {
        return static_cast<char>(c - 0x20);
    }
    switch (c) {
        case 0x9A:
        case 0x9C:
        case 0x9E:
            return static_cast<char>(c - 0x10);
        case 0xFF:
            return static_cast<char>(0x9F);
        default:
            return static_cast<char>(c);
    }
}

char lowerByte(unsigned char c) {
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) {
        return static_cast<char>(c + 0x20);
    }
    switch (c) {
        case 0x8A:
        case 0x8C:
        case 0x8E:
            return static_cast<char>(c + 0x10);
        case 0x9F:
            return static_cast<char>(0xFF);
        default:
            return static_cast<char>(c);
    }
}

/// Decodes one UTF-8 sequence of at most three bytes (all of Windows-1252 fits) and moves `i` behind it.
std::optional<std::uint32_t> nextCodePoint(std::string_view utf8, std::size_t& i) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80) {
        ++i;
        return lead;
    }
    const std::size_t length = (lead & 0xE0) == 0xC0 ? 2 : (lead & 0xF0) == 0xE0 ? 3 : 0;
    if (length == 0 || i + length > utf8.size()) {
        return std::nullopt;
    }
    std::uint32_t code = length == 2 ? lead & 0x1FU : lead & 0x0FU;
    for (std::size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(utf8[i + k]);
        if ((next & 0xC0) != 0x80) {
            return std::nullopt;
        }
        code = (code << 6) | (next & 0x3FU);
    }
    if (code < (length == 2 ? 0x80U : 0x800U)) {
        return std::nullopt;  // an overlong form
    }
    i += length;
    return code;
}

}  // namespace

std::string trimRight(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : trimRight(text.substr(first));
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        c = upperByte(static_cast<unsigned char>(c));
    }
    return result;
}

std::string lowerCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        c = lowerByte(static_cast<unsigned char>(c));
    }
    return result;
}

std::string toUtf8(std::string_view windows1252) {
    std::string out;
    out.reserve(windows1252.size());
    for (const char c : windows1252) {
        const std::uint32_t code = codePoint(static_cast<unsigned char>(c));
        appendUtf8(out, code == 0 && c != '\0' ? 0xFFFDU : code);
    }
    return out;
}

std::optional<std::string> toUtf8Exact(std::string_view windows1252) {
    for (const char c : windows1252) {
        if (c != '\0' && codePoint(static_cast<unsigned char>(c)) == 0) {
            return std::nullopt;
        }
    }
    return toUtf8(windows1252);
}

std::optional<std::string> fromUtf8(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const std::optional<std::uint32_t> code = nextCodePoint(utf8, i);
        if (!code) {
            return std::nullopt;
        }
        if (*code < 0x80 || (*code >= 0xA0 && *code <= 0xFF)) {
            out += static_cast<char>(*code);
            continue;
        }
        std::size_t k = 0;
        while (k < kHigh.size() && kHigh[k] != *code) {
            ++k;
        }
        if (k == kHigh.size()) {
            return std::nullopt;
        }
        out += static_cast<char>(0x80 + k);
    }
    return out;
}

std::string showControls(std::string_view text) {
    constexpr unsigned char kDelete = 127;
    std::string out;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        out += byte < ' ' || byte == kDelete ? "<" + hexDump({&c, 1}) + ">" : std::string(1, c);
    }
    return out;
}

std::string asciiOf(std::string_view text) {
    std::string shown(text);
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; }, '?');
    return shown;
}

std::string hexDump(std::string_view bytes) {
    std::string out;
    for (const char c : bytes) {
        if (!out.empty()) {
            out += ' ';
        }
        out += hexPair(c);
    }
    return out;
}

std::string hexEscaped(std::string_view bytes) {
    std::string out;
    for (const char c : bytes) {
        if (c >= 32 && c <= 126) {
            out += c;
        } else {
            out += '<' + hexPair(c) + '>';
        }
    }
    return out;
}

}  // namespace velmora
