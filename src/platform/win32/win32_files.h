// The file system of Windows as the services see it.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "base/files.h"
#include "platform/win32/win32_lookup.h"

namespace velmora {

/// Keeps what base/files.h promises by the narrow Win32 functions. Only files on disk, or links to them, are
/// files: devices, pipes and streams inside files are refused and never touched. A file open for writing
/// cannot be opened by others but for reading that allows writers, a file open for reading not for writing,
/// and neither can be deleted or renamed; a file that another program holds so is 70. One that another
/// program has open for writing, and shares, can be read. Paths have less than MAX_PATH
/// (260) bytes when they are made absolute; a longer one is 64.
class Win32Files : public Files {
  public:
    /// Waits for a while.
    using Wait = std::function<void(std::chrono::milliseconds)>;

    /// `temporaryFolder`: where temporary files go that name no folder. `wait`: between attempts at what may
    /// soon be possible; without one the thread sleeps. From here on a drive without a disk
    /// is an error for this process instead of a question of Windows to the user (SetErrorMode).
    explicit Win32Files(std::string temporaryFolder, Wait wait = {});

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
    /// By MoveFileExA. The new file keeps the rights that it was made with, those of its folder. Virus
    /// scanners and indexers hold a file that was just closed for some milliseconds, so a refusal is final
    /// only after half a second.
    void replaceFile(const std::string& from, const std::string& to) override;
    std::string createTemporaryFile(const std::string& folder = {}) override;
    void removeLeftovers(const std::string& folder) override;
    /// Names are in the order of their bytes. A file whose name is not in the ANSI code page is listed by its
    /// short name, or left out where the volume keeps none. Short names are those that the volume keeps;
    /// where it keeps none that the Organiser can write, they are made up among all entries of the folder.
    void listFiles(const std::string& folder, ShortNames shortNames,
                   const std::function<void(const FolderEntry&)>& visit) const override;

  private:
    std::string temporaryFolder_;
    Win32Lookup lookup_;
    Wait wait_;
};

}  // namespace velmora
