// How a system writes paths. Pure text: nothing here looks at the disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The path rules of one system. Paths are in that system's narrow encoding.
class PathRules {
  public:
    virtual ~PathRules() = default;

    /// '\\' on Windows, '/' elsewhere.
    virtual char separator() const = 0;
    /// Whether paths may begin with a drive letter and a colon.
    virtual bool hasDrives() const = 0;

    /// A name as the Organiser sent it (Windows-1252 bytes, '\\' between components) in the system's encoding
    /// with its separator; nothing when the system cannot hold such a name (a zero byte, a byte without a
    /// character, a character that is not allowed in names).
    virtual std::optional<std::string> fromOrganiser(std::string_view name) const = 0;
    /// A name of the system as Windows-1252 bytes; nothing when a character has none.
    virtual std::optional<std::string> toOrganiser(std::string_view name) const = 0;

    /// Folder and name with exactly one separator between them.
    virtual std::string join(std::string_view folder, std::string_view name) const = 0;
    /// The drive ("C:") or network share of a path; empty when it has none.
    virtual std::string drive(std::string_view path) const = 0;
    /// Everything before the last component, without a trailing separator unless it is a root.
    virtual std::string parentFolder(std::string_view path) const = 0;
    /// The last component; empty when the path ends in a separator.
    virtual std::string lastComponent(std::string_view path) const = 0;
    /// The path from its root with "." and ".." resolved; relative paths start at the current folder.
    virtual std::string absolute(std::string_view path) const = 0;

    /// The last component without its extension: up to its last ".", whole when it has none.
    std::string baseName(std::string_view path) const;
    /// The extension of the last component without its ".", empty when it has none.
    std::string extension(std::string_view path) const;
};

}  // namespace velmora
