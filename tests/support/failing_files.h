// A file layer that fails when a test says so and otherwise forwards.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/files.h"
#include "base/run_time_error.h"

namespace velmora::test {

/// The calls that can be made to fail.
enum class FileCall {
    FileSize,  ///< by name
    Size,      ///< of an open file
    Open,
    Delete,
    CreateFolder,
    Replace,
    CreateTemporary,
    List,
    Read,
    Write,
    Flush,
    Close,
};

/// Forwards to another Files, which must outlive it and every file opened through it.
class FailingFiles : public Files {
  public:
    explicit FailingFiles(Files& inner) : inner_(inner) {}

    /// The `k`-th call of this kind from now on (1 is the next one) throws `error` and does nothing else; the
    /// calls after it succeed again.
    void failAtCall(FileCall kind, int k, ErrorNumber error) {
        script_->failures[kind] = {script_->calls[kind] + k, error};
    }
    /// Every write that would bring the bytes written from now on, over all files, above `count` throws
    /// `error` and writes nothing.
    void failAfterBytes(std::uint64_t count, ErrorNumber error) {
        script_->room = count;
        script_->roomError = error;
    }
    /// Forgets what was to fail.
    void healthy() {
        script_->failures.clear();
        script_->room.reset();
    }
    /// Calls of this kind so far, failed ones included.
    int calls(FileCall kind) const { return script_->calls[kind]; }

    bool fileExists(const std::string& path) const override { return inner_.fileExists(path); }
    bool folderExists(const std::string& path) const override { return inner_.folderExists(path); }
    std::uint64_t fileSize(const std::string& path) const override {
        script_->count(FileCall::FileSize);
        return inner_.fileSize(path);
    }
    std::string storedPath(const std::string& path) const override { return inner_.storedPath(path); }
    std::string pathOfShortName(const std::string& path) const override {
        return inner_.pathOfShortName(path);
    }
    std::optional<std::string> resolvedPath(const std::string& path) const override {
        return inner_.resolvedPath(path);
    }
    std::unique_ptr<File> open(const std::string& path, OpenMode mode) override {
        script_->count(FileCall::Open);
        return std::make_unique<ForwardingFile>(inner_.open(path, mode), script_);
    }
    void deleteFile(const std::string& path) override {
        script_->count(FileCall::Delete);
        inner_.deleteFile(path);
    }
    void createFolder(const std::string& path, FolderRights rights = FolderRights::Usual) override {
        script_->count(FileCall::CreateFolder);
        inner_.createFolder(path, rights);
    }
    std::string followLinks(const std::string& path) const override { return inner_.followLinks(path); }
    void replaceFile(const std::string& from, const std::string& to) override {
        script_->count(FileCall::Replace);
        inner_.replaceFile(from, to);
    }
    std::string createTemporaryFile(const std::string& folder = {}) override {
        script_->count(FileCall::CreateTemporary);
        return inner_.createTemporaryFile(folder);
    }
    void removeLeftovers(const std::string& folder) override { inner_.removeLeftovers(folder); }
    void listFiles(const std::string& folder, ShortNames shortNames,
                   const std::function<void(const FolderEntry&)>& visit) const override {
        script_->count(FileCall::List);
        inner_.listFiles(folder, shortNames, visit);
    }

  private:
    struct Failure {
        int call;
        ErrorNumber error;
    };
    struct Script {
        void count(FileCall kind) {
            const int call = ++calls[kind];
            const auto failure = failures.find(kind);
            if (failure != failures.end() && failure->second.call == call) {
                throw RunTimeError(failure->second.error);
            }
        }
        void take(std::uint64_t bytes) {
            if (room && *room < bytes) {
                throw RunTimeError(roomError);
            }
            if (room) {
                *room -= bytes;
            }
        }
        std::map<FileCall, int> calls;
        std::map<FileCall, Failure> failures;
        std::optional<std::uint64_t> room;
        ErrorNumber roomError = ErrorNumber::DiskFull;
    };

    class ForwardingFile : public File {
      public:
        ForwardingFile(std::unique_ptr<File> inner, std::shared_ptr<Script> script)
            : inner_(std::move(inner)), script_(std::move(script)) {}
        std::size_t read(char* buffer, std::size_t count) override {
            script_->count(FileCall::Read);
            return inner_->read(buffer, count);
        }
        void write(std::string_view bytes) override {
            script_->count(FileCall::Write);
            script_->take(bytes.size());
            inner_->write(bytes);
        }
        std::uint64_t position() const override { return inner_->position(); }
        void seek(std::uint64_t position) override { inner_->seek(position); }
        std::uint64_t size() const override {
            script_->count(FileCall::Size);
            return inner_->size();
        }
        void flush() override {
            script_->count(FileCall::Flush);
            inner_->flush();
        }
        bool isInPlace() const override { return inner_->isInPlace(); }
        void close() override {
            script_->count(FileCall::Close);
            inner_->close();
        }

      private:
        std::unique_ptr<File> inner_;
        std::shared_ptr<Script> script_;
    };

    Files& inner_;
    std::shared_ptr<Script> script_ = std::make_shared<Script>();
};

}  // namespace velmora::test
