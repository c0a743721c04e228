#include "apps/line_output.h"

#include <utility>

namespace velmora {

LineOutput::LineOutput(Write write, std::string lineEnd)
    : write_(std::move(write)), lineEnd_(std::move(lineEnd)) {}

LineOutput::~LineOutput() {
    catchUp();
}

void LineOutput::print(const std::string& line) {
    if (!catchUp() || !put(line)) {
        ++lost_;
    }
}

/// Prints what is due before the next line; false when there is no room for it.
bool LineOutput::catchUp() {
    if (!rest_.empty()) {
        rest_.erase(0, write_(rest_));
    }
    if (!rest_.empty()) {
        return false;
    }
    if (lost_ > 0 && put(std::to_string(lost_) + (lost_ == 1 ? " line lost" : " lines lost"))) {
        lost_ = 0;
    }
    return lost_ == 0 && rest_.empty();
}

/// Prints a line, perhaps the end of it later; false when nothing of it was taken.
bool LineOutput::put(const std::string& line) {
    const std::string text = line + lineEnd_;
    const std::size_t taken = write_(text);
    if (taken == 0) {
        return false;
    }
    rest_ = text.substr(taken);
    return true;
}

}  // namespace velmora
