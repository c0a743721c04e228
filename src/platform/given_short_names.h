// The short names that were told to somebody, who may come back with them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velmora {

/// Makes up short names as of shortNames and remembers those with a "~", whoever made them: such a name means
/// the same file for as long as this object lives, whatever comes into the folder, and no other file once its
/// own is gone. Folders are told apart by any text that is the same for one folder always.
class GivenShortNames {
  public:
    /// The short name of each name of a folder, at the same position; arguments as of shortNames. A name
    /// keeps the one that it was given before, and none gets one that was given to another, not even one that
    /// the file system keeps for it or that is its own.
    std::vector<std::string> give(const std::string& folder, const std::vector<std::string>& sortedNames,
                                  const std::vector<std::string>& kept = {});

    /// The name that was given this short name in the folder, whatever the case of its letters and whether or
    /// not it is still there; nothing when none was.
    std::optional<std::string> nameOf(const std::string& folder, std::string_view shortName) const;

  private:
    struct Given {
        std::unordered_map<std::string, std::string> shortNames;  ///< by name
        std::unordered_map<std::string, std::string> names;       ///< by short name
    };
    std::unordered_map<std::string, Given> folders_;
};

}  // namespace velmora
