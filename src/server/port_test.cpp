#include "server/port_test.h"

#include <cstddef>
#include <optional>
#include <string>

#include "server/port_status.h"

namespace velmora {

namespace {

constexpr double kAnswerSeconds = 0.25;
// The wait is left out around midnight, where the clock would start again.
constexpr double kMidnightGuardSeconds = 1.0;
constexpr std::size_t kReadBytes = 1024;
// A clock that shows the same time this often stands still; even a coarse one moves on long before.
constexpr int kClockStands = 500'000;

constexpr std::int16_t truth(bool value) {
    return value ? -1 : 0;
}

// Measures the time for an answer; ends early when the clock fails as one.
class AnswerTime {
  public:
    explicit AnswerTime(const Clock& clock) : clock_(clock), begin_(clock.secondsSinceMidnight()) {}

    bool lasts() {
        const double now = clock_.secondsSinceMidnight();
        unchanged_ = now == last_ ? unchanged_ + 1 : 0;
        last_ = now;
        return now > kMidnightGuardSeconds && now >= begin_ && now < begin_ + kAnswerSeconds &&
               unchanged_ < kClockStands;
    }

  private:
    const Clock& clock_;
    double begin_;
    double last_ = -1;
    int unchanged_ = 0;
};

std::optional<std::int32_t> judge(const std::string& answer) {
    if (answer.starts_with("AT") || answer.substr(0, 10).find("OK") != std::string::npos) {
        return kStatusModem;
    }
    if (!answer.empty()) {
        return kStatusDevice;
    }
    return std::nullopt;
}

std::int32_t probeModem(SerialPort& port, const Clock& clock, EventYield& yield) {
    if (!port.Send("AT\r")) {
        return kStatusError;
    }
    std::string answer;
    for (AnswerTime time(clock); time.lasts();) {
        std::string bytes;
        if (!port.GetInput(kReadBytes, bytes)) {
            return kStatusError;
        }
        answer += bytes;
        if (const auto status = judge(answer)) {
            return *status;
        }
        yield.processEvents();
    }
    return kStatusAvailable;
}

std::int32_t openPort(SerialPort& port) {
    try {
        return port.OpenPort() ? kStatusAvailable : kStatusError;
    } catch (const CommError& error) {
        switch (error.number()) {
            case kCommInvalidPort:
                return kStatusNotAccessible;
            case kCommAlreadyOpen:
                return kStatusInUse;
            default:
                return kStatusError;
        }
    }
}

}  // namespace

bool portTestProbes(std::int16_t flags, bool dontTestModem) {
    const int wanted = truth((flags & kProbeModem) != 0) | truth(!dontTestModem);
    return (wanted & ~(flags & kNoProbe)) != 0;
}

std::int32_t testPort(SerialPort& port, std::int16_t number, bool probe, const Clock& clock,
                      EventYield& yield) {
    port.setCommPort(number);
    std::int32_t status = openPort(port);
    if (status != kStatusAvailable) {
        return status;
    }
    if (probe) {
        try {
            status = probeModem(port, clock, yield);
        } catch (const CommError&) {
            status = kStatusError;
        }
    }
    port.ClosePort();
    return status;
}

}  // namespace velmora
