// Any files in a folder, listed by any pattern: each line opens a file, and no two lines the same one.
//
// Input: a byte for the kind of the listing and the rules of the names, the pattern, then names of files.
#include <algorithm>
#include <cstdint>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "base/byte_text.h"
#include "input.h"
#include "platform/posix/posix_paths.h"
#include "platform/short_names.h"
#include "platform/windows_paths.h"
#include "require.h"
#include "services/folder_listing.h"
#include "services/tools.h"
#include "support/memory_files.h"

namespace {

using namespace velmora;
using fuzz::require;

/// A system with a folder that keeps the short names which names get on a disk without.
class ListedFolder {
  public:
    ListedFolder(const PathRules& rules, const std::string& folder, std::vector<std::string> names)
        : rules_(rules), files_(rules.separator()), settings_{folder} {
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) {
            files_.addFile(rules_.join(folder, name));
        }
        const std::vector<std::string> shorts = shortNames(names);
        for (std::size_t i = 0; i < names.size(); ++i) {
            files_.setShortName(rules_.join(folder, names[i]), shorts[i]);
        }
    }
    void list(const std::string& pattern, ListedNames kind) {
        const Tools tools(files_, rules_, settings_);
        const std::string path = tools.map_FileName(pattern, false, true);
        if (rules_.parentFolder(path) != settings_.DownloadPath) {
            return;
        }
        const std::string listing = rules_.join(files_.temporaryFolder(), "listing");
        writeFolderListing(files_, rules_, path, kind, *files_.open(listing, OpenMode::Create));
        std::istringstream lines(files_.content(listing));
        std::set<std::string> opened;
        for (std::string line; std::getline(lines, line);) {
            require(!line.empty() && line.back() == '\r');
            line.pop_back();
            const std::string file = tools.map_FileName(line, true, false);
            require(files_.fileExists(file) && rules_.parentFolder(file) == settings_.DownloadPath);
            require(opened.insert(file).second);
        }
    }

  private:
    const PathRules& rules_;
    test::MemoryFiles files_;
    TransferSettings settings_;
};

/// Whether a disk can hold the name at all.
bool isName(const std::string& name, std::string_view forbidden) {
    return name.find_first_not_of(". ") != std::string::npos &&
           std::none_of(name.begin(), name.end(), [&](char c) {
               return static_cast<unsigned char>(c) < ' ' || forbidden.find(c) != std::string_view::npos;
           });
}

/// The names of the input, of those that differ only by case the first.
std::vector<std::string> namesOf(fuzz::Input& input, std::string_view forbidden) {
    constexpr std::size_t kMost = 30;
    std::vector<std::string> names;
    std::set<std::string> seen;
    while (!input.atEnd() && names.size() < kMost) {
        const std::string name = input.text();
        if (isName(name, forbidden) && seen.insert(upperCase(name)).second) {
            names.push_back(name);
        }
    }
    return names;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const PosixPaths posix("/");
    static const WindowsPaths windows("C:\\");
    fuzz::Input input(data, size);
    const std::uint8_t choice = input.byte();
    const ListedNames kind = (choice & 1) != 0 ? ListedNames::Long : ListedNames::Short;
    const std::string pattern = input.text();
    if ((choice & 2) != 0) {
        ListedFolder(posix, "/psion", namesOf(input, "/")).list(pattern, kind);
    } else {
        ListedFolder(windows, "C:\\Psion", namesOf(input, "\\/:*?\"<>|")).list(pattern, kind);
    }
    return 0;
}
