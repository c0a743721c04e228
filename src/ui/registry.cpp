#include "ui/registry.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "base/byte_text.h"

namespace velmora {
namespace {

constexpr const char* kLeft = "XPos";
constexpr const char* kTop = "YPos";
constexpr const char* kWidth = "Width";
constexpr const char* kHeight = "Height";
/// How far, in twips, a window may stand off the screen without being moved.
constexpr std::int32_t kMargin = 200;

std::string hexText(std::uint32_t number) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text = "&h";
    for (int shift = 28; shift >= 0; shift -= 4) {
        text += kDigits[(number >> shift) & 0xF];
    }
    return text;
}

/// Whether so much of a window stands beyond the end of the screen that it is to stand flush with it.
bool isBeyond(std::int32_t position, std::int32_t size, std::int32_t screen) {
    return std::int64_t{screen} - position - size < -kMargin;
}

/// The 32-bit number that a whole text stands for, decimal or "&h" and hexadecimal digits.
std::optional<std::int32_t> wholeNumber(const std::string& text) {
    const std::string trimmed = lowerCase(trimBlanks(text));
    const bool hex = trimmed.starts_with("&h");
    const char* begin = trimmed.data() + (hex ? 2 : 0);
    const char* end = trimmed.data() + trimmed.size();
    std::uint32_t bits = 0;
    std::int32_t number = 0;
    const auto [stop, error] =
        hex ? std::from_chars(begin, end, bits, 16) : std::from_chars(begin, end, number);
    if (error != std::errc() || stop != end) {
        return std::nullopt;
    }
    return hex ? static_cast<std::int32_t>(bits) : number;
}

}  // namespace

std::optional<std::string> Registry::RegReadValue(const std::string& name) {
    const std::optional<StoredValue> value = store_.read(name);
    if (!value) {
        return std::nullopt;
    }
    if (const auto* number = std::get_if<std::uint32_t>(&*value)) {
        return hexText(*number);
    }
    const auto& text = std::get<std::string>(*value);
    return text.substr(0, text.find('\0'));
}

bool Registry::RegWriteValue(const std::string& name, const StoredValue& value) {
    return store_.write(name, value);
}

void Registry::RegDeleteSettingsKey() {
    store_.deleteAll();
}

// 16 bits would end at 2184 pixels; screens do not.
std::optional<std::int32_t> Registry::readNumber(const std::string& name) {
    return wholeNumber(RegReadValue(name).value_or(std::string()));
}

void Registry::LoadWindowPos(WindowGeometry& window) {
    const auto position = [this](const char* name, std::int32_t size, std::int32_t screen, bool grown) {
        const auto stored = readNumber(name);
        if (!stored) {
            return (screen - size) / 2;
        }
        return grown && isBeyond(*stored, size, screen) ? screen - size : *stored;
    };
    const Extent grown = window.grownSize();
    window.setLeft(position(kLeft, window.width(), window.screenWidth(), grown.width > 0));
    window.setTop(position(kTop, window.height(), window.screenHeight(), grown.height > 0));
}

void Registry::LoadWindowSize(WindowGeometry& window) {
    const Extent largest = window.largestSize();
    window.setGrownSize({std::clamp(readNumber(kWidth).value_or(0), 0, std::max(largest.width, 0)),
                         std::clamp(readNumber(kHeight).value_or(0), 0, std::max(largest.height, 0))});
}

void Registry::writePosition(const std::string& name, std::int32_t position, std::int32_t size,
                             std::int32_t screen) {
    if (position < -kMargin) {
        RegWriteValue(name, std::string());
        return;
    }
    const bool beyond = isBeyond(position, size, screen);
    RegWriteValue(name, static_cast<std::uint32_t>(beyond ? screen - size : position));
}

void Registry::SaveWindowPos(WindowGeometry& window) {
    RegDeleteSettingsKey();
    window.normalise();
    writePosition(kLeft, window.left(), window.width(), window.screenWidth());
    writePosition(kTop, window.top(), window.height(), window.screenHeight());
}

void Registry::SaveWindowSize(const WindowGeometry& window) {
    const Extent size = window.grownSize();
    RegWriteValue(kWidth, static_cast<std::uint32_t>(size.width));
    RegWriteValue(kHeight, static_cast<std::uint32_t>(size.height));
}

}  // namespace velmora
