// One INI file with a current section: typed values read and written through the profile functions.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/message_box.h"
#include "base/path_rules.h"
#include "platform/profile/profile_files.h"

namespace velmora {

/// Orders keys without regard to case.
struct KeyOrder {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

/// Key and value of entries. Of several with one key the first is kept.
using SectionDictionary = std::map<std::string, std::string, KeyOrder>;

/// Remembers one file and one section. Until both have been given, and while there is no file, every reading
/// or writing member shows the box "IniFile Logic Error" and returns 0, false or an empty text. Texts are
/// Windows-1252 bytes, paths in the system's narrow encoding. Failures of the file layer come through as
/// RunTimeError.
///
/// Holds references only: profiles, rules and box must outlive it.
class clsIniFile {
  public:
    /// `windowsFolder` holds the system profile "win.ini"; on systems without one it is empty and UseWinINI
    /// is not used.
    clsIniFile(ProfileFiles& profiles, const PathRules& rules, MessageBox& box,
               std::string windowsFolder = {});

    /// The file's absolute path; setting it also fixes PrivPath, BaseName and FileExt.
    void setIniFile(const std::string& path);
    const std::string& IniFile() const { return path_; }
    const std::string& fileName() const { return path_; }
    const std::string& FilePath() const { return path_; }
    /// Folder, name without extension, and extension of the file.
    const std::string& PrivPath() const { return folder_; }
    const std::string& BaseName() const { return baseName_; }
    const std::string& FileExt() const { return extension_; }

    void setSectionName(const std::string& section);
    const std::string& SectionName() const { return section_; }

    /// Whether "win.ini" in the Windows folder is used instead of the file; the file is kept and comes back.
    void setUseWinINI(bool use);
    bool UseWinINI() const { return useWinIni_; }

    /// RunTimeError 6 for a number that does not fit.
    std::int16_t GetInt(const std::string& key, std::int16_t defaultValue);
    /// The same for numbers of 32 bits; one beyond them is given as the nearest.
    std::int32_t GetLong(const std::string& key, std::int32_t defaultValue);
    /// At most 254 characters; a present but empty value is empty.
    std::string GetString(const std::string& key, const std::string& defaultText);
    /// "Yes", "Y", "True", "T", "On" and "No", "N", "False", "F", "Off" in any case, or a number (not 0 is
    /// true). RunTimeError 13 for any other text, an empty one too.
    bool GetBool(const std::string& key, bool defaultValue);
    /// A value that is a path, of any length, with every character of its name.
    std::string GetPath(const std::string& key, const std::string& defaultPath);

    void PutInt(const std::string& key, std::int16_t value);
    void PutString(const std::string& key, const std::string& value);
    void PutBool(const std::string& key, bool value);
    void PutPath(const std::string& key, const std::string& path);

    void DeleteStrEntry(const std::string& key);
    void DeleteNumEntry(const std::string& key);
    void DeleteSection();
    void FlushCache();

    /// The section's lines, each followed by a zero byte.
    std::string GetSectEntries();
    /// The section's lines of the form "key=value", split at the first "=", in their order.
    std::vector<std::pair<std::string, std::string>> GetSectEntriesEx();
    /// Adds those entries to a dictionary.
    void GetSectEntriesDict(SectionDictionary& dictionary);
    /// The names of the file's sections, each followed by a zero byte, and a further zero byte at the end. A
    /// comment from ";" on does not count; only lines that are nothing but "[name]" name a section.
    std::string GetSections();
    /// Whether the file has a section of this name, in any case.
    bool SectExist(const std::string& section);

  private:
    bool registered();
    void setFile(const std::string& path);
    std::vector<std::string> sectionNames();

    ProfileFiles& profiles_;
    const PathRules& rules_;
    MessageBox& box_;
    std::string windowsFolder_;

    std::string section_;
    std::string path_;
    std::string folder_;
    std::string baseName_;
    std::string extension_;
    std::string privatePath_;
    bool useWinIni_ = false;
    bool registered_ = false;
};

}  // namespace velmora
