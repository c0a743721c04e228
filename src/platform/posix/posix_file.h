// An open file on a POSIX system.
#pragma once

#include <string>

#include "base/files.h"

namespace velmora {

/// Reads and writes by position and keeps the position itself. Every failure is a RunTimeError; any use after
/// close() is 52, a write to a file opened for reading 75.
class PosixFile : public File {
  public:
    /// Takes over an open descriptor of a regular file. `path` is the one that led to it.
    PosixFile(int descriptor, bool writable, std::string path);
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;
    ~PosixFile() override;

    std::size_t read(char* buffer, std::size_t count) override;
    void write(std::string_view bytes) override;
    std::uint64_t position() const override { return position_; }
    /// Throws 5 for a position that no file can have (2^63 and above).
    void seek(std::uint64_t position) override;
    std::uint64_t size() const override;
    void flush() override;
    /// By device and inode number; the path is followed through links.
    bool isInPlace() const override;
    void close() override;

  private:
    int descriptor_;
    bool writable_;
    std::string path_;
    std::uint64_t position_ = 0;
};

}  // namespace velmora
