// A file system in memory, for tests of what lies above the file layer.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/byte_text.h"
#include "base/files.h"
#include "base/run_time_error.h"
#include "base/temporary_name.h"

namespace velmora::test {

/// Files and folders by absolute path, found without regard to case. With '\\' as the separator names are
/// Windows-1252 and "C:\" is there from the start; with '/' only ASCII letters have a case and "/" is there.
/// A file that is deleted while open lives on until it is closed; open files use this object.
class MemoryFiles : public Files {
  public:
    explicit MemoryFiles(char separator = '/')
        : separator_(separator), temporaryFolder_(separator == '/' ? "/tmp" : "C:\\TMP") {
        addFolder(temporaryFolder_);
    }

    // What a test arranges and looks at.

    void addFolder(const std::string& path) { createFolder(path); }
    /// Makes the folders on the way too.
    void addFile(const std::string& path, const std::string& content = {}) {
        createFolder(folderOf(path));
        *make(path) = content;
    }
    /// Gives an existing file a short name, by which it is listed and found; without one it is listed by its
    /// name in capitals.
    void setShortName(const std::string& path, const std::string& shortName) {
        entry(path).shortName = shortName;
    }
    /// The bytes of a file; throws 53 if there is none.
    const std::string& content(const std::string& path) const { return *entry(path).content; }
    /// The stored paths of all files in order.
    std::vector<std::string> paths() const {
        std::vector<std::string> all;
        for (const auto& [key, file] : files_) {
            all.push_back(file.path);
        }
        return all;
    }
    /// The rights of an existing folder.
    FolderRights folderRights(const std::string& path) const { return folders_.at(key(path)); }
    /// Files that were opened and are neither closed nor destroyed.
    int openFiles() const { return *openFiles_; }
    const std::string& temporaryFolder() const { return temporaryFolder_; }

    // Files.

    bool fileExists(const std::string& path) const override { return find(path) != files_.end(); }
    bool folderExists(const std::string& path) const override { return folders_.count(key(path)) != 0; }
    std::uint64_t fileSize(const std::string& path) const override { return content(path).size(); }
    std::string storedPath(const std::string& path) const override {
        const auto found = find(path);
        return found == files_.end() ? path : found->second.path;
    }
    /// Short names are what a test says they are.
    std::string pathOfShortName(const std::string& path) const override { return path; }
    /// There are no links.
    std::optional<std::string> resolvedPath(const std::string& path) const override {
        return storedPath(path);
    }
    std::unique_ptr<File> open(const std::string& path, OpenMode mode) override {
        if (folderExists(path)) {
            throw RunTimeError(ErrorNumber::PathFileAccess, path);
        }
        const bool exists = fileExists(path);
        if (mode == OpenMode::CreateNew && exists) {
            throw RunTimeError(ErrorNumber::FileAlreadyExists, path);
        }
        const bool creates = mode == OpenMode::Create || mode == OpenMode::CreateNew;
        std::shared_ptr<std::string> bytes = exists || !creates ? entry(path).content : make(path);
        if (creates) {
            bytes->clear();
        }
        return std::make_unique<OpenFile>(*this, path, std::move(bytes), mode != OpenMode::Read);
    }
    void deleteFile(const std::string& path) override {
        entry(path);
        files_.erase(find(path));
    }
    void createFolder(const std::string& path, FolderRights rights = FolderRights::Usual) override {
        for (std::string folder = path; !folderExists(folder); folder = folderOf(folder)) {
            if (fileExists(folder)) {
                throw RunTimeError(ErrorNumber::PathFileAccess, folder);
            }
            folders_[key(folder)] = rights;
        }
    }
    /// There are no links.
    std::string followLinks(const std::string& path) const override { return storedPath(path); }
    void replaceFile(const std::string& from, const std::string& to) override {
        const std::shared_ptr<std::string> bytes = entry(from).content;
        if (key(from) != key(to)) {
            files_.erase(find(from));
        }
        make(to);
        entry(to).content = bytes;
    }
    std::string createTemporaryFile(const std::string& folder = {}) override {
        const std::string path =
            joined(folder.empty() ? temporaryFolder_ : folder, temporaryName(++temporaryFiles_));
        make(path);
        return path;
    }
    void removeLeftovers(const std::string& folder) override {
        for (const std::string& path : paths()) {
            if (key(folderOf(path)) == key(folder) && isTemporaryName(nameOf(path))) {
                deleteFile(path);
            }
        }
    }
    void listFiles(const std::string& folder, ShortNames shortNames,
                   const std::function<void(const FolderEntry&)>& visit) const override {
        if (!folderExists(folder)) {
            throw RunTimeError(ErrorNumber::PathNotFound, folder);
        }
        std::vector<FolderEntry> entries;
        for (const auto& [fileKey, file] : files_) {
            if (key(folderOf(file.path)) != key(folder) || isTemporaryName(nameOf(file.path))) {
                continue;
            }
            FolderEntry& listed = entries.emplace_back();
            listed.name = nameOf(file.path);
            if (shortNames == ShortNames::Include) {
                listed.shortName = file.shortName.empty() ? upperCase(listed.name) : file.shortName;
            }
        }
        std::sort(entries.begin(), entries.end(),
                  [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
        for (const FolderEntry& listed : entries) {
            visit(listed);
        }
    }

  private:
    struct Entry {
        std::string path;
        std::string shortName;
        std::shared_ptr<std::string> content = std::make_shared<std::string>();
    };
    using Entries = std::map<std::string, Entry>;

    class OpenFile : public File {
      public:
        OpenFile(const MemoryFiles& disk, std::string path, std::shared_ptr<std::string> bytes, bool writable)
            : disk_(disk), path_(std::move(path)), bytes_(std::move(bytes)), writable_(writable) {
            ++*openFiles_;
        }
        ~OpenFile() override { release(); }
        std::size_t read(char* buffer, std::size_t count) override {
            requireOpen();
            const std::size_t start = std::min<std::size_t>(position_, bytes_->size());
            const std::size_t taken = bytes_->copy(buffer, count, start);
            position_ += taken;
            return taken;
        }
        void write(std::string_view bytes) override {
            requireOpen();
            if (!writable_) {
                throw RunTimeError(ErrorNumber::PathFileAccess);
            }
            const std::size_t start = position_;
            bytes_->resize(std::max(bytes_->size(), start + bytes.size()));
            std::copy(bytes.begin(), bytes.end(), bytes_->begin() + static_cast<std::ptrdiff_t>(start));
            position_ += bytes.size();
        }
        std::uint64_t position() const override { return position_; }
        void seek(std::uint64_t position) override { position_ = position; }
        std::uint64_t size() const override {
            requireOpen();
            return bytes_->size();
        }
        void flush() override { requireOpen(); }
        bool isInPlace() const override {
            const auto named = disk_.find(path_);
            return named != disk_.files_.end() && named->second.content == bytes_;
        }
        void close() override { release(); }

      private:
        void requireOpen() const {
            if (bytes_ == nullptr) {
                throw RunTimeError(ErrorNumber::BadFileNameOrNumber);
            }
        }
        void release() {
            if (bytes_ != nullptr) {
                --*openFiles_;
                bytes_ = nullptr;
            }
        }
        const MemoryFiles& disk_;
        std::string path_;
        std::shared_ptr<std::string> bytes_;
        bool writable_;
        std::shared_ptr<int> openFiles_ = disk_.openFiles_;
        std::uint64_t position_ = 0;
    };

    /// The form in which paths are compared: no final separator, capitals.
    std::string key(std::string path) const {
        while (!path.empty() && path.back() == separator_) {
            path.pop_back();
        }
        if (separator_ != '/') {
            return upperCase(path);
        }
        std::transform(path.begin(), path.end(), path.begin(),
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c; });
        return path;
    }
    std::string folderOf(const std::string& path) const {
        const std::size_t cut = path.rfind(separator_);
        return cut == std::string::npos ? std::string() : path.substr(0, cut);
    }
    std::string nameOf(const std::string& path) const { return path.substr(path.rfind(separator_) + 1); }
    std::string joined(const std::string& folder, const std::string& name) const {
        return folder + separator_ + name;
    }
    Entries::const_iterator find(const std::string& path) const {
        const std::string wanted = key(path);
        const auto exact = files_.find(wanted);
        if (exact != files_.end()) {
            return exact;
        }
        return std::find_if(files_.begin(), files_.end(), [&](const auto& item) {
            const Entry& file = item.second;
            return !file.shortName.empty() && key(joined(folderOf(file.path), file.shortName)) == wanted;
        });
    }
    const Entry& entry(const std::string& path) const {
        const auto found = find(path);
        if (found == files_.end()) {
            throw RunTimeError(
                folderExists(folderOf(path)) ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound, path);
        }
        return found->second;
    }
    Entry& entry(const std::string& path) {
        return const_cast<Entry&>(static_cast<const MemoryFiles&>(*this).entry(path));
    }
    std::shared_ptr<std::string> make(const std::string& path) {
        if (!folderExists(folderOf(path))) {
            throw RunTimeError(ErrorNumber::PathNotFound, path);
        }
        Entry& made = files_[key(path)];
        made.path = made.path.empty() ? path : made.path;
        return made.content;
    }

    char separator_;
    std::string temporaryFolder_;
    Entries files_;
    std::map<std::string, FolderRights> folders_{{std::string(), FolderRights::Usual}};
    std::shared_ptr<int> openFiles_ = std::make_shared<int>(0);
    std::uint32_t temporaryFiles_ = 0;
};

}  // namespace velmora::test
