#include "link/frame_cutter.h"

#include <algorithm>

#include "link/control_bytes.h"
#include "link/frames.h"

namespace velmora {

void FrameCutter::append(std::string_view bytes) {
    // What was handed out or dropped goes as soon as it outweighs what is moved for it: the time stays linear
    // and the buffer never grows with the age of the link.
    constexpr std::size_t kWorthAMove = 1024;
    if (begin_ >= std::max(kWorthAMove, heldBytes())) {
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

/// Drops what stands before the next header. Without one the last two bytes stay: they may be the start of a
/// header that is split across reads.
bool FrameCutter::seekHeader() {
    const std::size_t found = findHeader(buffer_, begin_);
    inFrame_ = found < buffer_.size();
    if (inFrame_) {
        drop(found - begin_);
        // What was searched behind an earlier header holds no end for this one either.
        scan_ = std::max(scan_, begin_ + kHeaderLength);
    } else {
        constexpr std::size_t kKeep = kHeaderLength - 1;
        drop(heldBytes() - std::min(heldBytes(), kKeep));
    }
    return inFrame_;
}

/// Gives a header up and looks for the next one.
bool FrameCutter::skipHeader() {
    drop(1);
    return seekHeader();
}

std::size_t FrameCutter::leastToCome() const {
    constexpr std::size_t kEnd = 4;  // DLE ETX and the check
    if (!inFrame_) {
        return kHeaderLength + kEnd - std::min(heldBytes(), kHeaderLength - 1);
    }
    // The search stands at a DLE that may begin the end, or behind all that came.
    return kEnd - std::min(buffer_.size() - scan_, kEnd - 1);
}

std::optional<std::string_view> FrameCutter::next() {
    if (!inFrame_ && !seekHeader()) {
        return std::nullopt;
    }
    while (true) {
        const std::size_t dle = findDle(buffer_, scan_);
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
        if (!odd || buffer_[end] != kEtx) {
            scan_ = end;
            continue;
        }
        scan_ = end - 1;
        constexpr std::size_t kCheckLength = 2;
        const std::size_t length = end + 1 + kCheckLength - begin_;
        if (length > capacity_) {
            // The same as if the bytes had come one by one: this header was given up before its end came.
            if (!skipHeader()) {
                return std::nullopt;
            }
            continue;
        }
        if (length > heldBytes()) {
            break;
        }
        const std::string_view frame(buffer_.data() + begin_, length);
        begin_ += length;
        inFrame_ = false;
        return frame;
    }
    while (heldBytes() > capacity_ && skipHeader()) {
    }
    return std::nullopt;
}

}  // namespace velmora
