// How POSIX systems write paths: "/" between components, one root, names in UTF-8.
#pragma once

#include "base/path_rules.h"

namespace velmora {

/// Pure text; links are not followed, so ".." takes back the component before it as written.
class PosixPaths : public PathRules {
  public:
    /// `currentFolder`: the absolute path that relative paths start at.
    explicit PosixPaths(std::string currentFolder);

    char separator() const override { return '/'; }
    bool hasDrives() const override { return false; }
    /// Refuses the zero byte, the other codes below 32 (a name with a line end would break every listing) and
    /// the five bytes that Windows-1252 leaves without a character.
    std::optional<std::string> fromOrganiser(std::string_view name) const override;
    /// Nothing also for a name that could not come back: one with a backslash or a code below 32.
    std::optional<std::string> toOrganiser(std::string_view name) const override;
    /// An empty folder gives the name itself.
    std::string join(std::string_view folder, std::string_view name) const override;
    /// Always empty.
    std::string drive(std::string_view path) const override;
    std::string parentFolder(std::string_view path) const override;
    std::string lastComponent(std::string_view path) const override;
    std::string absolute(std::string_view path) const override;

  private:
    std::string currentFolder_;
};

}  // namespace velmora
