// Block files: an image of one file of the Organiser's types 2 to 16.
//
//   offset 0  "ORG"
//          3  length of everything behind offset 5, two bytes, most significant first
//          5  128 + file type
//          6  the data as the Organiser sent it
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

constexpr std::size_t kImageMark = 3;                           ///< "ORG"
constexpr std::size_t kImageHeaderLength = kImageMark + 2 + 1;  ///< mark, length, type
constexpr std::uint64_t kLargestImageData = 65'535;             ///< what the length field can hold
constexpr std::uint64_t kLargestBlockFile = kImageHeaderLength + kLargestImageData;

/// The header of a new block file of a type from 1 to 16, its length still 0.
std::string blockHeader(int type);

/// The two bytes of the length field for a file of this length; RunTimeError 6 when they cannot hold it.
/// Requires: fileLength >= kImageHeaderLength.
std::string imageLengthField(std::uint64_t fileLength);

/// Whether the three bytes behind the mark (fewer never fit) are those of a file of this type and length.
bool blockHeaderFits(std::string_view lengthAndType, int type, std::uint64_t fileLength);

}  // namespace velmora
