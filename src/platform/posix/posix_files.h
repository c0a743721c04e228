// The file system of POSIX systems as the services see it.
#pragma once

#include <string>

#include "base/files.h"
#include "platform/posix/path_lookup.h"

namespace velmora {

/// Keeps what base/files.h promises on file systems that tell capital from small letters and know no short
/// names. Only regular files, or links to them, are files: pipes and devices are refused with 75 and never
/// touched. A file open for writing is locked against other programs that lock (flock), a file open for
/// reading against such writers; a lock that another program holds is 70.
class PosixFiles : public Files {
  public:
    /// `temporaryFolder`: where temporary files go that name no folder.
    explicit PosixFiles(std::string temporaryFolder);

    bool fileExists(const std::string& path) const override;
    bool folderExists(const std::string& path) const override;
    std::uint64_t fileSize(const std::string& path) const override;
    std::string storedPath(const std::string& path) const override;
    std::string pathOfShortName(const std::string& path) const override;
    std::optional<std::string> resolvedPath(const std::string& path) const override;
    std::unique_ptr<File> open(const std::string& path, OpenMode mode) override;
    void deleteFile(const std::string& path) override;
    void createFolder(const std::string& path, FolderRights rights = FolderRights::Usual) override;
    std::string followLinks(const std::string& path) const override;
    /// Only the administrator may give a file away; its owner may give it to the groups that he is in.
    void replaceFile(const std::string& from, const std::string& to) override;
    std::string createTemporaryFile(const std::string& folder = {}) override;
    void removeLeftovers(const std::string& folder) override;
    /// Names are in the order of their bytes. Short names are those among all entries of the folder.
    void listFiles(const std::string& folder, ShortNames shortNames,
                   const std::function<void(const FolderEntry&)>& visit) const override;

  private:
    std::string temporaryFolder_;
    PathLookup lookup_;
};

}  // namespace velmora
