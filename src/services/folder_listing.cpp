#include "services/folder_listing.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "base/byte_text.h"
#include "base/like_pattern.h"

namespace velmora {
namespace {

/// Writes lines to a file in batches.
class LineWriter {
  public:
    explicit LineWriter(File& file) : file_(file) {}

    void add(std::string_view line) {
        pending_ += line;
        pending_ += "\r\n";
        if (pending_.size() >= kBatch) {
            flush();
        }
    }
    void flush() {
        file_.write(pending_);
        pending_.clear();
    }

  private:
    static constexpr std::size_t kBatch = 32'768;
    File& file_;
    std::string pending_;
};

bool matches(std::string_view name, const std::string& upperPattern) {
    return likeMatches(upperCase(name), upperPattern);
}

/// A long name that can stand on a line for the Organiser.
std::optional<std::string> listableName(const PathRules& rules, const std::string& name) {
    if (name.find_first_of("\r\n") != std::string::npos) {
        return std::nullopt;
    }
    return rules.toOrganiser(name);
}

std::string listableShortName(std::string name) {
    std::replace(name.begin(), name.end(), '~', '>');
    return name;
}

std::optional<std::string> shortListing(const PathRules& rules, const FolderEntry& entry,
                                        const std::string& pattern) {
    if (matches(entry.shortName, pattern)) {
        return listableShortName(entry.shortName);
    }
    std::optional<std::string> name = listableName(rules, entry.name);
    return name && matches(*name, pattern) ? name : std::nullopt;
}

std::optional<std::string> longListing(const PathRules& rules, const FolderEntry& entry,
                                       const std::string& pattern) {
    std::optional<std::string> name = listableName(rules, entry.name);
    if (name) {
        return matches(*name, pattern) ? name : std::nullopt;
    }
    return matches(entry.shortName, pattern) ? std::optional(listableShortName(entry.shortName))
                                             : std::nullopt;
}

/// Whether a long listing of the folder needs short names, which are dear to compute.
bool needsShortNames(const Files& files, const PathRules& rules, const std::string& folder) {
    bool needed = false;
    files.listFiles(folder, ShortNames::Omit,
                    [&](const FolderEntry& entry) { needed = needed || !listableName(rules, entry.name); });
    return needed;
}

}  // namespace

void writeFolderListing(const Files& files, const PathRules& rules, const std::string& pattern,
                        ListedNames names, File& listing) {
    const std::string folder = rules.parentFolder(pattern);
    const std::string upperPattern =
        upperCase(rules.toOrganiser(rules.lastComponent(pattern)).value_or(std::string()));
    const bool asShort = names == ListedNames::Short;
    const ShortNames shortNames =
        asShort || needsShortNames(files, rules, folder) ? ShortNames::Include : ShortNames::Omit;
    LineWriter lines(listing);
    files.listFiles(folder, shortNames, [&](const FolderEntry& entry) {
        const std::optional<std::string> name =
            asShort ? shortListing(rules, entry, upperPattern) : longListing(rules, entry, upperPattern);
        if (name && !name->empty()) {
            lines.add(*name);
        }
    });
    lines.flush();
}

}  // namespace velmora
