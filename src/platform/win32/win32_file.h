// An open file on Windows.
#pragma once

#include <windows.h>

#include <string>

#include "base/files.h"

namespace velmora {

/// Reads and writes by position and keeps the position itself. Every failure is a RunTimeError; any use after
/// close() is 52, a write to a file opened for reading 75.
class Win32File : public File {
  public:
    /// Takes over an open handle of a file on disk. `path` is for the texts of errors.
    Win32File(HANDLE handle, bool writable, std::string path);
    Win32File(const Win32File&) = delete;
    Win32File& operator=(const Win32File&) = delete;
    ~Win32File() override;

    std::size_t read(char* buffer, std::size_t count) override;
    void write(std::string_view bytes) override;
    std::uint64_t position() const override { return position_; }
    /// Throws 5 for a position that no file can have (2^63 and above).
    void seek(std::uint64_t position) override;
    std::uint64_t size() const override;
    /// By FlushFileBuffers; a network drive tells the failures of writes only then.
    void flush() override;
    /// Always: the way in which files are opened here keeps others from deleting and renaming them.
    bool isInPlace() const override { return true; }
    /// Flushes what was written first.
    void close() override;

  private:
    HANDLE handle_;
    bool writable_;
    bool written_ = false;
    std::string path_;
    std::uint64_t position_ = 0;
};

}  // namespace velmora
