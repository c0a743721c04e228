// Finding what a path names without regard to case, as users of the Organiser expect it of a PC.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/given_short_names.h"

namespace velmora {

/// A text that all names which differ only by the case of their letters share, and no others: the letters of
/// Windows-1252 where a name consists of its characters, otherwise those of ASCII.
std::string withoutCase(std::string_view name);

/// Whether two names are equal without regard to case, as of withoutCase but quicker.
bool sameLetters(std::string_view a, std::string_view b);

/// What a path stands for on disk.
struct FoundPath {
    std::string path;  ///< with the letters as stored, as far as the path exists
    bool exists;       ///< whether all of it does; a link counts as existing wherever it leads
};

/// Finds files and folders by their names, and makes up the short names that it then finds them by.
class PathLookup {
  public:
    /// The entry of a folder that a name stands for, as stored: the exact name, else the one that was given
    /// this short name before (it may be gone), else the first in byte order that differs only by case, else
    /// the one with this short name. Nothing when there is none or the folder cannot be read for lack of
    /// access; any other failure to read it is thrown.
    std::optional<std::string> findEntry(const std::string& folder, std::string_view name) const;

    /// Finds every component of a path as findEntry does. What does not exist stays as it was written, so a
    /// new file made under the found path never differs from an existing one only by case. Throws
    /// RunTimeError for an empty path and one with a zero byte (64), and when a folder cannot be read.
    FoundPath lookUp(const std::string& path) const;

    /// The path of the file that the last component of a path was given to as a short name, whether or not it
    /// is still there; the path itself when it was given to none.
    std::string pathOfShortName(const std::string& path) const;

    /// The short names of all names of a folder, which are sorted by their bytes.
    std::vector<std::string> shortNames(const std::string& folder,
                                        const std::vector<std::string>& sortedNames) const;

  private:
    std::optional<std::string> findByShortName(const std::string& folder, std::string_view name) const;

    mutable GivenShortNames given_;  ///< by the folders' canonical paths; what was asked once stays answered
};

}  // namespace velmora
