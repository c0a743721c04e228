#include "capture/capture_recorder.h"

#include <cmath>

namespace velmora {
namespace {

std::chrono::nanoseconds sinceEpoch(const DateTime& time) {
    const std::chrono::year_month_day day{std::chrono::year(time.year),
                                          std::chrono::month(static_cast<unsigned>(time.month)),
                                          std::chrono::day(static_cast<unsigned>(time.day))};
    return std::chrono::sys_days(day).time_since_epoch() + std::chrono::hours(time.hour) +
           std::chrono::minutes(time.minute) + std::chrono::seconds(time.second);
}

/// Universal time with its fraction of a second, which the clock tells with the local time.
std::chrono::nanoseconds wallTime(const Clock& clock) {
    while (true) {
        const DateTime before = clock.universalTime();
        const double fraction = std::fmod(clock.secondsSinceMidnight(), 1.0);
        if (before == clock.universalTime()) {
            return sinceEpoch(before) + std::chrono::duration_cast<std::chrono::nanoseconds>(
                                            std::chrono::duration<double>(fraction));
        }
    }
}

}  // namespace

CaptureRecorder::CaptureRecorder(const Clock& clock, CaptureTarget& target)
    : clock_(clock), target_(target), monotonicToWall_(wallTime(clock) - clock.monotonic()) {}

CaptureRecorder::~CaptureRecorder() {
    endRun();
}

std::chrono::nanoseconds CaptureRecorder::now() const {
    return monotonicToWall_ + clock_.monotonic();
}

void CaptureRecorder::portOpened(const CapturedPort& port) {
    endRun();
    cutter_.clear();
    portKnown_ = true;
    target_.addPort(port);
}

void CaptureRecorder::received(std::string_view bytes) {
    const std::chrono::nanoseconds time = now();
    if (time - runEnd_ > kPause || run_.bytes.size() + bytes.size() > kLongestRun) {
        endRun();
    }
    if (run_.bytes.empty()) {
        run_.time = time;
        run_.direction = CaptureDirection::Received;
    }
    run_.bytes += bytes;
    runEnd_ = time;
    cutter_.append(bytes);
    bool frameEnded = false;
    while (cutter_.next()) {
        frameEnded = true;
    }
    if (frameEnded) {
        endRun();
    }
}

void CaptureRecorder::sent(std::string_view bytes) {
    endRun();
    add({0, now(), CaptureDirection::Sent, std::string(bytes), {}});
}

void CaptureRecorder::note(std::string_view text) {
    endRun();
    add({0, now(), CaptureDirection::None, {}, {std::string(text)}});
}

void CaptureRecorder::add(const CapturedPacket& packet) {
    if (portKnown_) {
        target_.addPacket(packet);
    }
}

void CaptureRecorder::endRun() {
    if (!run_.bytes.empty()) {
        add(run_);
        run_.bytes.clear();
    }
}

}  // namespace velmora
