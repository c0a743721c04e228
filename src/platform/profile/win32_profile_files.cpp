#include "platform/profile/win32_profile_files.h"

#include <windows.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <string_view>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "platform/known_folders.h"
#include "platform/profile/profile_encoding.h"
#include "platform/profile/profile_rules.h"
#include "platform/profile/profile_text.h"
#include "platform/profile/replace_contents.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/win32_errors.h"

namespace velmora {
namespace {

/// FF FE at the start of a file: UTF-16, least significant byte first, which the functions read as well.
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

/// What a function puts into a buffer of growing size. It answers the count of characters, and one that is
/// `reserve` below the size when the buffer was too small.
std::string grown(DWORD reserve, const std::function<DWORD(char* buffer, DWORD size)>& fill) {
    std::string buffer;
    for (DWORD size = 1024; size <= ProfileText::kLargest; size *= 2) {
        buffer.resize(size);
        const DWORD count = fill(buffer.data(), size);
        if (count < size - reserve) {
            buffer.resize(count);
            return buffer;
        }
    }
    throw RunTimeError(ErrorNumber::OutOfMemory);
}

/// UTF-16 as the functions would give it: in the ANSI code page.
std::string fromUtf16(std::string_view bytes) {
    std::wstring wide(bytes.size() / 2, L'\0');
    for (std::size_t i = 0; i < wide.size(); ++i) {
        const auto low = static_cast<unsigned char>(bytes[2 * i]);
        const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
        wide[i] = static_cast<wchar_t>(low | high << 8);
    }
    const int length = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(CP_ACP, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), length, text.data(), size, nullptr, nullptr);
    return text;
}

/// A line as "key=value" without the blanks around both; systems differ in what they leave of them.
std::string normalised(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        return trimBlanks(line);
    }
    return trimBlanks(line.substr(0, equals)) + '=' + trimBlanks(line.substr(equals + 1));
}

/// Completes pending writes and forgets what is remembered of a file: the call without any text.
void forget(const std::string& path) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
}

void writeSystemProfile(const std::string& section, const char* key, const char* value,
                        const std::string& path) {
    // A section that goes loses its entries first and then its heading.
    const bool emptied = key != nullptr || WriteProfileSectionA(section.c_str(), "\0") != FALSE;
    if (!emptied || WriteProfileStringA(section.c_str(), key, value) == FALSE) {
        throw win32Error(GetLastError(), path);
    }
}

}  // namespace

Win32ProfileFiles::Win32ProfileFiles(Files& files, const PathRules& rules)
    : files_(files),
      rules_(rules),
      systemProfile_(rules.join(windowsFolder(), "win.ini")),
      utf8_(files, rules, PathEncoding::Utf8) {}

/// The path to give to the functions. They take a name without a folder, and a path that is too long, for
/// something in the Windows folder.
std::string Win32ProfileFiles::pathFor(const std::string& file) const {
    std::string path = rules_.absolute(file);
    if (path.size() >= MAX_PATH || !isOneProfileLine(path) || rules_.drive(path).empty()) {
        throw RunTimeError(ErrorNumber::BadFileName, file);
    }
    return path;
}

/// Throws when there is something at the path and it cannot be read: the functions would answer defaults.
std::string Win32ProfileFiles::readablePath(const std::string& file) const {
    std::string path = pathFor(file);
    if (files_.folderExists(path)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path);
    }
    if (files_.fileExists(path)) {
        const auto opened = files_.open(path, OpenMode::Read);
        if (opened->size() > ProfileText::kLargest) {
            throw RunTimeError(ErrorNumber::OutOfMemory, path);
        }
    }
    return path;
}

bool Win32ProfileFiles::isSystemProfile(const std::string& path) const {
    return upperCase(path) == upperCase(systemProfile_);
}

/// Whether a file holds UTF-8, which the functions take for texts of the ANSI code page.
bool Win32ProfileFiles::isUtf8Profile(const std::string& path) const {
    return !isSystemProfile(path) && detectEncoding(contents(path)) == ProfileEncoding::Utf8;
}

/// Whether a file holds UTF-8 or, being plain, would be taken for UTF-8 once these bytes stand in it.
bool Win32ProfileFiles::becomesUtf8Profile(const std::string& path, const std::string& bytes) const {
    if (isSystemProfile(path)) {
        return false;
    }
    const ProfileEncoding encoding = detectEncoding(contents(path));
    return encoding == ProfileEncoding::Utf8 ||
           (encoding == ProfileEncoding::Ascii && detectEncoding(bytes) == ProfileEncoding::Utf8);
}

std::string Win32ProfileFiles::getString(const std::string& section, const std::string& key,
                                         const std::string& defaultText, std::size_t bufferSize,
                                         const std::string& file) {
    const std::string path = readablePath(file);
    if (isUtf8Profile(path)) {
        return utf8_.getString(section, key, defaultText, bufferSize, path);
    }
    if (bufferSize <= 1) {
        return {};
    }
    std::string buffer(std::min(bufferSize, ProfileText::kLargest), '\0');
    const auto size = static_cast<DWORD>(buffer.size());
    const DWORD count =
        isSystemProfile(path)
            ? GetProfileStringA(section.c_str(), key.c_str(), defaultText.c_str(), buffer.data(), size)
            : GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultText.c_str(), buffer.data(), size,
                                       path.c_str());
    buffer.resize(count);
    return buffer;
}

/// A value of any length; `otherwise` when there is none.
std::string Win32ProfileFiles::wholeValue(const std::string& section, const std::string& key,
                                          const std::string& otherwise, const std::string& path) const {
    return grown(1, [&](char* buffer, DWORD size) {
        return isSystemProfile(path)
                   ? GetProfileStringA(section.c_str(), key.c_str(), otherwise.c_str(), buffer, size)
                   : GetPrivateProfileStringA(section.c_str(), key.c_str(), otherwise.c_str(), buffer, size,
                                              path.c_str());
    });
}

std::int32_t Win32ProfileFiles::getInt(const std::string& section, const std::string& key,
                                       std::int32_t defaultValue, const std::string& file) {
    const std::string path = readablePath(file);
    if (isUtf8Profile(path)) {
        return utf8_.getInt(section, key, defaultValue, path);
    }
    const std::string value = wholeValue(section, key, {}, path);
    if (value.empty()) {
        return defaultValue;
    }
    const auto number = static_cast<std::int32_t>(
        isSystemProfile(path)
            ? GetProfileIntA(section.c_str(), key.c_str(), defaultValue)
            : GetPrivateProfileIntA(section.c_str(), key.c_str(), defaultValue, path.c_str()));
    // The functions let a number run over: 4294968496 would be 1200.
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int32_t nearest = profileNumber(value);
    return nearest == Limits::max() || nearest == Limits::min() ? nearest : number;
}

std::vector<std::string> Win32ProfileFiles::getSection(const std::string& section, const std::string& file) {
    const std::string path = readablePath(file);
    if (isUtf8Profile(path)) {
        return utf8_.getSection(section, path);
    }
    const std::string list = grown(2, [&](char* buffer, DWORD size) {
        return isSystemProfile(path) ? GetProfileSectionA(section.c_str(), buffer, size)
                                     : GetPrivateProfileSectionA(section.c_str(), buffer, size, path.c_str());
    });
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < list.size();) {
        const std::size_t end = std::min(list.find('\0', begin), list.size());
        std::string line = normalised(std::string_view(list).substr(begin, end - begin));
        if (!line.empty() && line.front() != ';') {
            lines.push_back(std::move(line));
        }
        begin = end + 1;
    }
    return lines;
}

std::string Win32ProfileFiles::contents(const std::string& path) const {
    if (!files_.fileExists(path)) {
        return {};
    }
    const auto opened = files_.open(path, OpenMode::Read);
    std::string bytes(static_cast<std::size_t>(opened->size()), '\0');
    bytes.resize(opened->read(bytes.data(), bytes.size()));
    return bytes;
}

/// The functions write into the file as it lies there; here they write into a copy of it, which takes its
/// place when all went well.
void Win32ProfileFiles::editCopy(const std::string& section, const char* key, const char* value,
                                 const std::string& path) {
    const std::string before = contents(path);
    replaceContents(files_, rules_, path, before, [&](const std::string& copy) {
        const std::string copyPath = pathFor(copy);
        if (WritePrivateProfileStringA(section.c_str(), key, value, copyPath.c_str()) == FALSE) {
            throw win32Error(GetLastError(), path);
        }
        forget(copyPath);
        return contents(copyPath) != before;
    });
    forget(path);
}

void Win32ProfileFiles::writeString(const std::string& section, const std::optional<std::string>& key,
                                    const std::optional<std::string>& value, const std::string& file) {
    checkProfileSection(section);
    if (key) {
        checkProfileKey(*key);
    }
    if (value) {
        checkProfileValue(*value);
    }
    const std::string path = readablePath(file);
    const char* keyText = key ? key->c_str() : nullptr;
    const char* valueText = key && value ? value->c_str() : nullptr;
    if (becomesUtf8Profile(path, '[' + section + ']' + key.value_or("") + '=' + value.value_or(""))) {
        utf8_.writeString(section, key, value, path);
        forget(path);
    } else if (isSystemProfile(path)) {
        writeSystemProfile(section, keyText, valueText, path);
    } else {
        editCopy(section, keyText, valueText, path);
    }
}

std::string Win32ProfileFiles::getPath(const std::string& section, const std::string& key,
                                       const std::string& defaultPath, const std::string& file) {
    const std::string path = readablePath(file);
    if (isUtf8Profile(path)) {
        return ansiPath(
            wideFromUtf8(utf8_.getPath(section, key, utf8FromWide(wideFromAnsi(defaultPath)), path)));
    }
    std::string value = wholeValue(section, key, {}, path);
    if (!value.empty()) {
        return value;
    }
    // An empty value and none look alike until the default is one that would show.
    return wholeValue(section, key, "?", path).empty() ? std::string() : defaultPath;
}

void Win32ProfileFiles::writePath(const std::string& section, const std::string& key, const std::string& path,
                                  const std::string& file) {
    if (!isOneProfileLine(path)) {
        throw RunTimeError(ErrorNumber::BadFileName, path);
    }
    const std::string profile = readablePath(file);
    if (becomesUtf8Profile(profile, '[' + section + ']' + key + '=' + path)) {
        utf8_.writePath(section, key, utf8FromWide(wideFromAnsi(path)), profile);
        forget(profile);
    } else {
        writeString(section, key, path, file);
    }
}

std::string Win32ProfileFiles::text(const std::string& file) {
    const std::string path = readablePath(file);
    if (isUtf8Profile(path)) {
        return utf8_.text(path);
    }
    const std::string bytes = contents(path);
    return bytes.starts_with(kUtf16Mark) ? fromUtf16(std::string_view(bytes).substr(kUtf16Mark.size()))
                                         : bytes;
}

void Win32ProfileFiles::flush(const std::string& file) {
    const std::string path = pathFor(file);
    utf8_.flush(path);
    if (isSystemProfile(path)) {
        WriteProfileStringA(nullptr, nullptr, nullptr);
    } else {
        forget(path);
    }
}

}  // namespace velmora
