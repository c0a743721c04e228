// A disk that knows what has reached it: after a power failure only what was flushed is there.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"
#include "faults.h"
#include "journal.h"
#include "random.h"
#include "virtual_time.h"

namespace velmora::simulation {

/// Thrown out of a file operation in which the server's process ends. No std::exception, so that nothing of
/// the server takes it for a failure that it can answer.
struct ServerEnded {
    bool powerFailed = false;
    Time downFor{0};
};

/// Files and folders by absolute path with "/", found without regard to the case of ASCII letters; no links.
/// All that it is given must outlive it, and it must outlive the files opened on it.
class SimulatedDisk : public Files {
  public:
    SimulatedDisk(const VirtualTime& time, FaultsOfStep& faults, Journal& journal, Random random);

    // The world's side. Nothing here fails.

    void addFolder(const std::string& path) { folders_.insert({key(path), true}); }
    /// Another program writes a file and flushes it.
    void put(const std::string& path, const std::string& bytes);
    /// Another program deletes it.
    void remove(const std::string& path);
    /// What a program reads in a file now; nothing when there is none.
    std::optional<std::string> content(const std::string& path) const;
    /// What is left of it if the power fails now.
    std::optional<std::string> durableContent(const std::string& path) const;
    /// The paths of all files of a folder, in order.
    std::vector<std::string> paths(const std::string& folder) const;

    /// What all files take in memory, about.
    std::size_t heldBytes() const;

    /// The file on which other programs act.
    void setTarget(const std::string& path) { target_ = path; }
    /// The faults of the step are over: there is room again.
    void heal() { room_.reset(); }
    /// The process that has files open is gone: what it still does fails and has no effect.
    void cutOff();
    /// A new process may begin.
    void revive();
    /// The end of the process that a deletion brought: destructors delete, so it cannot be thrown.
    const std::optional<ServerEnded>& ended() const { return ended_; }
    /// Only what was flushed is left, or, of some files, what happened to be written already.
    void losePower();
    /// Files that the present process has open.
    int openFiles() const { return openFiles_; }
    /// Temporary files that could not be deleted because of a fault.
    bool mayStay(const std::string& path) const;

    // Files.

    bool fileExists(const std::string& path) const override { return find(path) != nullptr; }
    bool folderExists(const std::string& path) const override { return folders_.count(key(path)) != 0; }
    std::uint64_t fileSize(const std::string& path) const override;
    std::string storedPath(const std::string& path) const override;
    std::string pathOfShortName(const std::string& path) const override { return path; }
    std::optional<std::string> resolvedPath(const std::string& path) const override {
        return storedPath(path);
    }
    std::unique_ptr<File> open(const std::string& path, OpenMode mode) override;
    void deleteFile(const std::string& path) override;
    void createFolder(const std::string& path, FolderRights rights = FolderRights::Usual) override;
    std::string followLinks(const std::string& path) const override { return storedPath(path); }
    void replaceFile(const std::string& from, const std::string& to) override;
    std::string createTemporaryFile(const std::string& folder = {}) override;
    void removeLeftovers(const std::string& folder) override;
    void listFiles(const std::string& folder, ShortNames shortNames,
                   const std::function<void(const FolderEntry&)>& visit) const override;

  private:
    class OpenFile;
    /// The bytes behind a name.
    struct Node {
        std::string bytes;
        std::string flushed;
    };
    struct Entry {
        std::string path;
        std::shared_ptr<Node> node;
    };
    using Entries = std::map<std::string, Entry>;

    static std::string key(const std::string& path);
    const Entry* find(const std::string& path) const;
    Entry& entry(const std::string& path);
    Entry& make(const std::string& path);
    void makeDurable(const std::string& path);
    /// Counts an operation and lets happen what is to happen in it.
    void operation(const char* name, const std::string& path);
    void otherProgram(FaultKind kind);
    [[noreturn]] void endServer(const ServerEnded& end, std::string_view operation);
    void takeRoom(std::uint64_t bytes);

    const VirtualTime& time_;
    FaultsOfStep& faults_;
    Journal& journal_;
    Random random_;
    Entries files_;
    Entries durable_;  ///< the names that a power failure leaves
    std::map<std::string, bool> folders_;
    std::optional<std::uint64_t> room_;
    std::string target_;
    std::vector<std::string> undeleted_;
    std::uint32_t temporaryFiles_ = 0;
    std::uint64_t process_ = 0;  ///< changes when the process with the open files ends
    bool cutOff_ = false;
    std::optional<ServerEnded> ended_;
    int openFiles_ = 0;
};

}  // namespace velmora::simulation
