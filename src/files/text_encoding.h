// Texts of the PC, which may be in UTF-8, as the bytes that the Organiser and its files have.
#pragma once

#include <string>
#include <string_view>

#include "files/remarks.h"

namespace velmora {

enum class TextEncoding { Windows1252, Utf8 };

/// The text behind the mark of UTF-8 (EF BB BF) that some programs put in front of a file.
std::string_view withoutMark(std::string_view bytes);

/// The bytes of a text file in Windows-1252. A file that begins with the mark of UTF-8 is in UTF-8, whatever
/// `encoding` says. Letters that Windows-1252 lacks become "?", which is told with the number of the line.
std::string textFromBytes(std::string_view bytes, TextEncoding encoding, const Tell& tell);

/// A text in an encoding, without a mark. Bytes that are no letters of Windows-1252 become U+FFFD in UTF-8,
/// which is told with the number of the line.
std::string bytesFromText(std::string_view windows1252, TextEncoding encoding, const Tell& tell);

}  // namespace velmora
