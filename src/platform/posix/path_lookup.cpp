#include "platform/posix/path_lookup.h"

#include <sys/stat.h>

#include <algorithm>
#include <vector>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "platform/posix/folder_reader.h"
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

std::optional<std::string> findByShortName(const std::string& folder, std::string_view name) {
    std::vector<std::string> names;
    readIfAllowed(folder, [&](std::string_view entry, EntryKind) {
        names.emplace_back(entry);
        return true;
    });
    std::sort(names.begin(), names.end());
    return nameWithShortName(names, name);
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

std::optional<std::string> findEntry(const std::string& folder, std::string_view name) {
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
    if (!found && mayBeMadeUp(name)) {
        found = findByShortName(folder, name);
    }
    return found;
}

FoundPath lookUpPath(const std::string& path) {
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
