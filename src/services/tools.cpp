#include "services/tools.h"

#include "base/ascii.h"
#include "base/byte_text.h"

namespace velmora {
namespace {

/// Whether a folder is written with this drive letter.
bool liesOnDrive(const std::string& folder, char letter) {
    return isLetter(letter) && folder.size() >= 2 && folder[1] == ':' &&
           upperCase(folder.substr(0, 1)) == upperCase(std::string(1, letter));
}

/// The place that a name (converted, with the system's separators) stands for, not yet made absolute.
/// Nothing when it lies where this system has no such place.
std::optional<std::string> locate(const PathRules& rules, const std::string& downloadFolder,
                                  const std::string& name) {
    const char separator = rules.separator();
    const auto charAt = [&](std::size_t i) { return i < name.size() ? name[i] : '\0'; };
    if (charAt(0) == separator) {
        if (charAt(1) != separator) {
            return rules.join(rules.drive(downloadFolder), name);
        }
        return rules.hasDrives() ? std::optional(name) : std::nullopt;
    }
    if (charAt(1) == ':') {
        const bool own = liesOnDrive(downloadFolder, name[0]);
        if (own && charAt(2) != separator) {
            return rules.join(downloadFolder, name.substr(2));
        }
        return own || rules.hasDrives() ? std::optional(name) : std::nullopt;
    }
    return rules.join(downloadFolder, name);
}

/// A name without small letters with its first letter kept and the rest in small letters. `file` is in the
/// system's encoding; its letters are those of Windows-1252.
std::string recased(const PathRules& rules, const std::string& file) {
    const std::optional<std::string> bytes = rules.toOrganiser(file);
    if (!bytes) {
        return file;
    }
    const std::string base = bytes->substr(0, bytes->rfind('.'));
    if (base != upperCase(base)) {
        return file;
    }
    return rules.fromOrganiser(bytes->substr(0, 1) + lowerCase(bytes->substr(1))).value_or(file);
}

/// A name as the Organiser sent it with the characters of this system; nothing when it is refused as a text.
std::optional<std::string> converted(const PathRules& rules, std::string_view name, bool allowWildcards) {
    std::string wanted = trimBlanks(name);
    translate_Chars(wanted, "/%>", "\\_~");
    if (!allowWildcards && wanted.find('*') != std::string::npos) {
        return std::nullopt;
    }
    return rules.fromOrganiser(wanted);
}

bool isFileName(const std::string& component) {
    return !component.empty() && component != "." && component != "..";
}

}  // namespace

std::string& translate_Chars(std::string& text, std::string_view find, std::string_view replace) {
    for (char& c : text) {
        const std::size_t position = find.find(c);
        if (position != std::string_view::npos) {
            c = replace[position];
        }
    }
    return text;
}

std::optional<std::string> fileNamed(const PathRules& rules, std::string_view name) {
    const std::optional<std::string> file = converted(rules, name, false);
    if (!file || !isFileName(*file) || file->substr(1, 1) == ":" || rules.lastComponent(*file) != *file) {
        return std::nullopt;
    }
    return recased(rules, *file);
}

Tools::Tools(const Files& files, const PathRules& rules, const TransferSettings& settings)
    : files_(files), rules_(rules), settings_(settings) {}

std::string Tools::map_FileName(std::string_view name, bool resolveExisting, bool allowWildcards) const {
    std::string path = pathOf(name, resolveExisting, allowWildcards);
    if (path.empty() || !settings_.StayInFolder) {
        return path;
    }
    return liesInDownloadFolder(allowWildcards ? rules_.parentFolder(path) : path) ? path : std::string();
}

bool Tools::liesInDownloadFolder(const std::string& path) const {
    const std::optional<std::string> folder = files_.resolvedPath(settings_.DownloadPath);
    const std::optional<std::string> place = files_.resolvedPath(path);
    // A name behind the folder's own with a separator between them: "/psion2" does not lie in "/psion".
    return folder && place && (*place == *folder || place->starts_with(rules_.join(*folder, {})));
}

std::string Tools::pathOf(std::string_view name, bool resolveExisting, bool allowWildcards) const {
    const std::optional<std::string> wanted = converted(rules_, name, allowWildcards);
    if (!wanted) {
        return {};
    }
    const std::optional<std::string> located = locate(rules_, settings_.DownloadPath, *wanted);
    if (!located) {
        return {};
    }
    const std::string folder = rules_.absolute(rules_.parentFolder(*located));
    const std::string file = rules_.lastComponent(*located);
    if (!isFileName(file) || !files_.folderExists(folder)) {
        return {};
    }
    std::string path = rules_.join(folder, recased(rules_, file));
    if (allowWildcards) {
        return path;
    }
    const std::string meant = files_.pathOfShortName(path);
    return resolveExisting && files_.fileExists(meant) ? files_.storedPath(meant) : meant;
}

std::string Tools::displayName(const std::string& path) const {
    const std::string name = rules_.lastComponent(path);
    std::string shown;
    for (std::size_t i = 0; i < name.size();) {
        // A character takes one to four bytes, depending on the system's encoding.
        std::optional<std::string> bytes;
        std::size_t length = 0;
        while (!bytes && length < 4 && i + length < name.size()) {
            ++length;
            bytes = rules_.toOrganiser(std::string_view(name).substr(i, length));
        }
        if (bytes) {
            shown += *bytes;
            i += length;
            continue;
        }
        shown += '?';
        const bool isLead = static_cast<unsigned char>(name[i]) >= 0xC0;
        ++i;
        while (isLead && i < name.size() && (static_cast<unsigned char>(name[i]) & 0xC0) == 0x80) {
            ++i;
        }
    }
    return shown;
}

}  // namespace velmora
