#include "simulated_disk.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "base/run_time_error.h"
#include "base/temporary_name.h"

namespace velmora::simulation {
namespace {

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}
std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

char inCapitals(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

constexpr const char* kDeletion = "delete";

/// What a real disk's failures come as.
constexpr std::array kFailures = {ErrorNumber::DeviceIoError, ErrorNumber::DiskFull,
                                  ErrorNumber::PathFileAccess, ErrorNumber::PermissionDenied,
                                  ErrorNumber::TooManyFiles};

}  // namespace

/// A file that the server has open. Once its process has ended it does nothing any more.
class SimulatedDisk::OpenFile : public File {
  public:
    OpenFile(SimulatedDisk& disk, std::string path, std::shared_ptr<Node> node, bool writable)
        : disk_(disk), path_(std::move(path)), node_(std::move(node)), writable_(writable) {
        ++disk_.openFiles_;
    }
    ~OpenFile() override { release(); }

    std::size_t read(char* buffer, std::size_t count) override {
        begin("read");
        const std::string& bytes = node_->bytes;
        const std::size_t taken = bytes.copy(buffer, count, std::min<std::size_t>(position_, bytes.size()));
        position_ += taken;
        return taken;
    }
    void write(std::string_view bytes) override {
        begin("write");
        if (!writable_) {
            throw RunTimeError(ErrorNumber::PathFileAccess, path_);
        }
        const std::size_t end = position_ + bytes.size();
        disk_.takeRoom(end > node_->bytes.size() ? end - node_->bytes.size() : 0);
        node_->bytes.resize(std::max(node_->bytes.size(), end));
        std::memcpy(node_->bytes.data() + position_, bytes.data(), bytes.size());
        position_ = end;
    }
    std::uint64_t position() const override { return position_; }
    void seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t size() const override { return node_->bytes.size(); }
    void flush() override {
        begin("flush");
        node_->flushed = node_->bytes;
        const Entry* named = disk_.find(path_);
        if (named != nullptr && named->node == node_) {
            disk_.makeDurable(path_);
        }
    }
    bool isInPlace() const override {
        const Entry* named = disk_.find(path_);
        return named != nullptr && named->node == node_;
    }
    void close() override {
        if (open_) {
            release();
        }
    }

  private:
    void begin(const char* operation) {
        if (process_ != disk_.process_ || !open_) {
            throw RunTimeError(ErrorNumber::BadFileNameOrNumber, path_);
        }
        disk_.operation(operation, path_);
    }
    void release() {
        if (open_ && process_ == disk_.process_) {
            --disk_.openFiles_;
        }
        open_ = false;
    }

    SimulatedDisk& disk_;
    std::string path_;
    std::shared_ptr<Node> node_;
    bool writable_;
    bool open_ = true;
    std::uint64_t process_ = disk_.process_;
    std::size_t position_ = 0;
};

SimulatedDisk::SimulatedDisk(const VirtualTime& time, FaultsOfStep& faults, Journal& journal, Random random)
    : time_(time), faults_(faults), journal_(journal), random_(random) {}

// ---------------------------------------------------------------------------------------------------------
// The world's side

void SimulatedDisk::put(const std::string& path, const std::string& bytes) {
    const Entry* old = find(path);
    Entry& file = old != nullptr ? entry(path) : make(path);
    file.node = std::make_shared<Node>(Node{bytes, bytes});
    makeDurable(file.path);
}

void SimulatedDisk::remove(const std::string& path) {
    files_.erase(key(path));
    durable_.erase(key(path));
}

std::optional<std::string> SimulatedDisk::content(const std::string& path) const {
    const Entry* file = find(path);
    return file == nullptr ? std::nullopt : std::optional(file->node->bytes);
}

std::optional<std::string> SimulatedDisk::durableContent(const std::string& path) const {
    const auto file = durable_.find(key(path));
    return file == durable_.end() ? std::nullopt : std::optional(file->second.node->flushed);
}

std::size_t SimulatedDisk::heldBytes() const {
    constexpr std::size_t kNodes = 1'000;  // of a file, in both maps, measured
    std::size_t bytes = 0;
    for (const auto& [name, file] : files_) {
        bytes += kNodes + 4 * name.size() + file.node->bytes.capacity() + file.node->flushed.capacity();
    }
    return bytes;
}

std::vector<std::string> SimulatedDisk::paths(const std::string& folder) const {
    std::vector<std::string> found;
    const std::string begin = key(folder) + "/";
    for (auto file = files_.lower_bound(begin); file != files_.end() && file->first.starts_with(begin);
         ++file) {
        if (file->first.find('/', begin.size()) == std::string::npos) {
            found.push_back(file->second.path);
        }
    }
    return found;
}

void SimulatedDisk::cutOff() {
    ++process_;
    openFiles_ = 0;
    cutOff_ = true;
}

void SimulatedDisk::revive() {
    cutOff_ = false;
    ended_.reset();
}

void SimulatedDisk::losePower() {
    const bool namesWereWritten = random_.chance(1, 4);
    if (!namesWereWritten) {
        files_ = durable_;
    }
    for (auto& [name, file] : files_) {
        if (file.node->bytes != file.node->flushed && random_.chance(3, 4)) {
            file.node->bytes = file.node->flushed;
        }
        file.node->flushed = file.node->bytes;
    }
    durable_ = files_;
}

bool SimulatedDisk::mayStay(const std::string& path) const {
    return std::find(undeleted_.begin(), undeleted_.end(), path) != undeleted_.end();
}

// ---------------------------------------------------------------------------------------------------------
// Files

std::uint64_t SimulatedDisk::fileSize(const std::string& path) const {
    const Entry* file = find(path);
    if (file == nullptr) {
        throw RunTimeError(ErrorNumber::FileNotFound, path);
    }
    return file->node->bytes.size();
}

std::string SimulatedDisk::storedPath(const std::string& path) const {
    const Entry* file = find(path);
    return file == nullptr ? path : file->path;
}

std::unique_ptr<File> SimulatedDisk::open(const std::string& path, OpenMode mode) {
    operation("open", path);
    if (folderExists(path)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path);
    }
    const Entry* old = find(path);
    if (mode == OpenMode::CreateNew && old != nullptr) {
        throw RunTimeError(ErrorNumber::FileAlreadyExists, path);
    }
    const bool creates = mode == OpenMode::Create || mode == OpenMode::CreateNew;
    Entry& file = old == nullptr && creates ? make(path) : entry(path);
    if (creates) {
        file.node->bytes.clear();
    }
    return std::make_unique<OpenFile>(*this, file.path, file.node, mode != OpenMode::Read);
}

void SimulatedDisk::deleteFile(const std::string& path) {
    undeleted_.push_back(path);  // until it is
    operation(kDeletion, path);
    entry(path);
    files_.erase(key(path));
    undeleted_.pop_back();
}

void SimulatedDisk::createFolder(const std::string& path, FolderRights /*rights*/) {
    operation("folder", path);
    folders_.insert({key(path), true});
}

void SimulatedDisk::replaceFile(const std::string& from, const std::string& to) {
    operation("replace", to);
    const std::shared_ptr<Node> node = entry(from).node;
    const Entry* old = find(to);
    Entry& target = old != nullptr ? entry(to) : make(to);
    target.node = node;
    node->flushed = node->bytes;
    files_.erase(key(from));
    durable_.erase(key(from));
    makeDurable(to);
}

std::string SimulatedDisk::createTemporaryFile(const std::string& folder) {
    const std::string path = (folder.empty() ? "/tmp" : folder) + "/" + temporaryName(++temporaryFiles_);
    operation("temporary", path);
    make(path);
    return path;
}

void SimulatedDisk::removeLeftovers(const std::string& folder) {
    for (const std::string& path : paths(folder)) {
        if (isTemporaryName(nameOf(path))) {
            remove(path);
        }
    }
}

void SimulatedDisk::listFiles(const std::string& folder, ShortNames shortNames,
                              const std::function<void(const FolderEntry&)>& visit) const {
    std::vector<FolderEntry> entries;
    for (const std::string& path : paths(folder)) {
        if (!isTemporaryName(nameOf(path))) {
            FolderEntry& listed = entries.emplace_back();
            listed.name = nameOf(path);
            if (shortNames == ShortNames::Include) {
                listed.shortName = listed.name;
                std::transform(listed.shortName.begin(), listed.shortName.end(), listed.shortName.begin(),
                               inCapitals);
            }
        }
    }
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    for (const FolderEntry& listed : entries) {
        visit(listed);
    }
}

// ---------------------------------------------------------------------------------------------------------
// What happens in an operation

void SimulatedDisk::operation(const char* name, const std::string& path) {
    if (cutOff_) {
        throw RunTimeError(ErrorNumber::DiskNotReady, path);
    }
    journal_.note(time_.now(), name, path);
    for (const Fault& fault : faults_.ofNextDiskOperation()) {
        switch (fault.kind) {
            case FaultKind::DiskFailure:
                throw RunTimeError(kFailures[fault.amount % kFailures.size()], path);
            case FaultKind::DiskFull:
                room_ = fault.amount;
                break;
            case FaultKind::FileRemoved:
            case FaultKind::FileRenamed:
                otherProgram(fault.kind);
                break;
            default:
                endServer({fault.kind == FaultKind::PowerFails, std::chrono::milliseconds(fault.amount)},
                          name);
        }
    }
}

void SimulatedDisk::endServer(const ServerEnded& end, std::string_view operation) {
    if (operation != kDeletion) {
        throw end;
    }
    ended_ = end;
    cutOff_ = true;
    throw RunTimeError(ErrorNumber::DiskNotReady);
}

void SimulatedDisk::otherProgram(FaultKind kind) {
    const Entry* file = find(target_);
    if (file == nullptr) {
        return;
    }
    if (kind == FaultKind::FileRenamed) {
        const Entry renamed{file->path + ".moved", file->node};
        files_[key(renamed.path)] = renamed;
        durable_[key(renamed.path)] = renamed;
    }
    remove(target_);
}

void SimulatedDisk::takeRoom(std::uint64_t bytes) {
    if (room_ && *room_ < bytes) {
        throw RunTimeError(ErrorNumber::DiskFull);
    }
    if (room_) {
        *room_ -= bytes;
    }
}

// ---------------------------------------------------------------------------------------------------------
// Names

std::string SimulatedDisk::key(const std::string& path) {
    std::string capitals = path;
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), inCapitals);
    return capitals;
}

const SimulatedDisk::Entry* SimulatedDisk::find(const std::string& path) const {
    const auto file = files_.find(key(path));
    return file == files_.end() ? nullptr : &file->second;
}

SimulatedDisk::Entry& SimulatedDisk::entry(const std::string& path) {
    const auto file = files_.find(key(path));
    if (file == files_.end()) {
        throw RunTimeError(ErrorNumber::FileNotFound, path);
    }
    return file->second;
}

SimulatedDisk::Entry& SimulatedDisk::make(const std::string& path) {
    if (!folderExists(folderOf(path))) {
        throw RunTimeError(ErrorNumber::PathNotFound, path);
    }
    return files_[key(path)] = Entry{path, std::make_shared<Node>()};
}

void SimulatedDisk::makeDurable(const std::string& path) {
    durable_[key(path)] = *find(path);
}

}  // namespace velmora::simulation
