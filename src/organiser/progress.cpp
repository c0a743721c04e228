#include "organiser/progress.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace velmora {
namespace {

constexpr std::size_t kBarWidth = 30;
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
        out_ << '\r';
        write();
    }
}

void ProgressBar::write() {
    out_ << what_ << "  ";
    if (total_ > 0) {
        const std::size_t filled = done_ * kBarWidth / total_;
        out_ << '[' << std::string(filled, '#') << std::string(kBarWidth - filled, '-') << "]  "
             << done_ * 100 / total_ << " %  " << done_ << " of " << total_ << ' ' << unit_;
    } else {
        out_ << done_ << ' ' << unit_;
    }
    out_ << std::flush;
}

void ProgressBar::finish() {
    if (std::exchange(active_, false)) {
        draw();
        if (!redraw_) {
            write();
        }
        out_ << '\n' << std::flush;
    }
}

}  // namespace velmora
