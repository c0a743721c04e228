#include "link/frames.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "link/control_bytes.h"

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

/// Unstuffs into `out`, which has room for all of `bytes`; returns the length.
std::size_t unstuffTo(char* out, std::string_view bytes) {
    const char* const start = out;
    std::size_t from = 0;
    while (from < bytes.size()) {
        const std::size_t dle = findDle(bytes, from);
        const std::size_t length = std::min(dle + 1, bytes.size()) - from;
        std::memcpy(out, bytes.data() + from, length);
        out += length;
        from = dle + 2;
    }
    return static_cast<std::size_t>(out - start);
}

}  // namespace

std::string stuff(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + 8);
    appendStuffed(out, bytes);
    return out;
}

std::string unstuff(std::string_view bytes) {
    std::string out(bytes.size(), '\0');
    out.resize(unstuffTo(out.data(), bytes));
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
