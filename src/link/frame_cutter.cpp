#include "link/frame_cutter.h"

#include <algorithm>

#include "link/frames.h"

namespace velmora {
namespace {

constexpr std::string_view kHeader("\x16\x10\x02", kHeaderLength);

}  // namespace

void FrameCutter::append(std::string_view bytes) {
    // Bytes already handed out go first, so that the buffer never grows with the age of the link.
    if (begin_ == buffer_.size()) {
        buffer_.clear();
        scan_ = 0;
        begin_ = 0;
    } else if (begin_ >= kCapacity) {
        buffer_.erase(0, begin_);
        scan_ -= std::min(scan_, begin_);
        begin_ = 0;
    }
    buffer_.append(bytes);
}

void FrameCutter::clear() {
    buffer_.clear();
    begin_ = 0;
    scan_ = 0;
    inFrame_ = false;
}

void FrameCutter::drop(std::size_t count) {
    begin_ += count;
    dropped_ += count;
}

bool FrameCutter::findHeader() {
    const std::size_t found = buffer_.find(kHeader, begin_);
    if (found != std::string::npos) {
        drop(found - begin_);
        inFrame_ = true;
        // What was searched behind an earlier header holds no end for this one either.
        scan_ = std::max(scan_, begin_ + kHeaderLength);
        return true;
    }
    // The last two bytes may be the start of a header that is split across reads.
    const std::size_t keep = kHeaderLength - 1;
    if (buffer_.size() - begin_ > keep) {
        drop(buffer_.size() - begin_ - keep);
    }
    return false;
}

/// Bounds an endless frame: past the capacity its header is given up and the next one looked for.
void FrameCutter::limit() {
    while (inFrame_ && buffer_.size() - begin_ > kCapacity) {
        inFrame_ = false;
        drop(1);
        if (!findHeader()) {
            return;
        }
    }
}

std::optional<std::string_view> FrameCutter::next() {
    if (!inFrame_ && !findHeader()) {
        return std::nullopt;
    }
    while (true) {
        const std::size_t dle = buffer_.find(kDle, scan_);
        if (dle == std::string::npos) {
            scan_ = buffer_.size();
            break;
        }
        std::size_t end = dle;
        while (end < buffer_.size() && buffer_[end] == kDle) {
            ++end;
        }
        const bool odd = (end - dle) % 2 == 1;
        if (end == buffer_.size()) {
            // The run may go on in the next read; only whole pairs of it are settled.
            scan_ = odd ? end - 1 : end;
            break;
        }
        if (odd && buffer_[end] == kEtx) {
            constexpr std::size_t kCheckLength = 2;
            if (end + 1 + kCheckLength > buffer_.size()) {
                scan_ = end - 1;
                break;
            }
            const std::string_view frame(buffer_.data() + begin_, end + 1 + kCheckLength - begin_);
            begin_ += frame.size();
            inFrame_ = false;
            return frame;
        }
        scan_ = end;
    }
    limit();
    return std::nullopt;
}

}  // namespace velmora
