// Reading the entries of a folder.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// One entry of a folder.
struct Win32Entry {
    std::string name;       ///< in the ANSI code page
    std::string shortName;  ///< the 8.3 name that the volume keeps, in capitals; empty if it keeps none
    bool isFile;            ///< not a folder; links are followed
};

/// The name by which the narrow functions find an entry: its own, or its short one when a character of its
/// own is not in the ANSI code page, or its own ends in a dot or blank, which would be cut off. Nothing when
/// neither can be told.
std::optional<std::string> narrowName(const WIN32_FIND_DATAW& data);

/// All entries of a folder but "." and "..", in the order of their names' bytes. Those that have no narrow
/// name are left out, since the name that Windows would make up for them may be another file's. `folder` is
/// empty or ends in a separator or the ":" of a drive. Throws RunTimeError when the folder cannot be read.
std::vector<Win32Entry> readWin32Folder(const std::string& folder);

/// The names of entries and the short names that their volume keeps, position by position, as
/// platform/short_names.h takes them.
struct FolderNames {
    std::vector<std::string> names;
    std::vector<std::string> kept;
};
FolderNames folderNames(const std::vector<Win32Entry>& entries);

}  // namespace velmora
