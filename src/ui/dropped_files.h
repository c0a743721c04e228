// Files of this computer that are copied into the download folder.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/files.h"
#include "base/path_rules.h"
#include "services/file_name_mapper.h"

namespace velmora {

/// The name, nearest to this one, that an Organiser can type: up to eight letters and digits, a letter first,
/// and an extension of up to four, which tells the kinds of files. Accents are dropped; the case of letters
/// stays. Both are Windows-1252 bytes.
std::string typableName(std::string_view name);

/// What is done with a file whose name another one has.
enum class NameTaken {
    Replace,
    OtherName,  ///< copy it under the name that is offered
    Skip,
    SkipAll,  ///< this one and all that are still to come
};

/// What came of one file.
struct DroppedFile {
    enum class Fate {
        Copied,
        AlreadyThere,  ///< it is the very file of that name in the download folder
        Skipped,
        Folder,    ///< folders are not copied
        TooLarge,  ///< more than DroppedFiles::kLargestFile bytes
        NoPlace,   ///< the download folder is not there, or takes no such name
        Failed,
    };

    std::string source;     ///< in the system's encoding, as the next two
    std::string path = {};  ///< where it went, or was to go
    std::string why = {};   ///< of a failure
    Fate fate = Fate::Copied;
    bool renamed = false;  ///< its name differs by more than the case of letters
};

/// Copies files into the folder of the server. Each is there whole or not at all. Holds references only; all
/// of them must outlive it.
class DroppedFiles {
  public:
    struct Question {
        std::string taken;  ///< the path that is taken
        std::string other;  ///< a name that is free
        bool more = false;  ///< other files are still to come
    };
    using Ask = std::function<NameTaken(const Question& question)>;
    /// Keeps a copy of a file that is about to be replaced; what it throws leaves the file as it is.
    using KeepEarlier = std::function<void(const std::string& path)>;

    /// What is copied in one go must not keep a window waiting; an Organiser holds a fraction of it.
    static constexpr std::uint64_t kLargestFile = 16 * 1024 * 1024;

    DroppedFiles(Files& files, const PathRules& rules, const FileNameMapper& names, KeepEarlier keepEarlier)
        : files_(files), rules_(rules), names_(names), keepEarlier_(std::move(keepEarlier)) {}

    /// Copies the files at these paths, asking about each name that is taken; never fails.
    std::vector<DroppedFile> copy(const std::vector<std::string>& paths, const Ask& ask);

  private:
    std::string placeOf(const std::string& name) const;
    std::string freeName(const std::string& name) const;
    bool isTaken(const std::string& path) const;
    DroppedFile copyOne(const std::string& source, bool more, const Ask& ask);
    DroppedFile::Fate put(const std::string& source, const std::string& path);

    Files& files_;
    const PathRules& rules_;
    const FileNameMapper& names_;
    KeepEarlier keepEarlier_;
};

}  // namespace velmora
