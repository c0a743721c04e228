#include "services/folder_listing.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "base/byte_text.h"
#include "base/like_pattern.h"
#include "services/tools.h"

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

/// One file of the folder as the Organiser knows it.
class Listed {
  public:
    Listed(const Files& files, const PathRules& rules, const std::string& folder, const FolderEntry& entry)
        : files_(files),
          rules_(rules),
          folder_(folder),
          entry_(entry),
          name_(rules.toOrganiser(entry.name)) {}

    /// Whether its long name can stand on a line, is no pattern, and leads back to this very file.
    bool goesByItsName() const {
        if (!name_ || name_->find_first_of("\r\n*?") != std::string::npos) {
            return false;
        }
        const std::optional<std::string> named = fileNamed(rules_, *name_);
        return named && (*named == entry_.name || (!entry_.hasTwin && hasTheLettersOf(*named))) &&
               !isShortNameOfAnother(*named);
    }
    /// What a short listing calls it if it matches; nothing if it is not listed.
    std::optional<std::string> shortLine(const std::string& pattern) const {
        if (!matches(entry_.shortName, pattern) && goesByItsName()) {
            return longLine(pattern);
        }
        return lineByShortName(pattern);
    }
    /// What a long listing calls it if it matches; nothing if it is not listed.
    std::optional<std::string> longLine(const std::string& pattern) const {
        if (!goesByItsName()) {
            return lineByShortName(pattern);
        }
        return matches(*name_, pattern) ? name_ : std::nullopt;
    }

  private:
    bool hasTheLettersOf(const std::string& other) const {
        return upperCase(rules_.toOrganiser(other).value_or(std::string())) == upperCase(*name_);
    }
    bool isShortNameOfAnother(const std::string& name) const {
        const std::string path = rules_.join(folder_, name);
        const std::string meant = files_.pathOfShortName(path);
        return meant != path && rules_.lastComponent(meant) != entry_.name;
    }
    /// A file that is not listed by its long name is still looked for by it.
    std::optional<std::string> lineByShortName(const std::string& pattern) const {
        if (!matches(entry_.shortName, pattern) && !(name_ && matches(*name_, pattern))) {
            return std::nullopt;
        }
        std::string line = entry_.shortName;
        std::replace(line.begin(), line.end(), '~', '>');
        return fileNamed(rules_, line) ? std::optional(line) : std::nullopt;
    }

    const Files& files_;
    const PathRules& rules_;
    const std::string& folder_;
    const FolderEntry& entry_;
    std::optional<std::string> name_;  ///< in Windows-1252
};

/// Whether a long listing of the folder needs short names, which are dear to compute.
bool needsShortNames(const Files& files, const PathRules& rules, const std::string& folder) {
    bool needed = false;
    files.listFiles(folder, ShortNames::Omit, [&](const FolderEntry& entry) {
        needed = needed || !Listed(files, rules, folder, entry).goesByItsName();
    });
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
        const Listed file(files, rules, folder, entry);
        if (const auto line = asShort ? file.shortLine(upperPattern) : file.longLine(upperPattern)) {
            lines.add(*line);
        }
    });
    lines.flush();
}

}  // namespace velmora
