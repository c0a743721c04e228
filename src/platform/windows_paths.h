// How Windows writes paths: "\" between components ("/" is understood), drives and network shares, names in
// the ANSI code page, Windows-1252. Compiled on every system, so that the rules are tested on every system.
#pragma once

#include <string_view>

#include "base/path_rules.h"

namespace velmora {

/// What separates the components of a path.
constexpr std::string_view kWindowsSeparators = "\\/";
constexpr bool isWindowsSeparator(char c) {
    return c == '\\' || c == '/';
}

/// Pure text. The root of "C:\PSION" is "C:\", that of "\\server\share\PSION" is "\\server\share\".
class WindowsPaths : public PathRules {
  public:
    /// `currentFolder`: the absolute path that relative paths start at. On another drive than its own they
    /// start at that drive's root.
    explicit WindowsPaths(std::string currentFolder);

    char separator() const override { return '\\'; }
    bool hasDrives() const override { return true; }
    /// Refuses codes below 32, bytes without a character, the characters <, >, | and ", a ":" that does not
    /// end a drive, device names (NUL, COM1, "CON.TXT"), network paths that do not name a server and a share
    /// ("\\.\PIPE" among them), and components of nothing but dots and blanks. "*" and "?" pass: they are
    /// wildcards, and a file of such a name is refused by the system.
    std::optional<std::string> fromOrganiser(std::string_view name) const override;
    /// Nothing when a byte has no character.
    std::optional<std::string> toOrganiser(std::string_view name) const override;
    /// An empty folder gives the name itself.
    std::string join(std::string_view folder, std::string_view name) const override;
    /// "C:" for "C:\PSION" and "C:LIST", "\\server\share" for a network path.
    std::string drive(std::string_view path) const override;
    /// "C:" for "C:LIST": the current folder of that drive.
    std::string parentFolder(std::string_view path) const override;
    std::string lastComponent(std::string_view path) const override;
    std::string absolute(std::string_view path) const override;

  private:
    std::string currentFolder_;
};

}  // namespace velmora
