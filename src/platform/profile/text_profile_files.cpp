#include "platform/profile/text_profile_files.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "platform/profile/replace_contents.h"

namespace velmora {
namespace {

/// A value without one pair of enclosing quotes of either kind.
std::string_view unquoted(std::string_view value) {
    const bool enclosed =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return enclosed ? value.substr(1, value.size() - 2) : value;
}

int digitValue(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 16;
}

std::int32_t wholeNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const int base = text.starts_with("0x") ? 16 : 10;
    text.remove_prefix(base == 16 ? 2 : 0);
    // Far enough beyond 32 bits to saturate, far enough below 64 to go on multiplying.
    constexpr std::int64_t kEnough = std::int64_t{1} << 40;
    std::int64_t number = 0;
    for (const char c : text) {
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

void require(bool storable, const std::string& text) {
    if (!storable) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, text);
    }
}

bool isOneLine(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

void checkSection(const std::string& section) {
    require(isOneLine(section) && section.find(']') == std::string::npos, section);
}

void checkKey(const std::string& key) {
    require(!key.empty() && isOneLine(key) && key.find('=') == std::string::npos, key);
    constexpr std::string_view kBlanks = " \t";
    require(kBlanks.find(key.front()) == std::string_view::npos &&
                kBlanks.find(key.back()) == std::string_view::npos,
            key);
    require(key.front() != ';' && key.front() != '[', key);
}

}  // namespace

TextProfileFiles::TextProfileFiles(Files& files, const PathRules& rules, PathEncoding paths)
    : files_(files), rules_(rules), paths_(paths), last_(std::make_unique<ProfileText>()) {}

const ProfileText& TextProfileFiles::load(const std::string& file) {
    std::string content;
    if (files_.folderExists(file)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, file);
    }
    if (files_.fileExists(file)) {
        const auto opened = files_.open(file, OpenMode::Read);
        const std::uint64_t size = opened->size();
        if (size > ProfileText::kLargest) {
            throw RunTimeError(ErrorNumber::OutOfMemory, file);
        }
        content.resize(static_cast<std::size_t>(size));
        content.resize(opened->read(content.data(), content.size()));
    }
    if (content != last_->content()) {
        last_ = std::make_unique<ProfileText>(std::move(content));
    }
    return *last_;
}

void TextProfileFiles::save(const std::string& file, const std::string& contents) {
    if (contents != last_->content()) {
        replaceContents(files_, rules_, file, contents);
    }
}

std::string TextProfileFiles::getString(const std::string& section, const std::string& key,
                                        const std::string& defaultText, std::size_t bufferSize,
                                        const std::string& file) {
    const ProfileText& profile = load(file);
    const auto value = profile.value(section, key);
    std::string text = value ? decodeText(unquoted(*value), profile.encoding()) : trimRight(defaultText);
    text.resize(std::min(text.size(), bufferSize == 0 ? 0 : bufferSize - 1));
    return text;
}

std::int32_t TextProfileFiles::getInt(const std::string& section, const std::string& key,
                                      std::int32_t defaultValue, const std::string& file) {
    const auto value = load(file).value(section, key);
    const std::string_view number = value ? unquoted(*value) : std::string_view();
    return number.empty() ? defaultValue : wholeNumber(number);
}

std::vector<std::string> TextProfileFiles::getSection(const std::string& section, const std::string& file) {
    const ProfileText& profile = load(file);
    std::vector<std::string> lines = profile.entries(section);
    if (profile.encoding() == ProfileEncoding::Utf8) {
        for (std::string& line : lines) {
            line = decodeText(line, ProfileEncoding::Utf8);
        }
    }
    return lines;
}

void TextProfileFiles::writeString(const std::string& section, const std::optional<std::string>& key,
                                   const std::optional<std::string>& value, const std::string& file) {
    checkSection(section);
    if (!key) {
        save(file, load(file).withoutSection(section));
        return;
    }
    checkKey(*key);
    if (!value) {
        save(file, load(file).withoutKey(section, *key));
        return;
    }
    require(isOneLine(*value), *value);
    const ProfileText& profile = load(file);
    save(file, profile.withValue(section, *key, encodeText(*value, profile.encoding())));
}

std::string TextProfileFiles::getPath(const std::string& section, const std::string& key,
                                      const std::string& defaultPath, const std::string& file) {
    const ProfileText& profile = load(file);
    const auto value = profile.value(section, key);
    if (!value) {
        return defaultPath;
    }
    const std::string_view bytes = unquoted(*value);
    if (paths_ == PathEncoding::Windows1252) {
        return decodeText(bytes, profile.encoding());
    }
    // In a file with Windows-1252 texts a path may still stand as it was saved, in UTF-8.
    return isUtf8(bytes) ? std::string(bytes) : toUtf8(bytes);
}

void TextProfileFiles::writePath(const std::string& section, const std::string& key, const std::string& path,
                                 const std::string& file) {
    if (paths_ == PathEncoding::Windows1252) {
        writeString(section, key, path, file);
        return;
    }
    checkSection(section);
    checkKey(key);
    if (!isOneLine(path) || !isUtf8(path)) {
        throw RunTimeError(ErrorNumber::BadFileName, path);
    }
    save(file, load(file).withValue(section, key, path));
}

std::string TextProfileFiles::text(const std::string& file) {
    const ProfileText& profile = load(file);
    std::string_view bytes = profile.content();
    if (bytes.starts_with(kUtf8Mark)) {
        bytes.remove_prefix(kUtf8Mark.size());
    }
    return decodeText(bytes, profile.encoding());
}

void TextProfileFiles::flush(const std::string&) {
    // Writes are complete when they return; only the index of the last file is kept.
    last_ = std::make_unique<ProfileText>();
}

}  // namespace velmora
