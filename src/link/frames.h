// The frame of the link: bytes on the wire, stuffing, building and checking.
//
//   SYN DLE STX | body with every DLE doubled | DLE ETX | check of the unstuffed body, low byte first
//   body = 0x01, type + sequence, data
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "link/crc.h"

namespace velmora {

constexpr char kSyn = 0x16;
constexpr char kDle = 0x10;
constexpr char kStx = 0x02;
constexpr char kEtx = 0x03;

constexpr std::size_t kHeaderLength = 3;               ///< SYN DLE STX
constexpr std::size_t kTrailerLength = 2 + 2;          ///< DLE ETX, check
constexpr std::size_t kTypeIndex = kHeaderLength + 1;  ///< type + sequence, behind the lead byte
constexpr std::size_t kSequenceModulus = 8;

/// Frame types: the upper five bits of the type-and-sequence byte.
enum class FrameType : std::uint8_t {
    Ack = 0,       ///< sequence = the one acknowledged
    Discon = 8,    ///< data = one reason byte
    Connect = 16,  ///< link request
    Data = 24,     ///< sequence = the sender's, data = the service payload
};

/// Reasons of a DISCON frame that the link itself sends; services add their own error codes.
constexpr char kReasonNone = 0x00;
constexpr char kReasonTooManyErrors = static_cast<char>(0xC0);
constexpr char kReasonWrongSequence = static_cast<char>(0xC1);

/// A frame as received, after its check.
struct ParsedFrame {
    std::uint8_t type = 0;      ///< multiple of 8; not necessarily one of FrameType
    std::uint8_t sequence = 0;  ///< 0 to 7
    std::string data;
};

/// Copies with every DLE written twice.
std::string stuff(std::string_view bytes);
/// Copies with the byte behind each DLE left out, whatever it is; the inverse of stuff.
std::string unstuff(std::string_view bytes);

/// The whole frame on the wire.
std::string buildFrame(const Crc& crc, FrameType type, std::uint8_t sequence, std::string_view data);

/// Checks one cut frame (header to second check byte). Nothing when it is too short or its check is wrong.
std::optional<ParsedFrame> parseFrame(const Crc& crc, std::string_view frame);

}  // namespace velmora
