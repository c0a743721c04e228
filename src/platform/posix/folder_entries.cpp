#include "platform/posix/folder_entries.h"

#include <sys/stat.h>

#include <algorithm>
#include <unordered_map>

#include "platform/posix/folder_reader.h"
#include "platform/posix/path_lookup.h"

namespace velmora {
namespace {

/// Whether an entry that a folder listed is a file; what has vanished is not.
bool isFile(const std::string& folder, std::string_view name, EntryKind kind) {
    if (kind != EntryKind::Unknown) {
        return kind == EntryKind::File;
    }
    struct stat status {};
    return stat((folder + "/" + std::string(name)).c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

void markTwins(std::vector<ListedEntry>& entries) {
    std::unordered_map<std::string, ListedEntry*> first;
    for (ListedEntry& entry : entries) {
        const auto [twin, isFirst] = first.try_emplace(withoutCase(entry.name), &entry);
        if (!isFirst) {
            twin->second->hasTwin = entry.hasTwin = true;
        }
    }
}

}  // namespace

std::vector<ListedEntry> sortedEntries(const std::string& folder) {
    std::vector<ListedEntry> entries;
    readFolder(folder, [&](std::string_view name, EntryKind kind) {
        entries.push_back({std::string(name), isFile(folder, name, kind)});
        return true;
    });
    std::sort(entries.begin(), entries.end(),
              [](const ListedEntry& a, const ListedEntry& b) { return a.name < b.name; });
    markTwins(entries);
    return entries;
}

std::vector<std::string> namesOf(const std::vector<ListedEntry>& entries) {
    std::vector<std::string> names;
    names.reserve(entries.size());
    for (const ListedEntry& entry : entries) {
        names.push_back(entry.name);
    }
    return names;
}

}  // namespace velmora
