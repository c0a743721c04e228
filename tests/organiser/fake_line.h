// A line in memory under a clock of its own: waiting costs no time.
#pragma once

#include <algorithm>
#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "organiser/organiser_line.h"

namespace velmora::test {

/// Reading moves the clock to the next thing that happens: bytes that arrive, an alarm of the server's end,
/// or the deadline.
class FakeLine : public OrganiserLine {
  public:
    struct Sent {
        Time at;
        std::string bytes;
    };

    void write(std::string_view bytes) override {
        if (gone) {
            throw LineError("The line is gone.");
        }
        sent.push_back({clock, std::string(bytes)});
        if (onWrite) {
            onWrite(sent.back().bytes);
        }
    }

    std::string read(Time deadline) override {
        while (true) {
            if (gone) {
                throw LineError("The line is gone.");
            }
            if (!arriving_.empty() && arriving_.front().first <= clock) {
                std::string bytes = std::move(arriving_.front().second);
                arriving_.pop_front();
                return bytes;
            }
            if (alarm && *alarm <= clock) {
                alarm.reset();
                onAlarm();
                continue;
            }
            if (clock >= deadline) {
                return {};
            }
            Time next = deadline;
            if (!arriving_.empty()) {
                next = std::min(next, arriving_.front().first);
            }
            if (alarm) {
                next = std::min(next, *alarm);
            }
            clock = next;
        }
    }

    Time now() const override { return clock; }

    /// Bytes that reach the Organiser, now or later; of two at the same time the first one first.
    void arrive(std::string bytes, Time delay = Time::zero()) {
        const Time at = clock + delay;
        auto place = arriving_.end();
        while (place != arriving_.begin() && std::prev(place)->first > at) {
            --place;
        }
        arriving_.insert(place, {at, std::move(bytes)});
    }

    Time clock{0};
    std::vector<Sent> sent;
    bool gone = false;
    std::function<void(const std::string&)> onWrite;  ///< the server's end takes the bytes
    std::optional<Time> alarm;                        ///< when the server's end wants to be woken
    std::function<void()> onAlarm;

  private:
    std::deque<std::pair<Time, std::string>> arriving_;
};

}  // namespace velmora::test
