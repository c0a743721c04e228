#include "doctor/heard.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace velmora {
namespace {

std::size_t nullsIn(std::string_view bytes) {
    return static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\0'));
}

}  // namespace

std::size_t Heard::strayNulls() const {
    return nullsIn(bytes) - framedNulls;
}

std::vector<ParsedFrame> Listener::take(std::string_view bytes, std::uint32_t errorFlags) {
    heard_.bytes += bytes;
    heard_.errorFlags |= errorFlags;
    cutter_.append(bytes);
    std::vector<ParsedFrame> frames;
    while (const auto cut = cutter_.next()) {
        std::optional<ParsedFrame> frame = parseFrame(crc_, *cut);
        if (!frame) {
            ++heard_.damagedFrames;
            continue;
        }
        if (heard_.goodFrames == 0) {
            heard_.leadingBytes = heard_.bytes.size() - cutter_.heldBytes() - cut->size();
        }
        ++heard_.goodFrames;
        heard_.framedBytes += cut->size();
        heard_.framedNulls += nullsIn(*cut);
        if (frame->type == static_cast<std::uint8_t>(FrameType::Connect)) {
            ++heard_.calls;
        }
        frames.push_back(*std::move(frame));
    }
    heard_.unfinishedBytes = cutter_.heldBytes();
    return frames;
}

}  // namespace velmora
