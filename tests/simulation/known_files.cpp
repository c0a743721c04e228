#include "known_files.h"

#include <algorithm>

#include "base/temporary_name.h"
#include "violation.h"

namespace velmora::simulation {
namespace {

const FileContent* matching(const std::vector<FileContent>& contents, const std::string& bytes) {
    const auto found = std::find_if(contents.begin(), contents.end(),
                                    [&](const FileContent& content) { return content.bytes == bytes; });
    return found == contents.end() ? nullptr : &*found;
}

void append(std::vector<FileContent>& all, const std::vector<FileContent>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

}  // namespace

void KnownFiles::put(const std::string& path, const FileContent& content) {
    world_.disk().put(path, content.bytes);
    files_[path] = {content, true, {}, false};
}

const KnownFile* KnownFiles::find(const std::string& path) const {
    const auto file = files_.find(path);
    return file == files_.end() ? nullptr : &file->second;
}

std::vector<std::string> KnownFiles::ofForm(Form form) const {
    std::vector<std::string> paths;
    for (const auto& [path, file] : files_) {
        if (file.now.form == form) {
            paths.push_back(path);
        }
    }
    return paths;
}

void KnownFiles::settle(const std::optional<Saving>& saving, bool told, const std::string& target) {
    if (saving && told) {
        files_[saving->path] = {saving->whole, true, {}, false};
    } else if (saving) {
        settleUntold(*saving);
    }
    forgetTakenAway(target);
    settleOthers(saving && !told ? saving->path : std::string());
    requireNothingElse();
    requireNoTemporaryFiles(kDownloadFolder);
    requireNoTemporaryFiles("/tmp");
}

bool KnownFiles::takenAway() const {
    return world_.faults().any(FaultKind::FileRemoved) || world_.faults().any(FaultKind::FileRenamed);
}

void KnownFiles::forgetTakenAway(const std::string& target) {
    if (takenAway() && !world_.disk().content(target)) {
        files_.erase(target);
    }
}

void KnownFiles::requireSaved(const Saving& saving) const {
    require(world_.disk().content(saving.path) == saving.whole.bytes,
            "A file that was told to be saved is not as it was sent: " + saving.path + ".");
    require(world_.disk().durableContent(saving.path) == saving.whole.bytes,
            "A file that was told to be saved would not survive a power failure: " + saving.path + ".");
}

void KnownFiles::settleUntold(const Saving& saving) {
    const auto known = files_.find(saving.path);
    const bool existed = known != files_.end();
    const KnownFile old = existed ? known->second : KnownFile{{}, false, {}, true};
    const auto bytes = world_.disk().content(saving.path);
    if (!bytes) {
        require(!existed || takenAway() || (world_.powerFailed() && old.mayVanish),
                "A save that broke off took the file that was there: " + saving.path + ".");
        files_.erase(saving.path);
        return;
    }
    if (existed && *bytes == old.now.bytes) {
        append(known->second.others, saving.partial);
        known->second.others.push_back(saving.whole);
        return;
    }
    std::vector<FileContent> allowed = saving.partial;
    allowed.push_back(saving.whole);
    if (world_.powerFailed()) {
        append(allowed, old.others);
    }
    const FileContent* found = matching(allowed, *bytes);
    require(found != nullptr,
            "A save that broke off left something else than whole records: " + saving.path + ".");
    if (existed && old.told && saving.replaces && !takenAway()) {
        requireEarlierCopy(saving, old);
    }
    KnownFile file{*found, false, old.others, old.mayVanish};
    append(file.others, allowed);
    if (existed) {
        file.others.push_back(old.now);
    }
    files_[saving.path] = std::move(file);
}

/// Only an empty file needs none, and one that could not be copied for another reason than a full disk.
void KnownFiles::requireEarlierCopy(const Saving& saving, const KnownFile& old) const {
    if (old.now.bytes.empty() || world_.faults().any(FaultKind::DiskFailure)) {
        return;
    }
    for (const std::string& path : world_.disk().paths(kCopiesFolder)) {
        if (world_.disk().content(path) == old.now.bytes) {
            return;
        }
    }
    throw Violation("A save that broke off changed a file of which no earlier copy was kept: " + saving.path +
                    ".");
}

void KnownFiles::settleOthers(const std::string& target) {
    for (auto known = files_.begin(); known != files_.end();) {
        if (known->first == target) {
            ++known;  // settled already; it may have been written after the power failure
            continue;
        }
        KnownFile& file = known->second;
        const auto bytes = world_.disk().content(known->first);
        if (world_.powerFailed()) {
            if (!bytes) {
                require(file.mayVanish, "A power failure took a saved file: " + known->first + ".");
                known = files_.erase(known);
                continue;
            }
            const FileContent* found = *bytes == file.now.bytes ? &file.now : matching(file.others, *bytes);
            require(found != nullptr, "A power failure changed a file: " + known->first + ".");
            file.now = FileContent(*found);
            file.others.clear();
            file.mayVanish = false;
        } else {
            require(bytes == file.now.bytes, "A file changed that nobody named: " + known->first + ".");
        }
        ++known;
    }
}

void KnownFiles::requireNothingElse() {
    for (const std::string& path : world_.disk().paths(kDownloadFolder)) {
        if (path.ends_with(".moved")) {
            world_.disk().remove(path);
            continue;
        }
        const std::string name = path.substr(path.rfind('/') + 1);
        require(isTemporaryName(name) || files_.count(path) != 0,
                "A file is there that nobody saved: " + path + ".");
    }
}

void KnownFiles::requireNoTemporaryFiles(const std::string& folder) {
    for (const std::string& path : world_.disk().paths(folder)) {
        if (isTemporaryName(path.substr(path.rfind('/') + 1))) {
            require(world_.serverEnded() || world_.disk().mayStay(path),
                    "A temporary file was left: " + path + ".");
            world_.disk().remove(path);
        }
    }
}

}  // namespace velmora::simulation
