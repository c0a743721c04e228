// The file system as the services see it. The programs use the platform's, tests a failing wrapper.
//
// Paths are in the system's own narrow encoding (UTF-8 on Linux, the ANSI code page on Windows) with the
// system's separator. Wherever a path names something that exists, letters match without regard to case,
// an exact match first, and a short 8.3 name finds its file, in every component of the path.
// Every failure is thrown as a RunTimeError: no such file 53, a folder on the way missing 76, no access,
// read-only or a folder in the file's place 75, held by another program 70, no space or quota 61,
// exists 58, too many open 67, a name that cannot be 64, anything else 57.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// One open file of bytes with a current position. Destroying it closes it and swallows errors.
class File {
  public:
    virtual ~File() = default;

    /// Reads up to `count` bytes at the position and moves on; fewer only at the end of the file.
    virtual std::size_t read(char* buffer, std::size_t count) = 0;
    /// Writes all bytes at the position and moves on. On failure the file has the length that it had
    /// before the call (as far as the system allows) and the position is unchanged.
    virtual void write(std::string_view bytes) = 0;
    /// Position in bytes from the start of the file; it may lie beyond the end.
    virtual std::uint64_t position() const = 0;
    virtual void seek(std::uint64_t position) = 0;
    virtual std::uint64_t size() const = 0;
    /// Hands what was written to the disk, with the name of a new file: after it a power failure takes
    /// nothing.
    virtual void flush() = 0;
    /// Whether the path by which it was opened still leads to this very file: it was not deleted, moved or
    /// replaced meanwhile, nor was a folder on the way.
    virtual bool isInPlace() const = 0;
    /// Closes the file; a write that the system reports as failed only now is thrown. Closing twice is fine.
    virtual void close() = 0;
};

/// How a file is opened.
enum class OpenMode {
    Read,       ///< an existing file, for reading
    ReadWrite,  ///< an existing file, kept as it is, position at the first byte
    Create,     ///< made, or emptied if it exists; for writing and reading
    CreateNew,  ///< made; 58 if it exists; for writing and reading
};

/// One file of a folder.
struct FolderEntry {
    std::string name;       ///< as stored, in the system's encoding
    std::string shortName;  ///< 8.3 form in ASCII capitals; empty unless it was asked for
    bool hasTwin = false;   ///< another file or folder beside it differs only by the case of its letters
};

/// Whether a listing computes short names, which needs all names of the folder at once.
enum class ShortNames { Omit, Include };

/// Who may look into a new folder: whoever the system lets look by default, or its owner alone.
enum class FolderRights { Usual, OwnerOnly };

class Files {
  public:
    virtual ~Files() = default;

    virtual bool fileExists(const std::string& path) const = 0;
    virtual bool folderExists(const std::string& path) const = 0;
    virtual std::uint64_t fileSize(const std::string& path) const = 0;
    /// The path of an existing file with the letters as stored on disk; the path itself if there is none.
    virtual std::string storedPath(const std::string& path) const = 0;
    /// The path of the file that the last component of a path is the short name of: a short name with a "~"
    /// that was ever told or found means that file and no other for as long as this object lives, even if the
    /// file is gone or another one came that is called so. The path itself when it is no such name.
    virtual std::string pathOfShortName(const std::string& path) const = 0;
    /// The path, free of links and dots and with the letters as stored, of what a path names, or of what
    /// would be made under it; a link that leads to nothing is followed too. Nothing when it cannot be told.
    virtual std::optional<std::string> resolvedPath(const std::string& path) const = 0;

    virtual std::unique_ptr<File> open(const std::string& path, OpenMode mode) = 0;
    virtual void deleteFile(const std::string& path) = 0;
    /// Makes a folder and the missing folders on the way to it, all with these rights; an existing one is
    /// fine and keeps its own. On Windows new folders have the rights of their parent in any case.
    virtual void createFolder(const std::string& path, FolderRights rights = FolderRights::Usual) = 0;
    /// The path of the file itself where the last component of a path is a link, of any number in a row; any
    /// other path as it was found. It need not exist. A loop of links is 64.
    virtual std::string followLinks(const std::string& path) const = 0;
    /// Renames `from` over `to` in one step, so that `to` is always either the old or the new file, and hands
    /// both to the disk. Where `to` is a link the file behind it is replaced. The new file gets the rights of
    /// the old one and, as far as the system lets it, its owner. Both must lie on one volume.
    virtual void replaceFile(const std::string& from, const std::string& to) = 0;
    /// Makes a new empty file with a generated name (base/temporary_name.h) in the folder, with the rights of
    /// any new file there, and returns its path. Without a folder it is made in the system's temporary
    /// folder, for this user alone. The caller deletes it.
    virtual std::string createTemporaryFile(const std::string& folder = {}) = 0;
    /// Deletes the temporary files in a folder that a program did not live to delete. Those that a program
    /// has open or is replacing a file with stay, and so does what cannot be deleted. Never fails.
    virtual void removeLeftovers(const std::string& folder) = 0;
    /// Calls `visit` for every file of the folder, not for folders and temporary files, in the order of their
    /// names.
    /// A file that vanishes meanwhile is left out; an exception of `visit` ends the listing.
    virtual void listFiles(const std::string& folder, ShortNames shortNames,
                           const std::function<void(const FolderEntry&)>& visit) const = 0;
};

}  // namespace velmora
