// Profile files read and written by the Win32 profile functions.
#pragma once

#include <string>

#include "base/files.h"
#include "base/path_rules.h"
#include "platform/profile/profile_files.h"
#include "platform/profile/text_profile_files.h"

namespace velmora {

/// Forwards to GetPrivateProfileStringA and its relatives (Win32, winbase.h). For "win.ini" in the Windows
/// folder it takes the functions of the system profile (GetProfileStringA and so on), which know where the
/// system keeps each section. Texts are in the ANSI code page.
///
/// Those functions know no UTF-8: they take its bytes for ANSI texts, and a UTF-8 mark in front of the first
/// section hides that section from them. A file that begins with the mark or is valid UTF-8 is therefore read
/// and edited by TextProfileFiles; paths in it are converted to and from the ANSI code page as ansiPath does.
///
/// What those functions leave untold is made clear before and after: a file that cannot be read is an error
/// and not a set of defaults, and a path that they would look for in the Windows folder is refused. A write
/// works on a copy that then takes the file's place, so that a full disk leaves the old file whole.
///
/// Holds references only: files and rules must outlive it. RunTimeError 64 for a path that is longer than
/// the functions take (259 characters), 7 for a file above 64 MB.
class Win32ProfileFiles : public ProfileFiles {
  public:
    Win32ProfileFiles(Files& files, const PathRules& rules);

    std::string getString(const std::string& section, const std::string& key, const std::string& defaultText,
                          std::size_t bufferSize, const std::string& file) override;
    std::int32_t getInt(const std::string& section, const std::string& key, std::int32_t defaultValue,
                        const std::string& file) override;
    std::vector<std::string> getSection(const std::string& section, const std::string& file) override;
    void writeString(const std::string& section, const std::optional<std::string>& key,
                     const std::optional<std::string>& value, const std::string& file) override;
    std::string getPath(const std::string& section, const std::string& key, const std::string& defaultPath,
                        const std::string& file) override;
    void writePath(const std::string& section, const std::string& key, const std::string& path,
                   const std::string& file) override;
    std::string text(const std::string& file) override;
    void flush(const std::string& file) override;

  private:
    std::string pathFor(const std::string& file) const;
    std::string readablePath(const std::string& file) const;
    bool isSystemProfile(const std::string& path) const;
    bool isUtf8Profile(const std::string& path) const;
    bool becomesUtf8Profile(const std::string& path, const std::string& bytes) const;
    std::string wholeValue(const std::string& section, const std::string& key, const std::string& otherwise,
                           const std::string& path) const;
    std::string contents(const std::string& path) const;
    void editCopy(const std::string& section, const char* key, const char* value, const std::string& path);

    Files& files_;
    const PathRules& rules_;
    std::string systemProfile_;  // the path of "win.ini"
    TextProfileFiles utf8_;      // for files in UTF-8
};

}  // namespace velmora
