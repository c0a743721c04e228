#include "spreadsheet/byte_reader.h"

#include <algorithm>
#include <cstring>

namespace velmora {
namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

}  // namespace

void ByteReader::fill(std::size_t wanted) {
    if (end_ - begin_ >= wanted) {
        return;
    }
    buffer_.resize(kBufferSize);
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    while (end_ < wanted) {
        const std::size_t got = file_.read(buffer_.data() + end_, buffer_.size() - end_);
        if (got == 0) {
            break;
        }
        end_ += got;
    }
}

std::string_view ByteReader::read(std::size_t count) {
    fill(count);
    const std::size_t taken = std::min(count, end_ - begin_);
    const std::string_view bytes(buffer_.data() + begin_, taken);
    begin_ += taken;
    return bytes;
}

void ByteReader::skip(std::uint64_t count) {
    const std::uint64_t buffered = std::min<std::uint64_t>(count, end_ - begin_);
    begin_ += static_cast<std::size_t>(buffered);
    if (count > buffered) {
        file_.seek(file_.position() + (count - buffered));
    }
}

std::string_view ByteReader::peek() {
    fill(1);
    return {buffer_.data() + begin_, end_ - begin_};
}

bool SheetLines::next(std::string& line) {
    line.clear();
    bool any = false;
    for (std::string_view waiting = bytes_.peek(); !waiting.empty(); waiting = bytes_.peek()) {
        any = true;
        const std::size_t feed = waiting.find('\n');
        const std::string_view piece = waiting.substr(0, feed);
        line.append(piece.substr(0, kLongestLine - line.size()));
        const bool ends = feed != std::string_view::npos;
        bytes_.take(piece.size() + (ends ? 1 : 0));
        if (ends) {
            break;
        }
    }
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return any;
}

}  // namespace velmora
