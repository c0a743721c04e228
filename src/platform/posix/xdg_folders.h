// The user's folders on POSIX systems.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/known_folders.h"

namespace velmora {

/// The value of an environment variable; nothing when it is not set.
using EnvironmentLookup = std::function<std::optional<std::string>(const std::string& name)>;

/// The environment of this process. A missing HOME comes from the user data base.
EnvironmentLookup processEnvironment();

/// Folders by the XDG base directory rules (version 0.8) and the xdg-user-dirs format.
class XdgFolders : public KnownFolders {
  public:
    explicit XdgFolders(EnvironmentLookup environment = processEnvironment());

    /// $XDG_CONFIG_HOME if it is an absolute path, else ~/.config.
    std::string applicationData() const override;
    /// The first folder of $STATE_DIRECTORY, which a service manager sets, if it is an absolute path; else
    /// "Velmora" in $XDG_DATA_HOME if that is one, else in ~/.local/share.
    std::string programData() const override;
    /// XDG_DOCUMENTS_DIR of user-dirs.dirs, else ~/Documents.
    std::string documents() const override;
    /// $TMPDIR if it is an absolute path, else /tmp.
    std::string temporary() const override;

  private:
    std::string home() const;

    EnvironmentLookup environment_;
};

}  // namespace velmora
