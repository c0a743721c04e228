#include "doctor/unframed.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>

#include "doctor/likely_settings.h"
#include "link/frames.h"

namespace velmora {
namespace {

constexpr std::size_t kMostOf = 90;       // percent
constexpr std::size_t kShortestText = 6;  // bytes
constexpr char kEnq = 0x05;
constexpr char kNak = 0x15;

bool mostAre(std::string_view bytes, const std::function<bool(char)>& kind) {
    const auto count = static_cast<std::size_t>(std::count_if(bytes.begin(), bytes.end(), kind));
    return count * 100 >= bytes.size() * kMostOf;
}

bool isText(char byte) {
    return (byte >= ' ' && byte <= '~') || byte == '\r' || byte == '\n' || byte == '\t';
}

/// What the receiving side of another protocol repeats until it is answered.
bool isCall(std::string_view bytes) {
    constexpr std::array<char, 3> kCalls = {kNak, 'C', kEnq};
    return bytes.size() > 1 && std::any_of(kCalls.begin(), kCalls.end(), [bytes](char call) {
               return mostAre(bytes, [call](char byte) { return byte == call; });
           });
}

}  // namespace

Unframed judgeUnframed(const Crc& crc, std::string_view bytes, const LineSettings& ours) {
    if (const auto settings = likelySettings(crc, bytes, ours)) {
        return {settings->baud == ours.baud ? Cause::WrongParity : Cause::WrongRate, 80, settings};
    }
    if (mostAre(bytes, [](char byte) { return byte == '\0'; })) {
        return {Cause::LineStuck, 70, std::nullopt};
    }
    if (isCall(bytes)) {
        return {Cause::OtherProtocol, 80, std::nullopt};
    }
    if (bytes.size() >= kShortestText && mostAre(bytes, isText)) {
        return {Cause::OtherProtocol, 70, std::nullopt};
    }
    return {Cause::Noise, 50, std::nullopt};
}

std::string settingsInWords(const LineSettings& settings) {
    constexpr std::array<std::string_view, 5> kParities = {"no", "odd", "even", "mark", "space"};
    std::string text = std::to_string(settings.baud) + " baud";
    if (settings.parity != Parity::None || settings.dataBits != LineSettings().dataBits) {
        text += " with " + std::to_string(settings.dataBits) + " bits and ";
        text += kParities.at(static_cast<std::size_t>(settings.parity));
        text += " parity";
    }
    return text;
}

}  // namespace velmora
