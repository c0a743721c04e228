#include "server/display_mirror.h"

#include <utility>

#include "base/byte_text.h"

namespace velmora {

namespace {

constexpr int kLine1 = 1;
constexpr int kLine2 = 2;
constexpr int kBothLines = 3;

bool isLong(const std::string& line) {
    return line.size() > kDisplayColumns;
}

// A text that is too long only because of blanks at its end need not scroll.
void cutBlankTail(std::string& line) {
    if (isLong(line) && trimRight(line).size() <= kDisplayColumns) {
        line.resize(kDisplayColumns);
    }
}

void wrapWords(std::string& line1, std::string& line2) {
    const std::size_t blank = line1.substr(0, kDisplayColumns).rfind(' ');
    const std::size_t cut = blank == std::string::npos ? kDisplayColumns : blank + 1;
    line2 = trimBlanks(std::string_view(line1).substr(cut));
    line1 = trimBlanks(std::string_view(line1).substr(0, cut));
}

// Blanks at either end are the text's own choice of position.
void centreUnlessPadded(std::string& line) {
    if (!line.empty() && line.front() != ' ' && line.back() != ' ') {
        line = centre(line, kDisplayColumns);
    }
}

}  // namespace

std::string padRight(std::string_view text, std::size_t width, char fill) {
    std::string padded(text.substr(0, width));
    padded.resize(width, fill);
    return padded;
}

std::string centre(std::string_view text, std::size_t width, char fill) {
    std::string centred;
    if (text.size() < width) {
        centred.assign((width - text.size()) / 2, fill);
    }
    centred += text;
    return centred;
}

DisplayMirror::DisplayMirror(Timer& timer, ShowLine showLine)
    : timer_(timer), showLine_(std::move(showLine)) {}

bool DisplayMirror::Display(std::string line1, std::string line2) {
    std::string given = line1 + line2;
    if (given == lastGiven_) {
        return false;
    }
    lastGiven_ = std::move(given);

    const int mask = (line1.empty() ? 0 : kLine1) + (line2.empty() ? 0 : kLine2);
    cutBlankTail(line1);
    cutBlankTail(line2);
    if (mask == kBothLines && isLong(line1) && trimBlanks(line2).empty()) {
        wrapWords(line1, line2);
    }
    centreUnlessPadded(line1);
    centreUnlessPadded(line2);

    if ((mask & kLine1) != 0) {
        showLine_(1, padRight(line1, kDisplayColumns));
    }
    if ((mask & kLine2) != 0) {
        showLine_(2, padRight(line2, kDisplayColumns));
    }
    chooseScrolling(line1, line2, mask);
    return true;
}

void DisplayMirror::chooseScrolling(const std::string& line1, const std::string& line2, int mask) {
    if (isLong(line1)) {
        scroll(1, line1);
    } else if (isLong(line2)) {
        scroll(2, line2);
    } else if (mask == kBothLines || mask == scrollLine_) {
        scrollLine_ = 0;
    }
    if (scrollLine_ == 0) {
        timer_.setEnabled(false);
        return;
    }
    // A line that goes on scrolling beside a new text starts over as well.
    scrollPosition_ = 1;
    timer_.setInterval(kScrollDelay);
    timer_.setEnabled(true);
}

void DisplayMirror::scroll(int line, const std::string& text) {
    scrollLine_ = line;
    scrollText_ = text + "  ";
}

void DisplayMirror::DisplayTimer_Tick() {
    if (scrollLine_ == 0) {
        return;
    }
    if (scrollPosition_ > scrollText_.size()) {
        scrollPosition_ = 1;
    }
    std::string window = scrollText_.substr(scrollPosition_ - 1, kDisplayColumns);
    window += scrollText_.substr(0, kDisplayColumns - window.size());
    showLine_(scrollLine_, window);
    ++scrollPosition_;
    timer_.setInterval(kScrollStep);
}

}  // namespace velmora
