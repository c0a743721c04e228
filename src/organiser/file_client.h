// FILE: any file of the server by records or bytes, with seeking, and listings of folders.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "organiser/file_requests.h"
#include "organiser/organiser_link.h"
#include "organiser/progress.h"

namespace velmora {

/// What is opened.
enum class AccessKind : std::uint8_t { Bytes = 0, Text = 1, ShortNames = 2, LongNames = 3 };

/// Where a seek counts from, and how far.
struct Seek {
    enum class From : std::uint8_t { Start = 0, Here = 1, End = 2 };
    From from = From::Start;
    std::int64_t offset = 0;
};

/// The conversations of the service, one file each. Throws LinkFailure and LineError.
class FileClient {
  public:
    /// Both must outlive the client.
    FileClient(OrganiserLink& link, Progress& progress) : link_(link), progress_(progress) {}

    /// All bytes of a file, from where the seek leads.
    std::string readBytes(std::string_view name, const std::optional<Seek>& seek);
    /// All lines of a text file.
    std::vector<std::string> readLines(std::string_view name);
    /// Writes bytes, from the start of the file or from where the seek leads.
    void writeBytes(std::string_view name, FileMode mode, const std::optional<Seek>& seek,
                    std::string_view bytes);
    /// Writes lines, each at most kMostData bytes.
    void writeLines(std::string_view name, FileMode mode, const std::vector<std::string>& lines);
    /// The names of a folder that match a pattern ("*", "SUB/*.TXT"), as Windows-1252 bytes.
    std::vector<std::string> list(std::string_view pattern, bool longNames);

    /// The position that the last seek led to.
    std::uint64_t position() const { return position_; }
    /// How far the last write came.
    const WriteState& written() const { return written_; }

  private:
    void open(std::string_view name, FileMode mode, AccessKind kind);
    void seekTo(const Seek& seek);

    OrganiserLink& link_;
    Progress& progress_;
    std::uint64_t position_ = 0;
    WriteState written_;
};

}  // namespace velmora
