// Procedures: the image that the Organiser loads, made from a readable text file.
//
//   offset 0   "ORG"
//          3   length of everything behind offset 5, two bytes, most significant first
//          5   129 (128 + file type 1)
//          6   0 0 (no object code)
//          8   length of the source, two bytes, most significant first
//          10  the source: each line and a byte 0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/files.h"

namespace velmora {

constexpr std::size_t kProcedureHeaderLength = 10;

/// Writes the image of the procedure text in `source` (read from its position on) into the empty file
/// `image` and leaves the image's position behind what was written last. RunTimeError 6 as soon as the image
/// outgrows its length field, so no more than 64 KiB are ever read into it.
void buildProcedureImage(File& source, File& image);

/// A record of a procedure as the Organiser sends it, with the line ends of a text file: CR LF for byte 0.
std::string procedureText(std::string_view record);

}  // namespace velmora
