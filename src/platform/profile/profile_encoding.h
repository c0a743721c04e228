// In which encoding a profile file is written, and its texts as Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

enum class ProfileEncoding {
    Ascii,        ///< no byte above 127: both readings agree
    Windows1252,  ///< bytes above 127 that are not UTF-8
    Utf8,         ///< begins with the UTF-8 mark, or all bytes above 127 are valid UTF-8
};

/// EF BB BF at the start of a file (RFC 3629, section 6).
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

/// Whether a file is UTF-16: by its mark, or by the zero bytes of the ASCII characters at its beginning.
bool isUtf16(std::string_view file);

ProfileEncoding detectEncoding(std::string_view file);

/// Whether all bytes form valid UTF-8 (RFC 3629: no overlong forms, no surrogates, up to U+10FFFF).
bool isUtf8(std::string_view bytes);

/// Bytes of a file as a Windows-1252 text; a character without a byte, or a byte that is not UTF-8 where
/// UTF-8 is due, becomes "?".
std::string decodeText(std::string_view bytes, ProfileEncoding encoding);

/// A Windows-1252 text as bytes for a file of this encoding, so that decodeText gives it back.
std::string encodeText(std::string_view text, ProfileEncoding encoding);

}  // namespace velmora
