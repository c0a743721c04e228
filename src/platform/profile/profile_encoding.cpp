#include "platform/profile/profile_encoding.h"

#include <algorithm>

#include "base/byte_text.h"

namespace velmora {
namespace {

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

bool isAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return isAscii(c); });
}

/// Whether the file begins with ASCII characters of two bytes each, `zero` being the place of the empty one.
/// So many are looked at that no line which an edit writes can pass for them.
bool beginsWithWideAscii(std::string_view file, std::size_t zero) {
    constexpr std::size_t kCharacters = 16;
    const std::size_t count = std::min(file.size() / 2, kCharacters);
    for (std::size_t i = 0; i < count; ++i) {
        const char character = file[2 * i + 1 - zero];
        if (file[2 * i + zero] != '\0' || character == '\0' || !isAscii(character)) {
            return false;
        }
    }
    return count > 0;
}

/// Length of the valid UTF-8 sequence at the start of non-empty bytes, 0 when there is none.
std::size_t sequenceLength(std::string_view bytes) {
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned lead = at(0);
    if (lead < 0x80) {
        return 1;
    }
    const std::size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                               : lead >= 0xE0 && lead <= 0xEF ? 3
                               : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                              : 0;
    if (length == 0 || bytes.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0U) != 0x80U) {
            return 0;
        }
    }
    // The second byte rules out overlong forms, surrogates and what lies beyond U+10FFFF.
    const unsigned second = at(1);
    const bool outside = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                         (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
    return outside ? 0 : length;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

bool isUtf16(std::string_view file) {
    return file.starts_with("\xFF\xFE") || file.starts_with("\xFE\xFF") || beginsWithWideAscii(file, 0) ||
           beginsWithWideAscii(file, 1);
}

ProfileEncoding detectEncoding(std::string_view file) {
    if (file.starts_with(kUtf8Mark)) {
        return ProfileEncoding::Utf8;
    }
    if (isAscii(file)) {
        return ProfileEncoding::Ascii;
    }
    return isUtf8(file) ? ProfileEncoding::Utf8 : ProfileEncoding::Windows1252;
}

std::string decodeText(std::string_view bytes, ProfileEncoding encoding) {
    if (encoding != ProfileEncoding::Utf8 || isAscii(bytes)) {
        return std::string(bytes);
    }
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const auto plain = std::find_if_not(bytes.begin(), bytes.end(), [](char c) { return isAscii(c); });
        text.append(bytes.begin(), plain);
        bytes.remove_prefix(static_cast<std::size_t>(plain - bytes.begin()));
        if (bytes.empty()) {
            break;
        }
        const std::size_t length = sequenceLength(bytes);
        text += length == 0 ? "?" : fromUtf8(bytes.substr(0, length)).value_or("?");
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

std::string encodeText(std::string_view text, ProfileEncoding encoding) {
    // The first bytes above 127 decide how a plain file is read from then on: a text whose Windows-1252 bytes
    // happen to be valid UTF-8 would come back as another one.
    const bool asUtf8 =
        encoding == ProfileEncoding::Utf8 || (encoding == ProfileEncoding::Ascii && isUtf8(text));
    return asUtf8 ? toUtf8(text) : std::string(text);
}

}  // namespace velmora
