#include "services/line_reader.h"

#include <algorithm>

namespace velmora {

bool LineReader::fill() {
    if (next_ == filled_) {
        filled_ = file_.read(buffer_.data(), buffer_.size());
        next_ = 0;
    }
    return next_ < filled_;
}

bool LineReader::atEnd() {
    return !fill();
}

bool LineReader::readLine(std::string& line, std::size_t limit) {
    line.clear();
    while (fill()) {
        const auto begin = buffer_.begin() + static_cast<std::ptrdiff_t>(next_);
        const auto end = buffer_.begin() + static_cast<std::ptrdiff_t>(filled_);
        const auto lineFeed = std::find(begin, end, '\n');
        line.append(begin, lineFeed);
        next_ = static_cast<std::size_t>(lineFeed - buffer_.begin());
        if (lineFeed != end) {
            ++next_;
            if (!line.empty() && line.back() == '\r') {
                line.pop_back();
            }
            break;
        }
        // One byte more may still turn out to be the CR of the line's end.
        if (line.size() - 1 > limit) {
            return false;
        }
    }
    return line.size() <= limit;
}

}  // namespace velmora
