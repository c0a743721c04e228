#include "serial/mode_string.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

#include "base/byte_text.h"

namespace velmora {

namespace {

constexpr std::array<std::pair<std::uint32_t, std::uint32_t>, 9> kShortRates = {{
    {11, 110},
    {15, 150},
    {30, 300},
    {60, 600},
    {12, 1200},
    {24, 2400},
    {48, 4800},
    {96, 9600},
    {19, 19200},
}};

/// The fields of a mode string before they are read, in capitals and without blanks around them.
struct Fields {
    std::string baud;
    std::string parity = "N";
    std::string data = "8";
    std::string stop = "1";
};

std::optional<std::uint32_t> readBaud(const std::string& field) {
    std::uint32_t rate = 0;
    const char* const end = field.data() + field.size();
    const auto [stopped, error] = std::from_chars(field.data(), end, rate);
    if (error != std::errc() || stopped != end || rate == 0) {
        return std::nullopt;
    }
    const auto* const known = std::find_if(kShortRates.begin(), kShortRates.end(),
                                           [rate](const auto& entry) { return entry.first == rate; });
    return known == kShortRates.end() ? rate : known->second;
}

std::optional<Parity> readParity(const std::string& field) {
    constexpr std::string_view letters = "NOEMS";
    constexpr std::array parities = {Parity::None, Parity::Odd, Parity::Even, Parity::Mark, Parity::Space};
    const std::size_t index = field.size() == 1 ? letters.find(field[0]) : letters.npos;
    if (index == letters.npos) {
        return std::nullopt;
    }
    return parities[index];
}

std::optional<int> readDataBits(const std::string& field) {
    if (field.size() != 1 || field[0] < '5' || field[0] > '8') {
        return std::nullopt;
    }
    return field[0] - '0';
}

std::optional<StopBits> readStopBits(const std::string& field) {
    if (field == "1") {
        return StopBits::One;
    }
    if (field == "1.5") {
        return StopBits::OneAndHalf;
    }
    if (field == "2") {
        return StopBits::Two;
    }
    return std::nullopt;
}

bool goTogether(int dataBits, StopBits stopBits) {
    switch (stopBits) {
        case StopBits::One:
            return true;
        case StopBits::OneAndHalf:
            return dataBits == 5;
        case StopBits::Two:
            return dataBits != 5;
    }
    return false;  // unreachable: every number of stop bits is above
}

std::optional<Fields> fieldsByPosition(std::string_view text) {
    std::array<std::string, 4> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::size_t comma = text.find(',');
        const bool last = i + 1 == parts.size();
        if (last != (comma == text.npos)) {
            return std::nullopt;
        }
        parts[i] = trimBlanks(text.substr(0, comma));
        text.remove_prefix(last ? text.size() : comma + 1);
    }
    return Fields{parts[0], parts[1], parts[2], parts[3]};
}

std::optional<Fields> fieldsByKeyword(std::string_view text) {
    Fields fields;
    std::array<std::pair<std::string_view, std::string*>, 4> open = {{
        {"BAUD", &fields.baud},
        {"PARITY", &fields.parity},
        {"DATA", &fields.data},
        {"STOP", &fields.stop},
    }};
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (word.empty()) {
            continue;
        }
        const std::size_t equals = word.find('=');
        auto* const known = std::find_if(open.begin(), open.end(), [&](const auto& entry) {
            return entry.second && entry.first == word.substr(0, equals);
        });
        if (equals == word.npos || known == open.end()) {
            return std::nullopt;
        }
        *known->second = word.substr(equals + 1);
        known->second = nullptr;
    }
    return fields;
}

}  // namespace

std::optional<LineSettings> parseModeString(std::string_view text) {
    const std::string capitals = upperCase(text);
    const bool keywords = capitals.find('=') != capitals.npos;
    const std::optional<Fields> fields = keywords ? fieldsByKeyword(capitals) : fieldsByPosition(capitals);
    if (!fields) {
        return std::nullopt;
    }
    const auto baud = readBaud(fields->baud);
    const auto parity = readParity(fields->parity);
    const auto dataBits = readDataBits(fields->data);
    const auto stopBits = readStopBits(fields->stop);
    if (!baud || !parity || !dataBits || !stopBits || !goTogether(*dataBits, *stopBits)) {
        return std::nullopt;
    }
    return LineSettings{*baud, *parity, *dataBits, *stopBits};
}

std::string modeString(const LineSettings& line) {
    constexpr std::string_view kParities = "NOEMS";
    constexpr std::array<std::string_view, 3> kStops = {"1", "1.5", "2"};
    std::string text = std::to_string(line.baud) + ",";
    text += kParities.at(static_cast<std::size_t>(line.parity));
    text += "," + std::to_string(line.dataBits) + ",";
    text += kStops.at(static_cast<std::size_t>(line.stopBits));
    return text;
}

int stopHalves(StopBits stopBits) {
    switch (stopBits) {
        case StopBits::One:
            return 2;
        case StopBits::OneAndHalf:
            return 3;
        case StopBits::Two:
            return 4;
    }
    return 2;  // unreachable: every number of stop bits is above
}

}  // namespace velmora
