// Finding what a path names. Windows itself matches letters without regard to case and knows its own short
// names; what is left is to keep off what is no file and to find names that this program made up.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/given_short_names.h"

namespace velmora {

struct Win32Entry;

/// What a path leads to; links are followed.
struct Win32Status {
    bool isFolder = false;
    std::uint64_t size = 0;
};

/// Reads a status by GetFileAttributesExA without opening the file's contents. Returns 0 or the number of
/// GetLastError, among them ERROR_DIRECTORY for a path that takes a file for a folder.
std::uint32_t readWin32Status(const std::string& path, Win32Status& status);

/// Finds files and folders by their names, and makes up the short names that no file system keeps.
class Win32Lookup {
  public:
    /// The path by which Windows finds what a path means: the path itself, or with long names in the place of
    /// short names that no file system keeps. Throws RunTimeError 64 for a path that is empty, has MAX_PATH
    /// bytes or more when it is made absolute, or holds the zero byte, a character of a pattern (which would
    /// find another file) or a ":" behind the drive (which would name a stream inside a file), or bytes that
    /// are no text in the ANSI code page (which would all name one file); 75 for one that leads to a device
    /// or a pipe, which is not touched.
    std::string lookUp(const std::string& path) const;

    /// The path of the file that the last component of a path was given to as a short name, whether or not it
    /// is still there; the path itself when it was given to none. Throws as lookUp.
    std::string pathOfShortName(const std::string& path) const;

    /// The short names of all entries of a folder: those that the volume keeps, else made up.
    std::vector<std::string> shortNames(const std::string& folder,
                                        const std::vector<Win32Entry>& entries) const;

  private:
    std::string longName(const std::string& folder, const std::string& component) const;

    mutable GivenShortNames given_;  ///< by the folders' absolute paths; what was asked once stays answered
};

/// An existing path with the letters of every component as stored on disk and a capital drive letter. A
/// component whose stored name is not in the ANSI code page is given by its short name; one in a folder that
/// may not be read stays as it is.
std::string withStoredLetters(const std::string& path);

}  // namespace velmora
