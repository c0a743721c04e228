// Reading the entries of a folder.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace velmora {

/// What a folder says of an entry without another look at the disk.
enum class EntryKind {
    File,     ///< a regular file
    Other,    ///< a folder, a pipe, a device
    Unknown,  ///< a link, or a file system that does not tell
};

/// Calls `visit` for every entry of a folder but "." and "..", in no order, until it returns false. The name
/// is valid during the call only. Throws RunTimeError when the folder cannot be read.
void readFolder(const std::string& folder,
                const std::function<bool(std::string_view name, EntryKind kind)>& visit);

}  // namespace velmora
