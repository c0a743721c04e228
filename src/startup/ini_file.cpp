#include "startup/ini_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "base/byte_text.h"
#include "base/number_text.h"
#include "base/run_time_error.h"

namespace velmora {
namespace {

constexpr std::size_t kStringBuffer = 255;

unsigned char upperAscii(unsigned char c) {
    return c >= 'a' && c <= 'z' ? static_cast<unsigned char>(c - 0x20) : c;
}

/// "[section] key=value", for the messages of failed conversions.
std::string entryText(const std::string& section, const std::string& key, const std::string& value) {
    return '[' + section + "] " + key + '=' + value;
}

/// Truth value of the words that GetBool knows, in capitals.
std::optional<bool> knownWord(const std::string& word) {
    static constexpr std::array<std::string_view, 7> kTrue = {"YES", "Y", "TRUE", "T", "ON", "1", "-1"};
    static constexpr std::array<std::string_view, 6> kFalse = {"NO", "N", "FALSE", "F", "OFF", "0"};
    if (std::find(kTrue.begin(), kTrue.end(), word) != kTrue.end()) {
        return true;
    }
    if (std::find(kFalse.begin(), kFalse.end(), word) != kFalse.end()) {
        return false;
    }
    return std::nullopt;
}

/// Whether a whole text, without blanks at its ends, is a decimal number with an optional exponent.
bool isNumber(std::string_view text) {
    std::size_t i = 0;
    const auto take = [&](std::string_view any) {
        const bool taken = i < text.size() && any.find(text[i]) != std::string_view::npos;
        i += taken ? 1 : 0;
        return taken;
    };
    const auto takeDigits = [&] {
        const std::size_t first = i;
        while (take("0123456789")) {
        }
        return i - first;
    };
    take("+-");
    std::size_t digits = takeDigits();
    if (take(".")) {
        digits += takeDigits();
    }
    if (digits == 0) {
        return false;
    }
    if (take("EeDd")) {
        take("+-");
        if (takeDigits() == 0) {
            return false;
        }
    }
    return i == text.size();
}

/// Truth value of any other text: a number that is not 0 is true. Throws a type mismatch for what is no
/// number and an overflow for one that is too large.
bool truthOfNumber(std::string_view text) {
    if (!isNumber(text)) {
        throw RunTimeError(ErrorNumber::TypeMismatch);
    }
    const double number = numericValue(text);
    if (std::isinf(number)) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return number != 0;
}

}  // namespace

bool KeyOrder::operator()(std::string_view a, std::string_view b) const {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto left = static_cast<unsigned char>(a[i]);
        const auto right = static_cast<unsigned char>(b[i]);
        if (left >= 0x80 || right >= 0x80) {
            return upperCase(a.substr(i)) < upperCase(b.substr(i));
        }
        if (upperAscii(left) != upperAscii(right)) {
            return upperAscii(left) < upperAscii(right);
        }
    }
    return a.size() < b.size();
}

clsIniFile::clsIniFile(ProfileFiles& profiles, const PathRules& rules, MessageBox& box,
                       std::string windowsFolder)
    : profiles_(profiles), rules_(rules), box_(box), windowsFolder_(std::move(windowsFolder)) {}

void clsIniFile::setIniFile(const std::string& path) {
    if (useWinIni_) {
        privatePath_ = path.empty() ? std::string() : rules_.absolute(path);
        return;
    }
    setFile(path);
}

void clsIniFile::setFile(const std::string& path) {
    path_ = path.empty() ? std::string() : rules_.absolute(path);
    folder_ = rules_.parentFolder(path_);
    baseName_ = rules_.baseName(path_);
    extension_ = rules_.extension(path_);
    registered_ = !path_.empty() && (registered_ || !section_.empty());
}

void clsIniFile::setSectionName(const std::string& section) {
    section_ = section;
    registered_ = registered_ || (!path_.empty() && !section_.empty());
}

void clsIniFile::setUseWinINI(bool use) {
    if (use == useWinIni_) {
        return;
    }
    useWinIni_ = use;
    if (use) {
        privatePath_ = path_;
        setFile(rules_.join(windowsFolder_, "win.ini"));
    } else {
        setFile(privatePath_);
    }
}

bool clsIniFile::registered() {
    if (!registered_) {
        box_.inform(BoxIcon::Information, "IniFile Logic Error",
                    "[Section] and FileName Not Registered in Private.Ini!");
    }
    return registered_;
}

std::int16_t clsIniFile::GetInt(const std::string& key, std::int16_t defaultValue) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::int32_t value = GetLong(key, defaultValue);
    if (value < Limits::min() || value > Limits::max()) {
        throw RunTimeError(ErrorNumber::Overflow, entryText(section_, key, GetString(key, {})));
    }
    return static_cast<std::int16_t>(value);
}

std::int32_t clsIniFile::GetLong(const std::string& key, std::int32_t defaultValue) {
    return registered() ? profiles_.getInt(section_, key, defaultValue, path_) : 0;
}

std::string clsIniFile::GetString(const std::string& key, const std::string& defaultText) {
    return registered() ? profiles_.getString(section_, key, defaultText, kStringBuffer, path_)
                        : std::string();
}

bool clsIniFile::GetBool(const std::string& key, bool defaultValue) {
    if (!registered()) {
        return false;
    }
    const std::string value = GetString(key, defaultValue ? "True" : "False");
    const std::string word = upperCase(trimBlanks(value));
    if (const auto known = knownWord(word)) {
        return *known;
    }
    try {
        return truthOfNumber(word);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.errorNumber(), entryText(section_, key, value));
    }
}

std::string clsIniFile::GetPath(const std::string& key, const std::string& defaultPath) {
    return registered() ? profiles_.getPath(section_, key, defaultPath, path_) : std::string();
}

void clsIniFile::PutInt(const std::string& key, std::int16_t value) {
    PutString(key, std::to_string(value));
}

void clsIniFile::PutString(const std::string& key, const std::string& value) {
    if (registered()) {
        profiles_.writeString(section_, key, value, path_);
    }
}

void clsIniFile::PutBool(const std::string& key, bool value) {
    PutString(key, value ? "True" : "False");
}

void clsIniFile::PutPath(const std::string& key, const std::string& path) {
    if (registered()) {
        profiles_.writePath(section_, key, path, path_);
    }
}

void clsIniFile::DeleteStrEntry(const std::string& key) {
    if (registered()) {
        profiles_.writeString(section_, key, std::nullopt, path_);
    }
}

void clsIniFile::DeleteNumEntry(const std::string& key) {
    DeleteStrEntry(key);
}

void clsIniFile::DeleteSection() {
    if (registered()) {
        profiles_.writeString(section_, std::nullopt, std::nullopt, path_);
    }
}

void clsIniFile::FlushCache() {
    if (registered()) {
        profiles_.flush(path_);
    }
}

std::string clsIniFile::GetSectEntries() {
    std::string entries;
    if (registered()) {
        for (const std::string& line : profiles_.getSection(section_, path_)) {
            entries += line + '\0';
        }
    }
    return entries;
}

std::vector<std::pair<std::string, std::string>> clsIniFile::GetSectEntriesEx() {
    std::vector<std::pair<std::string, std::string>> entries;
    if (!registered()) {
        return entries;
    }
    for (const std::string& line : profiles_.getSection(section_, path_)) {
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos) {
            entries.emplace_back(line.substr(0, equals), line.substr(equals + 1));
        }
    }
    return entries;
}

void clsIniFile::GetSectEntriesDict(SectionDictionary& dictionary) {
    for (auto& entry : GetSectEntriesEx()) {
        dictionary.insert(std::move(entry));
    }
}

std::vector<std::string> clsIniFile::sectionNames() {
    const std::string text = profiles_.text(path_);
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        std::string_view line(text.data() + begin, end - begin);
        begin = end + 1;
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        const std::string content = trimBlanks(line.substr(0, line.find(';')));
        if (content.starts_with('[') && content.find(']') == content.size() - 1) {
            names.push_back(content.substr(1, content.size() - 2));
        }
    }
    return names;
}

std::string clsIniFile::GetSections() {
    if (!registered()) {
        return {};
    }
    std::string list;
    for (const std::string& name : sectionNames()) {
        list += name + '\0';
    }
    return list + '\0';
}

bool clsIniFile::SectExist(const std::string& section) {
    if (!registered()) {
        return false;
    }
    // The listing knows empty sections, the profile functions those whose line the listing does not take.
    const std::vector<std::string> names = sectionNames();
    const std::string wanted = upperCase(section);
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return upperCase(name) == wanted; }) ||
           !profiles_.getSection(section, path_).empty();
}

}  // namespace velmora
