// Lines of a text file.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "base/files.h"

namespace velmora {

/// Reads a file line by line from its current position, as raw bytes: lines end with CR LF or LF, the last
/// one may lack its end. Holds a few kilobytes, however long the file or its lines are. The file must
/// outlive it and be read by nobody else meanwhile. Failures of the file are thrown as RunTimeError.
class LineReader {
  public:
    explicit LineReader(File& file) : file_(file) {}

    /// Whether nothing is left to read.
    bool atEnd();
    /// Reads the next line without its end into `line`. False, with the position somewhere in the line, when
    /// it is longer than `limit` bytes. At the end of the file the line is empty.
    bool readLine(std::string& line, std::size_t limit);

  private:
    bool fill();

    File& file_;
    std::array<char, 4096> buffer_{};
    std::size_t next_ = 0;
    std::size_t filled_ = 0;
};

}  // namespace velmora
