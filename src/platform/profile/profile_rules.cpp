#include "platform/profile/profile_rules.h"

#include <algorithm>
#include <limits>

#include "base/run_time_error.h"

namespace velmora {
namespace {

int digitValue(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 16;
}

/// The base that a prefix in small letters names; the prefix is taken.
int takeBase(std::string_view& text) {
    const int base = text.starts_with("0x")   ? 16
                     : text.starts_with("0o") ? 8
                     : text.starts_with("0b") ? 2
                                              : 10;
    text.remove_prefix(base == 10 ? 0 : 2);
    return base;
}

bool hasOuterBlanks(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\v\f\x1A";
    return !text.empty() && (kBlanks.find(text.front()) != std::string_view::npos ||
                             kBlanks.find(text.back()) != std::string_view::npos);
}

void require(bool storable, const std::string& text) {
    if (!storable) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, text);
    }
}

}  // namespace

std::int32_t profileNumber(std::string_view value) {
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    const bool negative = value.starts_with('-');
    if (negative || value.starts_with('+')) {
        value.remove_prefix(1);
    }
    const int base = takeBase(value);
    // Far enough beyond 32 bits to saturate, far enough below 64 to go on multiplying.
    constexpr std::int64_t kEnough = std::int64_t{1} << 40;
    std::int64_t number = 0;
    for (const char c : value) {
        const int digit = digitValue(c);
        if (digit >= base) {
            break;
        }
        number = std::min(number * base + digit, kEnough);
    }
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(negative ? -number : number, Limits::min(), Limits::max()));
}

bool isOneProfileLine(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

void checkProfileSection(const std::string& section) {
    require(isOneProfileLine(section) && section.find(']') == std::string::npos && !hasOuterBlanks(section),
            section);
}

void checkProfileKey(const std::string& key) {
    require(!key.empty() && isOneProfileLine(key) && key.find('=') == std::string::npos, key);
    require(!hasOuterBlanks(key), key);
    require(key.front() != ';' && key.front() != '[', key);
}

void checkProfileValue(const std::string& value) {
    require(isOneProfileLine(value), value);
}

}  // namespace velmora
