// The numbers of the pcapng file format that captures use.
//
// A file is a row of sections, a section a row of blocks: type, length of the whole block, contents, length
// again; all numbers in the section's byte order, everything padded to four bytes. Options stand at the end
// of the contents: number, length, value. (IETF draft-ietf-opsawg-pcapng.)
#pragma once

#include <cstddef>
#include <cstdint>

namespace velmora::pcapng {

enum BlockType : std::uint32_t {
    kSectionHeader = 0x0A0D0D0A,  ///< reads the same in both byte orders
    kInterfaceDescription = 1,
    kEnhancedPacket = 6,
};

constexpr std::uint32_t kByteOrderMagic = 0x1A2B3C4D;
constexpr std::uint16_t kMajorVersion = 1;
/// For protocols of one's own: what a dissector is registered for.
constexpr std::uint16_t kLinkTypeUser0 = 147;

enum Option : std::uint16_t {
    kEndOfOptions = 0,
    kComment = 1,
    kInterfaceName = 2,
    kPacketFlags = 2,
    kInterfaceText = 3,
    kSectionProgram = 4,
    kInterfaceSpeed = 8,
    kInterfaceTimeResolution = 9,
};

/// The decimal places of a second in which times are counted, unless an interface says otherwise.
constexpr std::uint8_t kUsualResolution = 6;
constexpr std::uint8_t kNanoseconds = 9;

constexpr std::uint32_t kDirectionMask = 3;  ///< of the packet flags

constexpr std::size_t kAlignment = 4;
constexpr std::size_t kBlockHead = 4 + 4;  ///< type, length
constexpr std::size_t kBlockFrame = kBlockHead + 4;

/// The length with the padding behind it.
constexpr std::size_t padded(std::size_t length) {
    return (length + kAlignment - 1) / kAlignment * kAlignment;
}

/// What the section's comment says of a recording whose contents were made unreadable.
constexpr const char* kMaskedComment = "Contents are masked";

}  // namespace velmora::pcapng
