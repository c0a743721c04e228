#include "services/block_file.h"

#include "services/two_byte_number.h"

namespace velmora {
namespace {

constexpr int kTypeOffset = 128;

}  // namespace

std::string blockHeader(int type) {
    return "ORG" + twoBytes(0) + static_cast<char>(kTypeOffset + type);
}

std::string imageLengthField(std::uint64_t fileLength) {
    return twoBytes(fileLength - kImageHeaderLength);
}

bool blockHeaderFits(std::string_view lengthAndType, int type, std::uint64_t fileLength) {
    return lengthAndType.size() == kImageHeaderLength - kImageMark && fileLength >= kImageHeaderLength &&
           static_cast<unsigned char>(lengthAndType[2]) == kTypeOffset + type &&
           twoByteNumberAt(lengthAndType, 0) == fileLength - kImageHeaderLength;
}

}  // namespace velmora
