// What the Organiser may rely on: what each file of the server's folder must hold.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "file_contents.h"
#include "world.h"

namespace velmora::simulation {

/// One file, as far as the Organiser knows.
struct KnownFile {
    FileContent now;
    bool told = true;                 ///< the Organiser was told that it is saved
    std::vector<FileContent> others;  ///< what a power failure may leave instead
    bool mayVanish = false;           ///< a power failure may leave nothing
};

/// What a step wanted to do to a file.
struct Saving {
    std::string path;
    bool replaces = false;             ///< what is there before is to be kept as an earlier copy
    FileContent whole;                 ///< what is there once it is told to be saved
    std::vector<FileContent> partial;  ///< what may be there otherwise, besides what was there before
};

/// Holds what must be there against what is there. Every check throws Violation.
class KnownFiles {
  public:
    explicit KnownFiles(World& world) : world_(world) {}

    /// Another program puts a file there.
    void put(const std::string& path, const FileContent& content);
    /// The Organiser was told this very moment that it is saved.
    void requireSaved(const Saving& saving) const;
    /// The step with this saving is over, `told` whether the Organiser was told that it is saved. `target`:
    /// the file on which other programs acted.
    void settle(const std::optional<Saving>& saving, bool told, const std::string& target);

    const KnownFile* find(const std::string& path) const;
    /// The paths of all known files of a form.
    std::vector<std::string> ofForm(Form form) const;
    const std::map<std::string, KnownFile>& all() const { return files_; }

  private:
    /// Forgets the file that another program took away in this step.
    void forgetTakenAway(const std::string& target);
    bool takenAway() const;
    void settleUntold(const Saving& saving);
    void requireEarlierCopy(const Saving& saving, const KnownFile& old) const;
    void settleOthers(const std::string& target);
    void requireNothingElse();
    void requireNoTemporaryFiles(const std::string& folder);

    World& world_;
    std::map<std::string, KnownFile> files_;
};

}  // namespace velmora::simulation
