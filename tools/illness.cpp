#include "illness.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>

#include "arguments/argument_values.h"

namespace velmora::tools {
namespace {

constexpr std::string_view kExpected =
    "an illness: rate=RATE, form=7E1, mute, deaf, dead, loopback, echo, modem, quiet-modem, noise=P, "
    "losses=P, "
    "breaks=P, stuck, xmodem or text";

LineSettings& settingsOf(std::optional<LineSettings>& settings) {
    return settings ? *settings : settings.emplace();
}

std::uint32_t readRate(std::string_view option, std::string_view value) {
    return numberValue<std::uint32_t>(option, value, kLowestRate, kHighestRate, "a line speed");
}

/// "7E1" as a line's settings at a rate.
LineSettings readForm(std::string_view option, std::string_view value, std::uint32_t rate) {
    if (value.size() == 3) {
        const std::string mode = std::to_string(rate) + "," + value[1] + "," + value[0] + "," + value[2];
        if (const auto settings = parseModeString(mode)) {
            return *settings;
        }
    }
    wrongValue(option, value, "a form such as 8N1 or 7E1");
}

struct Reader {
    std::string_view name;
    bool takesValue;
    void (*read)(Illness& illness, std::string_view option, std::string_view value);
};

double share(std::string_view option, std::string_view value) {
    return numberValue<double>(option, value, 0, 1, "a probability from 0 to 1");
}

constexpr std::array<Reader, 15> kReaders = {{
    {"rate", true,
     [](Illness& illness, std::string_view option, std::string_view value) {
         settingsOf(illness.handheld).baud = readRate(option, value);
     }},
    {"form", true,
     [](Illness& illness, std::string_view option, std::string_view value) {
         illness.handheld = readForm(option, value, settingsOf(illness.handheld).baud);
     }},
    {"mute", false, [](Illness& illness, std::string_view, std::string_view) { illness.mute = true; }},
    {"deaf", false, [](Illness& illness, std::string_view, std::string_view) { illness.deaf = true; }},
    {"dead", false,
     [](Illness& illness, std::string_view, std::string_view) { illness.mute = illness.deaf = true; }},
    {"loopback", false,
     [](Illness& illness, std::string_view, std::string_view) { illness.loopback = true; }},
    {"echo", false, [](Illness& illness, std::string_view, std::string_view) { illness.echo.emplace(); }},
    {"modem", false, [](Illness& illness, std::string_view, std::string_view) { illness.modem = true; }},
    {"quiet-modem", false,
     [](Illness& illness, std::string_view, std::string_view) { illness.quietModem = true; }},
    {"noise", true,
     [](Illness& illness, std::string_view option, std::string_view value) {
         illness.noise = share(option, value);
     }},
    {"losses", true,
     [](Illness& illness, std::string_view option, std::string_view value) {
         illness.losses = share(option, value);
     }},
    {"breaks", true,
     [](Illness& illness, std::string_view option, std::string_view value) {
         illness.interruptions = share(option, value);
     }},
    {"stuck", false, [](Illness& illness, std::string_view, std::string_view) { illness.stuck = true; }},
    {"xmodem", false, [](Illness& illness, std::string_view, std::string_view) { illness.call = "\x15"; }},
    {"text", false,
     [](Illness& illness, std::string_view, std::string_view) { illness.call = "Organiser II\r\n"; }},
}};

void readOne(Illness& illness, std::string_view option, std::string_view word) {
    const std::size_t equals = word.find('=');
    const std::string_view name = word.substr(0, equals);
    const bool hasValue = equals != word.npos;
    const auto* const reader = std::find_if(kReaders.begin(), kReaders.end(), [&](const Reader& candidate) {
        return candidate.name == name && candidate.takesValue == hasValue;
    });
    if (reader == kReaders.end()) {
        wrongValue(option, word, kExpected);
    }
    reader->read(illness, option, hasValue ? word.substr(equals + 1) : std::string_view());
}

}  // namespace

Illness readIllness(std::string_view option, std::string_view list) {
    Illness illness;
    while (true) {
        const std::size_t comma = list.find(',');
        readOne(illness, option, list.substr(0, comma));
        if (comma == list.npos) {
            return illness;
        }
        list.remove_prefix(comma + 1);
    }
}

}  // namespace velmora::tools
