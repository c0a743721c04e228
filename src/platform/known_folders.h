// The folders that a system has a place for.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace velmora {

/// The value of an environment variable; nothing when it is not set.
using EnvironmentLookup = std::function<std::optional<std::string>(const std::string& name)>;

/// The environment of this process. On POSIX systems a missing HOME comes from the user data base.
EnvironmentLookup processEnvironment();

/// The folder that relative paths of this process start at; the root when the system does not tell.
std::string currentFolder();

/// Absolute paths in the system's encoding without a final separator; whether the folders exist is not
/// checked.
///
/// On POSIX systems they follow the XDG base directory rules (version 0.8) and the xdg-user-dirs format.
class KnownFolders {
  public:
    explicit KnownFolders(EnvironmentLookup environment);

    /// Where configuration files of the user go: $XDG_CONFIG_HOME if it is an absolute path, else ~/.config.
    std::string applicationData() const;
    /// The user's documents: XDG_DOCUMENTS_DIR of user-dirs.dirs, else ~/Documents.
    std::string documents() const;
    /// $TMPDIR if it is an absolute path, else /tmp.
    std::string temporary() const;

  private:
    std::string home() const;

    EnvironmentLookup environment_;
};

}  // namespace velmora
