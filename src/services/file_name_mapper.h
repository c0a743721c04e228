// The names of files as the services see their mapping.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Maps names between the Organiser and this machine. The programs use Tools, tests a small fake.
class FileNameMapper {
  public:
    virtual ~FileNameMapper() = default;

    /// The full path, in the system's encoding, for a name as the Organiser sent it (Windows-1252 bytes);
    /// empty when the name is refused. `resolveExisting`: an existing file is given with the letters as
    /// stored. `allowWildcards`: whether the name may hold "*".
    virtual std::string map_FileName(std::string_view name, bool resolveExisting,
                                     bool allowWildcards) const = 0;
    /// The last component of a path as Windows-1252 bytes for a display; "?" for what has no byte.
    virtual std::string displayName(const std::string& path) const = 0;
};

}  // namespace velmora
