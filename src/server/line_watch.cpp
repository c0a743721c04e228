#include "server/line_watch.h"

#include <utility>

#include "doctor/unframed.h"

namespace velmora {
namespace {

/// More is not needed to judge by, and a line that never falls silent must not fill the memory.
constexpr std::size_t kMostBytes = 4096;

}  // namespace

LineWatch::LineWatch(LineWatchParts parts) : parts_(std::move(parts)) {}

void LineWatch::portOpened(std::intptr_t /*handle*/) {
    silentSince_ = parts_.clock.monotonic();
    everHeard_ = false;
    silenceTold_ = false;
    told_.reset();
    listener_.reset();
}

void LineWatch::portRead(std::string_view bytes) {
    everHeard_ = true;
    if (parts_.linkState() != LinkState::WaitLink) {
        listener_.reset();
        return;
    }
    const Time now = parts_.clock.monotonic();
    if (!listener_ || listener_->heard().bytes.size() > kMostBytes || now - lastHeard_ > kStrangeTime) {
        const auto settings = parseModeString(parts_.settings());
        listener_.emplace(parts_.crc, settings.value_or(LineSettings()));
        strangeSince_ = now;
    }
    lastHeard_ = now;
    if (!listener_->take(bytes, 0).empty()) {
        listener_.reset();
        told_.reset();
    }
}

/// The link asks every half second for as long as nobody answers.
void LineWatch::portWriting(std::string_view /*bytes*/) {
    if (parts_.linkState() != LinkState::WaitLink) {
        return;
    }
    const Time silent = parts_.clock.monotonic() - silentSince_;
    if (listener_ && lastHeard_ - strangeSince_ >= kStrangeTime) {
        tellOfStrangeBytes();
    } else if (!everHeard_ && !silenceTold_ && silent >= kSilentTime) {
        silenceTold_ = true;
        parts_.tell("Nothing has come for a minute.", parts_.findOut);
    }
}

void LineWatch::tellOfStrangeBytes() {
    const Heard& heard = listener_->heard();
    const Unframed likely = judgeUnframed(parts_.crc, heard.bytes, heard.settings);
    if (std::exchange(told_, likely.cause) != likely.cause) {
        const std::string uses = likely.settings
                                     ? "The Organiser uses " + settingsInWords(*likely.settings) + "."
                                     : std::string(wordsOf(likely.cause).finding);
        parts_.tell("Bytes come that make no frame.", uses);
    }
}

}  // namespace velmora
