// A disk in memory on which operations fail as a fuzzer says and no file gets large.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "base/run_time_error.h"
#include "support/failing_files.h"

namespace velmora::fuzz {

/// An open file that no seek makes large.
class SmallFile : public File {
  public:
    explicit SmallFile(std::unique_ptr<File> inner) : inner_(std::move(inner)) {}
    std::size_t read(char* buffer, std::size_t count) override { return inner_->read(buffer, count); }
    void write(std::string_view bytes) override {
        constexpr std::uint64_t kLargest = 20'000;
        if (inner_->position() + bytes.size() > kLargest) {
            throw RunTimeError(ErrorNumber::DiskFull);
        }
        inner_->write(bytes);
    }
    std::uint64_t position() const override { return inner_->position(); }
    void seek(std::uint64_t position) override { inner_->seek(position); }
    std::uint64_t size() const override { return inner_->size(); }
    void flush() override { inner_->flush(); }
    bool isInPlace() const override { return inner_->isInPlace(); }
    void close() override { inner_->close(); }

  private:
    std::unique_ptr<File> inner_;
};

class SmallDisk : public test::FailingFiles {
  public:
    using FailingFiles::FailingFiles;
    std::unique_ptr<File> open(const std::string& path, OpenMode mode) override {
        return std::make_unique<SmallFile>(FailingFiles::open(path, mode));
    }
    void deleteFile(const std::string& path) override {
        undeleted_.insert(path);
        FailingFiles::deleteFile(path);
        undeleted_.erase(path);
    }
    /// Whether its deletion failed, so that it is still there.
    bool mayStay(const std::string& path) const { return undeleted_.count(path) != 0; }

  private:
    std::set<std::string> undeleted_;
};

}  // namespace velmora::fuzz
