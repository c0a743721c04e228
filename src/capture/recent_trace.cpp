#include "capture/recent_trace.h"

#include <utility>

#include "base/moment_text.h"
#include "capture/frame_mask.h"
#include "link/debug.h"

namespace velmora {
namespace {

constexpr std::string_view kServiceLabel = "PLP-->";

/// Takes every line.
class Lines : public TraceSink {
  public:
    bool logging() const override { return true; }
    bool categoryEnabled(std::string_view) override { return true; }
    void addline(const std::string& text) override { line = text; }

    std::string line;
};

std::string timeOfDay(double sinceMidnight) {
    const int whole = static_cast<int>(sinceMidnight);
    const int hundredths = static_cast<int>((sinceMidnight - whole) * 100);
    DateTime moment;
    moment.hour = whole / 3600;
    moment.minute = whole / 60 % 60;
    moment.second = whole % 60;
    return momentText(moment, "hh:mm:ss") + (hundredths < 10 ? ".0" : ".") + std::to_string(hundredths);
}

/// A service is called by the first bytes that the Organiser sends, whatever they are.
std::string maskedLabel(const std::string& label) {
    if (!label.starts_with(kServiceLabel)) {
        return label;
    }
    return std::string(kServiceLabel) + maskedServiceName(label.substr(kServiceLabel.size()));
}

std::string maskedData(const std::string& categories, const std::string& label, const std::string& data) {
    if (categories.find("DATA") == std::string::npos) {
        return data;
    }
    return FrameMask(label == "recv" ? CaptureDirection::Received : CaptureDirection::Sent).mask(data);
}

}  // namespace

void RecentTrace::keep(const Clock& clock, std::function<LinkState()> state, std::size_t entries) {
    clock_ = &clock;
    state_ = std::move(state);
    capacity_ = entries;
}

void RecentTrace::trace(std::string_view categories, std::string_view label, std::string_view data) {
    if (capacity_ > 0) {
        Entry entry;
        if (entries_.size() == capacity_) {
            entry = std::move(entries_.front());  // with the room that its texts have
            entries_.pop_front();
        }
        entry.seconds = clock_->secondsSinceMidnight();
        entry.state = state_();
        entry.categories = categories;
        entry.label = label;
        entry.data = data;
        entries_.push_back(std::move(entry));
    }
    next_.trace(categories, label, data);
}

std::vector<std::string> RecentTrace::lines() const {
    Lines sink;
    Debug words(sink);
    LinkState state = LinkState::Idle;
    words.showStateOf([&state] { return state; });
    std::vector<std::string> lines;
    for (const Entry& entry : entries_) {
        state = entry.state;
        words.trace(entry.categories, maskedLabel(entry.label),
                    maskedData(entry.categories, entry.label, entry.data));
        lines.push_back(timeOfDay(entry.seconds) + "\t" + sink.line);
    }
    return lines;
}

}  // namespace velmora
