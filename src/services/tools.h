// The names of files: from the Organiser's to paths of this machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/files.h"
#include "base/path_rules.h"
#include "services/file_name_mapper.h"
#include "services/transfer_settings.h"

namespace velmora {

/// Replaces, in place, each byte of `text` that occurs in `find` by the byte of `replace` at the same
/// position; both sets have one length. Returns the changed text.
std::string& translate_Chars(std::string& text, std::string_view find, std::string_view replace);

/// The file that a name as the Organiser sends it, without a folder, stands for in whatever folder it is
/// looked for: its name in the system's encoding. Nothing when such a name is refused or leads to another
/// folder.
std::optional<std::string> fileNamed(const PathRules& rules, std::string_view name);

/// Maps file names. Holds references only; the files, rules and settings must outlive it.
class Tools : public FileNameMapper {
  public:
    Tools(const Files& files, const PathRules& rules, const TransferSettings& settings);

    /// The full path, in the system's encoding, for a name as the Organiser sent it (Windows-1252 bytes):
    /// relative to the download folder unless it is rooted, with "/" for "\\", "_" for "%", "~" for ">", an
    /// all-capitals name re-cased to one leading capital. Empty when the name is refused: a "*" that is not
    /// allowed, a folder that does not exist, a name that the system cannot hold.
    /// `resolveExisting`: an existing file is given with the letters as stored. A short name that was listed
    /// means the file that it was listed for, without either.
    /// With StayInFolder also what leads outside the download folder once links are followed is refused.
    std::string map_FileName(std::string_view name, bool resolveExisting, bool allowWildcards) const override;

    /// The last component of a path as Windows-1252 bytes for a display; "?" for what has no byte.
    std::string displayName(const std::string& path) const override;

  private:
    std::string pathOf(std::string_view name, bool resolveExisting, bool allowWildcards) const;
    bool liesInDownloadFolder(const std::string& path) const;

    const Files& files_;
    const PathRules& rules_;
    const TransferSettings& settings_;
};

}  // namespace velmora
