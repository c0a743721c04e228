// The folders that a system has a place for.
#pragma once

#include <string>

namespace velmora {

/// Absolute paths in the system's narrow encoding without a final separator, unless they are a root; whether
/// the folders exist is not checked.
class KnownFolders {
  public:
    virtual ~KnownFolders() = default;

    /// Where configuration files of the user go.
    virtual std::string applicationData() const = 0;
    /// What this program keeps for itself and the user need not see, a folder of its own.
    virtual std::string programData() const = 0;
    /// The user's documents.
    virtual std::string documents() const = 0;
    /// Where files go that nobody keeps.
    virtual std::string temporary() const = 0;
};

/// The folder that relative paths of this process start at; a root when the system does not tell.
std::string currentFolder();

/// The folder of the system itself, which holds the system profile "win.ini" (GetWindowsDirectoryA); empty on
/// systems that have no such profile.
std::string windowsFolder();

}  // namespace velmora
