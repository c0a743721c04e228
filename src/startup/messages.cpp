#include "startup/messages.h"

#include <array>
#include <utility>

#include "link/server_state.h"

namespace velmora {
namespace {

constexpr std::string_view kDisplaySection = "DisplayStrings";
constexpr std::string_view kInfoSection = "InfoStrings";

struct DisplayKey {
    std::string_view key;
    ServerState state;
};
constexpr std::array<DisplayKey, 12> kDisplayKeys = {{{"Welcome", Welcome},
                                                      {"Offline", Offline},
                                                      {"WaitLink", WaitLink},
                                                      {"Connect", Connect},
                                                      {"FileAccess", FileAccess},
                                                      {"Upload", Upload},
                                                      {"Downld", Downld},
                                                      {"SendDir", SendDir},
                                                      {"SendMenu", SendMenu},
                                                      {"Error", Error},
                                                      {"NoPort", NoPort},
                                                      {"OnExit", OnExit}}};

struct TextKey {
    std::string_view section;
    std::string_view key;
    std::string Strings::*text;
};
constexpr std::array<TextKey, 5> kInfoKeys = {{{kInfoSection, "Files", &Strings::Files},
                                               {kInfoSection, "Bytes", &Strings::Bytes},
                                               {kInfoSection, "Received", &Strings::Received},
                                               {kInfoSection, "Sent", &Strings::Sent},
                                               {kInfoSection, "Error", &Strings::Error}}};
constexpr std::array<TextKey, 10> kTextKeys = {
    {{"Dialogs", "FolderCaption", &Strings::FolderCaption},
     {"Dialogs", "DownloadPath", &Strings::DownloadPath},
     {"ErrorMessages", "BadBlockFile", &Strings::BadBlockFile},
     {"ErrorMessages", "BadBootFile", &Strings::BadBootFile},
     {"ErrorMessages", "FileNotFound", &Strings::FileNotFound},
     {"ErrorMessages", "TooManyErrors", &Strings::TooManyErrors},
     {"ErrorMessages", "UserInterrupt", &Strings::UserInterrupt},
     {"ErrorMessages", "LineDown", &Strings::LineDown},
     {"ErrorMessages", "OnExitAskText", &Strings::OnExitAskText},
     {"ErrorMessages", "OnShutdownAskText", &Strings::OnShutdownAskText}}};

// The lines as they stand in the file: reading a single value would take the outer quotes of
// "line 1","line 2" away and leave the inner ones.
SectionDictionary rawEntries(clsIniFile& ini, std::string_view section) {
    ini.setSectionName(std::string(section));
    SectionDictionary entries;
    ini.GetSectEntriesDict(entries);
    return entries;
}

}  // namespace

std::string strip_Quotes(std::string_view text) {
    if (text.starts_with('"')) {
        text.remove_prefix(1);
    }
    if (text.ends_with('"')) {
        text.remove_suffix(1);
    }
    return std::string(text);
}

DisplayText parse_DisplayValue(std::string_view value) {
    DisplayText text;
    text.line1 = strip_Quotes(value.substr(0, value.find('"', 1)));
    const std::size_t comma = value.find(',');
    if (comma == std::string_view::npos) {
        return text;
    }
    const std::size_t opening = value.find('"', comma + 1);
    if (opening == std::string_view::npos) {
        return text;
    }
    const std::size_t closing = value.find('"', opening + 1);
    if (closing != std::string_view::npos) {
        text.line2 = value.substr(opening + 1, closing - opening - 1);
    }
    return text;
}

void get_Messages(clsIniFile& ini, Strings& strings) {
    strings = Strings();
    const SectionDictionary displayEntries = rawEntries(ini, kDisplaySection);
    for (const DisplayKey& display : kDisplayKeys) {
        const auto entry = displayEntries.find(display.key);
        if (entry != displayEntries.end()) {
            strings.DisplayStrings[display.state] = parse_DisplayValue(entry->second);
        }
    }
    const SectionDictionary infoEntries = rawEntries(ini, kInfoSection);
    for (const TextKey& info : kInfoKeys) {
        const auto entry = infoEntries.find(info.key);
        if (entry != infoEntries.end()) {
            strings.*info.text = strip_Quotes(entry->second);
        }
    }
    for (const TextKey& text : kTextKeys) {
        ini.setSectionName(std::string(text.section));
        strings.*text.text = ini.GetString(std::string(text.key), strings.*text.text);
    }
}

std::vector<MessageKey> messageKeys() {
    std::vector<MessageKey> keys;
    keys.reserve(std::size(kDisplayKeys) + std::size(kInfoKeys) + std::size(kTextKeys));
    for (const DisplayKey& display : kDisplayKeys) {
        keys.push_back({kDisplaySection, display.key});
    }
    for (const TextKey& info : kInfoKeys) {
        keys.push_back({info.section, info.key});
    }
    for (const TextKey& text : kTextKeys) {
        keys.push_back({text.section, text.key});
    }
    return keys;
}

}  // namespace velmora
