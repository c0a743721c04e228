#include "platform/profile/text_profile_files.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "platform/profile/profile_rules.h"
#include "platform/profile/replace_contents.h"

namespace velmora {
namespace {

/// A value without one pair of enclosing quotes of either kind.
std::string_view unquoted(std::string_view value) {
    const bool enclosed =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return enclosed ? value.substr(1, value.size() - 2) : value;
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
    if (isUtf16(content)) {
        throw RunTimeError(ErrorNumber::TypeMismatch, file + " is UTF-16; save it as UTF-8");
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
    return number.empty() ? defaultValue : profileNumber(number);
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
    checkProfileSection(section);
    if (!key) {
        save(file, load(file).withoutSection(section));
        return;
    }
    checkProfileKey(*key);
    if (!value) {
        save(file, load(file).withoutKey(section, *key));
        return;
    }
    checkProfileValue(*value);
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
    checkProfileSection(section);
    checkProfileKey(key);
    if (!isOneProfileLine(path) || !isUtf8(path)) {
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
