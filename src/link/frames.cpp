#include "link/frames.h"

#include <cstring>

namespace velmora {
namespace {

constexpr char kLeadByte = 0x01;
constexpr std::size_t kBodyStart = 2;  // lead byte, type and sequence

/// Appends the bytes with every DLE doubled.
void appendStuffed(std::string& out, std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t dle = bytes.find(kDle);
        if (dle == std::string_view::npos) {
            out.append(bytes);
            return;
        }
        out.append(bytes.substr(0, dle + 1));
        out += kDle;
        bytes.remove_prefix(dle + 1);
    }
}

}  // namespace

std::string stuff(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + 8);
    appendStuffed(out, bytes);
    return out;
}

std::string unstuff(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t dle = bytes.find(kDle);
        if (dle == std::string_view::npos) {
            out.append(bytes);
            break;
        }
        out.append(bytes.substr(0, dle + 1));
        bytes.remove_prefix(dle + 2 <= bytes.size() ? dle + 2 : bytes.size());
    }
    return out;
}

std::string buildFrame(const Crc& crc, FrameType type, std::uint8_t sequence, std::string_view data) {
    std::string body;
    body.reserve(kBodyStart + data.size());
    body += kLeadByte;
    body += static_cast<char>(static_cast<unsigned>(type) + sequence);
    body.append(data);
    std::string frame;
    frame.reserve(kHeaderLength + body.size() + kTrailerLength + 16);
    frame.append({kSyn, kDle, kStx});
    appendStuffed(frame, body);
    frame.append({kDle, kEtx});
    const auto check = crc.check(body);
    frame.append(check.data(), check.size());
    return frame;
}

std::optional<ParsedFrame> parseFrame(const Crc& crc, std::string_view frame) {
    if (frame.size() < kHeaderLength + kTrailerLength) {
        return std::nullopt;
    }
    std::string body = unstuff(frame.substr(kHeaderLength, frame.size() - kHeaderLength - kTrailerLength));
    if (body.size() < kBodyStart) {
        return std::nullopt;
    }
    const auto check = crc.check(body);
    if (std::memcmp(check.data(), frame.data() + frame.size() - check.size(), check.size()) != 0) {
        return std::nullopt;
    }
    ParsedFrame parsed;
    const auto typeAndSequence = static_cast<unsigned char>(body[1]);
    parsed.sequence = typeAndSequence & 7U;
    parsed.type = typeAndSequence & 0xF8U;
    body.erase(0, kBodyStart);
    parsed.data = std::move(body);
    return parsed;
}

}  // namespace velmora
