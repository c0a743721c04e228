// The user's folders on Windows.
#pragma once

#include "platform/known_folders.h"

namespace velmora {

/// Folders as the shell knows them. One that the shell does not tell is the root of the current drive. A
/// folder whose path is not in the ANSI code page is given by its short names, or where the volume keeps none
/// with "?" in it, which the file layer refuses (64); never by a similar path, which may be another user's.
class ShellFolders : public KnownFolders {
  public:
    /// CSIDL_APPDATA (26) of SHGetSpecialFolderLocation.
    std::string applicationData() const override;
    /// "Velmora" in CSIDL_LOCAL_APPDATA (28), which no other machine of the user shares.
    std::string programData() const override;
    /// CSIDL_PERSONAL (5) of SHGetSpecialFolderLocation.
    std::string documents() const override;
    /// GetTempPathW.
    std::string temporary() const override;
};

}  // namespace velmora
