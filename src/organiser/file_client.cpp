#include "organiser/file_client.h"

#include <algorithm>

#include "base/byte_text.h"
#include "organiser/conversation.h"

namespace velmora {
namespace {

/// Names of a listing may be longer than a record; this is the most that a request can ask for.
constexpr std::size_t kMostName = 255;
constexpr std::size_t kPositionDigits = 8;

}  // namespace

void FileClient::open(std::string_view name, FileMode mode, AccessKind kind) {
    written_ = {};
    openService(link_, "FILE");
    requestExpecting(link_, openRequest(mode, static_cast<int>(kind), name), "");
    written_.opened = true;
}

void FileClient::seekTo(const Seek& seek) {
    const std::string request{kSeek, static_cast<char>(seek.from)};
    const std::string reply = link_.request(request + std::to_string(seek.offset));
    const bool digits = std::all_of(reply.begin(), reply.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!digits || reply.size() < kPositionDigits || reply.size() > kPositionDigits + 10) {
        throw LinkFailure::unexpected("The server answered the seek with \"" + hexEscaped(reply) +
                                      "\" instead of a position.");
    }
    position_ = std::stoull(reply);
}

std::string FileClient::readBytes(std::string_view name, const std::optional<Seek>& seek) {
    open(name, FileMode::Read, AccessKind::Bytes);
    if (seek) {
        seekTo(*seek);
    }
    std::string bytes;
    for (const std::string& block :
         readToEnd(link_, progress_, "Reading " + toUtf8(name), kMostData, "messages")) {
        bytes += block;
    }
    return bytes;
}

std::vector<std::string> FileClient::readLines(std::string_view name) {
    open(name, FileMode::Read, AccessKind::Text);
    return readToEnd(link_, progress_, "Reading " + toUtf8(name), kMostData, "lines");
}

std::vector<std::string> FileClient::list(std::string_view pattern, bool longNames) {
    open(pattern, FileMode::Read, longNames ? AccessKind::LongNames : AccessKind::ShortNames);
    return readToEnd(link_, progress_, "Listing " + toUtf8(pattern), kMostName, "names");
}

void FileClient::writeBytes(std::string_view name, FileMode mode, const std::optional<Seek>& seek,
                            std::string_view bytes) {
    open(name, mode, AccessKind::Bytes);
    if (seek) {
        seekTo(*seek);
    }
    writeAndClose(link_, progress_, "Writing " + toUtf8(name), inChunks(bytes), "messages", written_);
}

void FileClient::writeLines(std::string_view name, FileMode mode, const std::vector<std::string>& lines) {
    open(name, mode, AccessKind::Text);
    writeAndClose(link_, progress_, "Writing " + toUtf8(name), lines, "lines", written_);
}

}  // namespace velmora
