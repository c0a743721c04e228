// Profile files read and written by our own hands, for systems without the Win32 profile functions.
#pragma once

#include <memory>
#include <string>

#include "base/files.h"
#include "base/path_rules.h"
#include "platform/profile/profile_files.h"
#include "platform/profile/profile_text.h"

namespace velmora {

/// The narrow encoding in which a system writes paths.
enum class PathEncoding { Utf8, Windows1252 };

/// Profile files as texts on disk. A file is Windows-1252 unless it begins with the UTF-8 mark or is valid
/// UTF-8; an edit keeps the encoding, the line ends and every other line. Every call reads the file anew, so
/// that an edit by another program is seen at once; lines are looked for again only when it has changed.
///
/// Holds references only: files and rules must outlive it. RunTimeError 7 for a file above 64 MB.
class TextProfileFiles : public ProfileFiles {
  public:
    TextProfileFiles(Files& files, const PathRules& rules, PathEncoding paths = PathEncoding::Utf8);

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
    const ProfileText& load(const std::string& file);
    void save(const std::string& file, const std::string& contents);

    Files& files_;
    const PathRules& rules_;
    PathEncoding paths_;
    std::unique_ptr<ProfileText> last_;  // of the file read last, whichever it was
};

}  // namespace velmora
