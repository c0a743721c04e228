#include "platform/posix/path_lookup.h"

#include <sys/stat.h>

#include <algorithm>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "platform/posix/folder_reader.h"
#include "platform/posix/resolved_path.h"
#include "platform/short_names.h"

namespace velmora {
namespace {

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char asciiCapital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c;
}

std::string asciiCapitals(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), asciiCapital);
    return out;
}

bool isThere(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

/// Reads a folder, or nothing of one that this login may not read.
template <typename Visit>
void readIfAllowed(const std::string& folder, const Visit& visit) {
    try {
        readFolder(folder, visit);
    } catch (const RunTimeError& error) {
        if (error.errorNumber() != ErrorNumber::PathFileAccess &&
            error.errorNumber() != ErrorNumber::PathNotFound) {
            throw;
        }
    }
}

/// One text for a folder, whatever path leads to it.
std::string canonical(const std::string& folder) {
    return resolvedPosixPath(folder.empty() ? "." : folder).value_or(folder);
}

/// The entry with this name, else the first in byte order that differs only by case.
std::optional<std::string> findByLetters(const std::string& folder, std::string_view name) {
    std::optional<std::string> found;
    readIfAllowed(folder, [&](std::string_view entry, EntryKind) {
        if (entry == name) {
            found = entry;
            return false;
        }
        if (sameLetters(entry, name) && (!found || entry < *found)) {
            found = entry;
        }
        return true;
    });
    return found;
}

}  // namespace

std::string withoutCase(std::string_view name) {
    std::string capitals = asciiCapitals(name);
    if (std::all_of(name.begin(), name.end(), isAscii)) {
        return capitals;
    }
    const std::optional<std::string> windows = fromUtf8(name);
    return windows ? toUtf8(upperCase(*windows)) : capitals;
}

bool sameLetters(std::string_view a, std::string_view b) {
    // Capital and small letter of a pair take the same number of bytes in UTF-8.
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (isAscii(a[i]) && isAscii(b[i])) {
            if (asciiCapital(a[i]) != asciiCapital(b[i])) {
                return false;
            }
            continue;
        }
        return withoutCase(a) == withoutCase(b);
    }
    return true;
}

std::optional<std::string> PathLookup::findEntry(const std::string& folder, std::string_view name) const {
    std::optional<std::string> found = findByLetters(folder, name);
    if (!mayBeMadeUp(name) || found == name) {
        return found;
    }
    if (const std::optional<std::string> given = given_.nameOf(canonical(folder), name)) {
        return findByLetters(folder, *given).value_or(*given);
    }
    return found ? found : findByShortName(folder, name);
}

std::optional<std::string> PathLookup::findByShortName(const std::string& folder,
                                                       std::string_view name) const {
    std::vector<std::string> names;
    readIfAllowed(folder, [&](std::string_view entry, EntryKind) {
        names.emplace_back(entry);
        return true;
    });
    std::sort(names.begin(), names.end());
    shortNames(folder, names);
    return given_.nameOf(canonical(folder), name);
}

std::vector<std::string> PathLookup::shortNames(const std::string& folder,
                                                const std::vector<std::string>& sortedNames) const {
    return given_.give(canonical(folder), sortedNames);
}

std::string PathLookup::pathOfShortName(const std::string& path) const {
    const std::size_t nameStart = path.rfind('/') + 1;
    if (!mayBeMadeUp(std::string_view(path).substr(nameStart))) {
        return path;
    }
    const std::string folder = lookUp(path.substr(0, nameStart) + ".").path;
    const std::optional<std::string> given = given_.nameOf(canonical(folder), path.substr(nameStart));
    return given ? path.substr(0, nameStart) + *given : path;
}

FoundPath PathLookup::lookUp(const std::string& path) const {
    if (path.empty() || path.find('\0') != std::string::npos) {
        throw RunTimeError(ErrorNumber::BadFileName, path);
    }
    if (isThere(path)) {
        return {path, true};
    }
    std::string found;
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string component = path.substr(start, end - start);
        const std::string folder = found;
        found += component;
        if (!component.empty() && !isThere(found)) {
            const std::optional<std::string> entry = findEntry(folder, component);
            if (!entry) {
                return {found + path.substr(end), false};
            }
            found = folder + *entry;
        }
        if (end < path.size()) {
            found += '/';
        }
        start = end + 1;
    }
    return {found, isThere(found)};
}

}  // namespace velmora
