#include "organiser/progress.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>

#include "base/span_text.h"

namespace velmora {
namespace {

/// Leaves room for the rest in a line of 80 characters.
constexpr std::size_t kBarWidth = 12;
/// Without a total the line is drawn again after so many units.
constexpr std::size_t kDrawEvery = 64;

}  // namespace

void Progress::begin(std::string_view /*what*/, std::size_t /*total*/, std::string_view /*unit*/) {}
void Progress::advance(std::size_t /*done*/) {}
void Progress::finish() {}

void ProgressBar::begin(std::string_view what, std::size_t total, std::string_view unit) {
    finish();
    what_ = what;
    unit_ = unit;
    total_ = total;
    done_ = 0;
    drawn_ = 0;
    width_ = 0;
    began_ = clock_.monotonic();
    active_ = true;
    draw();
}

void ProgressBar::advance(std::size_t done) {
    if (!active_) {
        return;
    }
    done_ = total_ > 0 ? std::min(done, total_) : done;
    const std::size_t mark = total_ > 0 ? done_ * 100 / total_ : done_ / kDrawEvery;
    if (mark != drawn_) {
        drawn_ = mark;
        draw();
    }
}

void ProgressBar::draw() {
    if (redraw_) {
        std::string text = line() + pace();
        const std::size_t length = text.size();
        // Blanks take away what a longer line before it has left.
        text.append(width_ - std::min(width_, length), ' ');
        width_ = length;
        out_ << '\r' << text << std::flush;
    }
}

std::string ProgressBar::line() const {
    std::string text = what_ + "  ";
    if (total_ > 0) {
        const std::size_t filled = done_ * kBarWidth / total_;
        text += '[' + std::string(filled, '#') + std::string(kBarWidth - filled, '-') + "]  " +
                std::to_string(done_ * 100 / total_) + " %  " + std::to_string(done_) + " of " +
                std::to_string(total_);
    } else {
        text += std::to_string(done_);
    }
    return text + ' ' + unit_;
}

std::string ProgressBar::pace() const {
    const double seconds = std::chrono::duration<double>(clock_.monotonic() - began_).count();
    if (seconds < 1 || done_ == 0) {
        return {};
    }
    const double rate = static_cast<double>(done_) / seconds;
    std::string text = ", " + std::to_string(std::llround(rate)) + "/s";
    if (active_ && total_ > 0) {
        text += ", " + spanText(std::llround(static_cast<double>(total_ - done_) / rate)) + " left";
    }
    return text;
}

void ProgressBar::finish() {
    if (std::exchange(active_, false)) {
        draw();
        out_ << (redraw_ ? "" : line()) << '\n' << std::flush;
    }
}

}  // namespace velmora
