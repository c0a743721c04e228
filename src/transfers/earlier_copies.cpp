#include "transfers/earlier_copies.h"

#include <optional>
#include <vector>

#include "base/run_time_error.h"
#include "base/system_text.h"
#include "transfers/earlier_copy_name.h"

namespace velmora {
namespace {

void copyBytes(File& from, File& to) {
    constexpr std::size_t kBlock = 64 * 1024;
    std::string block(kBlock, '\0');
    while (const std::size_t count = from.read(block.data(), block.size())) {
        to.write(std::string_view(block).substr(0, count));
    }
}

/// Deletes a file, if that can be done.
void tryToDelete(Files& files, const std::string& path) {
    try {
        files.deleteFile(path);
    } catch (const RunTimeError&) {
        // The next removal of what has expired finds it.
    }
}

}  // namespace

std::string EarlierCopies::keep(const std::string& path) {
    if (settings_.days <= 0 || !files_.fileExists(path)) {
        return {};
    }
    removeExpired();
    // Opened as the save is going to open it: a file that cannot be written needs no copy.
    const std::unique_ptr<File> source = files_.open(path, OpenMode::ReadWrite);
    const std::string stored = files_.storedPath(path);
    const std::string name = shownText(rules_.lastComponent(stored));
    try {
        const std::uint64_t size = source->size();
        if (size > kLargestFile) {
            log_.note(name + " is replaced without an earlier copy: it has more than 64 MB.");
        }
        return size == 0 || size > kLargestFile ? std::string() : copyOf(*source, stored);
    } catch (const RunTimeError& error) {
        if (error.errorNumber() == ErrorNumber::DiskFull) {
            throw;
        }
        log_.warn("No earlier copy of " + name + " could be kept!", error);
        return {};
    }
}

std::string EarlierCopies::copyOf(File& source, const std::string& path) {
    files_.createFolder(settings_.folder, FolderRights::OwnerOnly);
    std::string copyPath;
    std::unique_ptr<File> copy = createCopy(path, copyPath);
    try {
        copyBytes(source, *copy);
        copy->flush();
        copy->close();
    } catch (const RunTimeError&) {
        copy.reset();
        tryToDelete(files_, copyPath);
        throw;
    }
    return copyPath;
}

/// Makes the file for a copy, under the first name that no other copy of this second has.
std::unique_ptr<File> EarlierCopies::createCopy(const std::string& path, std::string& copyPath) {
    const DateTime now = clock_.localTime();
    for (int number = 1;; ++number) {
        copyPath = rules_.join(settings_.folder,
                               earlierCopyName(rules_.baseName(path), rules_.extension(path), now, number));
        try {
            return files_.open(copyPath, OpenMode::CreateNew);
        } catch (const RunTimeError& error) {
            if (error.errorNumber() != ErrorNumber::FileAlreadyExists) {
                throw;
            }
        }
    }
}

bool EarlierCopies::isExpired(const std::string& name, const DateTime& now) const {
    const std::optional<DateTime> moment = momentOfEarlierCopy(name);
    return moment && timeBetween(*moment, now) > std::chrono::days(settings_.days);
}

void EarlierCopies::removeExpired() {
    if (settings_.days <= 0 || !files_.folderExists(settings_.folder)) {
        return;
    }
    const DateTime now = clock_.localTime();
    std::vector<std::string> expired;
    try {
        files_.listFiles(settings_.folder, ShortNames::Omit, [&](const FolderEntry& entry) {
            if (isExpired(entry.name, now)) {
                expired.push_back(rules_.join(settings_.folder, entry.name));
            }
        });
    } catch (const RunTimeError&) {
        // What cannot be listed stays.
    }
    for (const std::string& path : expired) {
        tryToDelete(files_, path);
    }
}

}  // namespace velmora
