// Profile files: text files of "[section]" and "key=value" lines, as the Win32 profile functions see them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// Reads and writes profile files by name. The shape is that of GetPrivateProfileString and its relatives
/// (Win32, winbase.h), so that a system which has those functions only forwards to them.
///
/// Texts are Windows-1252 bytes. `file` is a path in the system's narrow encoding. Sections and keys match in
/// any case; of several with one name the first counts. A file that does not exist reads as empty. A file
/// that exists but cannot be read or written is a RunTimeError of the file layer; what was on disk then
/// stands.
class ProfileFiles {
  public:
    virtual ~ProfileFiles() = default;

    /// The value of a key without the blanks around it and without one pair of enclosing quotes (double or
    /// single), cut to `bufferSize` - 1 characters. A present but empty value is empty. `defaultText`, less
    /// its trailing blanks, when the section or key is missing.
    virtual std::string getString(const std::string& section, const std::string& key,
                                  const std::string& defaultText, std::size_t bufferSize,
                                  const std::string& file) = 0;

    /// The whole number at the start of a value ("-5", "+7", "0x10"), 0 when there is none, `defaultValue`
    /// when the key is missing or its value empty. What does not fit is given as the nearest number.
    virtual std::int32_t getInt(const std::string& section, const std::string& key, std::int32_t defaultValue,
                                const std::string& file) = 0;

    /// The lines of a section as "key=value", blanks around both parts removed, quotes kept; also lines
    /// without "=". Comments and empty lines are left out.
    virtual std::vector<std::string> getSection(const std::string& section, const std::string& file) = 0;

    /// Sets a key: its first line is replaced, or added behind the section's last entry; a missing section is
    /// added at the end of the file. Without a value the key's line is deleted, without a key the whole
    /// section. All else in the file stays as it is. RunTimeError 5 for names and values that would not
    /// be found again in one line.
    virtual void writeString(const std::string& section, const std::optional<std::string>& key,
                             const std::optional<std::string>& value, const std::string& file) = 0;

    /// As getString without a limit, for a value that is a path: in the system's narrow encoding, with every
    /// character of the name.
    virtual std::string getPath(const std::string& section, const std::string& key,
                                const std::string& defaultPath, const std::string& file) = 0;

    /// As writeString, for a value that is a path in the system's narrow encoding. RunTimeError 64 for a path
    /// that this encoding does not allow.
    virtual void writePath(const std::string& section, const std::string& key, const std::string& path,
                           const std::string& file) = 0;

    /// The whole file as text, with its line ends and comments; empty when there is no file.
    virtual std::string text(const std::string& file) = 0;

    /// Forgets what is remembered of a file and completes pending writes.
    virtual void flush(const std::string& file) = 0;
};

}  // namespace velmora
