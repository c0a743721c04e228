#include "ui/debug_log_model.h"

#include <cmath>

#include "base/number_text.h"

namespace velmora {

namespace {

constexpr const char* kData = "DATA";
constexpr const char* kError = "ERROR";

// Pattern "######0.00": two decimals, no grouping, halves away from zero.
std::string secondsText(double seconds) {
    const long long hundredths = std::llround(seconds * 100);
    const long long size = std::llabs(hundredths);
    const std::string decimals = std::to_string(size % 100);
    return (hundredths < 0 ? "-" : "") + std::to_string(size / 100) + (decimals.size() < 2 ? ".0" : ".") +
           decimals;
}

}  // namespace

DebugLogModel::DebugLogModel(const Clock& clock, DebugLogView& view) : clock_(clock), view_(view) {
    startlog();
}

void DebugLogModel::startlog() {
    startTime_ = toInt32(clock_.secondsSinceMidnight());
}

void DebugLogModel::stamp(const std::string& text, bool polling) {
    view_.appendLine(secondsText(clock_.secondsSinceMidnight() - startTime_) + "\t" + text, polling);
}

bool DebugLogModel::categoryEnabled(std::string_view category) {
    const std::size_t box = boxOf(category);
    switch (showWhat_) {
        case ShowWhat::Everything:
            return true;
        case ShowWhat::Data:
            return category == kData;
        case ShowWhat::Custom:
            return box < kCategories && categories_[box].value == kOn;
    }
    return false;
}

// kCategories when no box is left.
std::size_t DebugLogModel::boxOf(std::string_view category) {
    std::size_t free = kCategories;
    for (std::size_t box = 0; box < kCategories; ++box) {
        if (categories_[box].visible && categories_[box].caption == category) {
            return box;
        }
        const bool reserved = box == kDataBox || box == kErrorBox;
        if (free == kCategories && !categories_[box].visible && !reserved) {
            free = box;
        }
    }
    const std::size_t box = category == kData ? kDataBox : category == kError ? kErrorBox : free;
    if (box < kCategories) {
        categories_[box].caption = category;
        categories_[box].visible = true;
        view_.categoryChanged(box);
    }
    return box;
}

bool DebugLogModel::toggleShown() {
    shown_ = !shown_;
    return shown_;
}

void DebugLogModel::setWindowState(WindowState state) {
    if (state == windowState_) {
        return;
    }
    windowState_ = state;
    if (state == WindowState::Normal) {
        addline(kStartBanner);
    } else {
        addline(logToDisk_ ? kStopBannerDisk : kStopBanner);
    }
}

void DebugLogModel::cbClear_Click() {
    view_.clearLog();
    addline(kStartBanner);
}

void DebugLogModel::obShowWhat_Click(ShowWhat what) {
    showWhat_ = what;
    for (std::size_t box = 0; box < kCategories; ++box) {
        applyMode(box);
    }
}

void DebugLogModel::chkShowWhat_Click(std::size_t index, bool on) {
    if (index >= kCategories) {
        return;
    }
    categories_[index].value = on ? kOn : kOff;
    applyMode(index);
}

// The boxes look active in "Custom" only, where they count.
void DebugLogModel::applyMode(std::size_t index) {
    Category& category = categories_[index];
    if (category.value != kOff) {
        category.value = showWhat_ == ShowWhat::Custom ? kOn : kInactive;
    }
    view_.categoryChanged(index);
}

}  // namespace velmora
