// What listings need to know of a folder's entries.
#pragma once

#include <string>
#include <vector>

namespace velmora {

struct ListedEntry {
    std::string name;
    bool isFile;           ///< a regular file, or a link to one
    bool hasTwin = false;  ///< another entry differs from it only by the case of its letters
};

/// All entries of a folder in the order of their names' bytes. Throws RunTimeError when it cannot be read.
std::vector<ListedEntry> sortedEntries(const std::string& folder);

/// Their names, in the same order.
std::vector<std::string> namesOf(const std::vector<ListedEntry>& entries);

}  // namespace velmora
