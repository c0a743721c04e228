// Reading a file from its position on, in pieces that suit its format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"

namespace velmora {

/// Buffers a file. The file must outlive it and be moved by nobody else.
class ByteReader {
  public:
    explicit ByteReader(File& file) : file_(file) {}

    /// The next bytes; fewer than asked for only at the end of the file. The view holds until the next call.
    /// Requires: at most 65,536 bytes.
    std::string_view read(std::size_t count);
    /// Leaves bytes out without reading them.
    void skip(std::uint64_t count);
    /// Bytes in the buffer, at least one unless the file is at its end; take() removes them.
    std::string_view peek();
    void take(std::size_t count) { begin_ += count; }

  private:
    void fill(std::size_t wanted);

    File& file_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
};

/// Longest line of a text file that is kept, in bytes; what goes beyond it is left out.
constexpr std::size_t kLongestLine = 64 * 1024;

/// Cuts a file into lines that end in CR LF or LF; the last line needs no end.
class SheetLines {
  public:
    explicit SheetLines(File& file) : bytes_(file) {}

    /// Reads a line without its end; false when there is none left.
    bool next(std::string& line);

  private:
    ByteReader bytes_;
};

}  // namespace velmora
