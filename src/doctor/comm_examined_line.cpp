#include "doctor/comm_examined_line.h"

#include <chrono>
#include <utility>

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A line that takes no byte for this long is held up for good.
constexpr std::uint32_t kStalledWriteMs = 3'000;
/// At the slowest rates that are tried, 110 baud, a byte takes a tenth of a second.
constexpr std::uint32_t kSlowestByteMs = 110;
/// The window's events wait no longer than this.
constexpr ExaminedLine::Time kLongestWait = 50ms;

CommTimeouts waitingTimeouts() {
    CommTimeouts timeouts;
    timeouts.readInterval = 0;
    timeouts.writeTotalMultiplier = kSlowestByteMs;
    timeouts.writeTotalConstant = kStalledWriteMs;
    return timeouts;
}

}  // namespace

CommExaminedLine::CommExaminedLine(CommDevice& device, std::string port, std::string name, EventYield& yield,
                                   std::function<Time()> now)
    : device_(device),
      port_(std::move(port)),
      name_(std::move(name)),
      now_(std::move(now)),
      plain_(device, yield, waitingTimeouts()),
      reader_(device, waitingTimeouts(), now_, kLongestWait, [&yield] { yield.processEvents(); }) {}

CommExaminedLine::~CommExaminedLine() {
    plain_.CommClose();
}

SystemError CommExaminedLine::open(const LineSettings& settings) {
    constexpr bool kRaiseDtr = true;
    return plain_.CommOpen(port_, modeString(settings), kRaiseDtr);
}

bool CommExaminedLine::use(const LineSettings& settings) {
    if (plain_.CommSet(modeString(settings)) != kSuccess) {
        return false;
    }
    check(plain_.CommFlush());
    return true;
}

std::optional<LineSettings> CommExaminedLine::settingsInUse() {
    return device_.settingsInUse();
}

std::optional<std::uint32_t> CommExaminedLine::modemLines() {
    std::uint32_t lines = 0;
    return device_.modemStatus(lines) == kSuccess ? std::optional(lines) : std::nullopt;
}

void CommExaminedLine::check(SystemError error) const {
    if (error != kSuccess) {
        throw LineLost(name_ + ": " + device_.errorMessage(error) + ".");
    }
}

void CommExaminedLine::write(std::string_view bytes) {
    std::size_t taken = 0;
    check(device_.write(bytes, taken));
    if (taken < bytes.size()) {
        throw LineLost(name_ + ": The line did not take the bytes in time.");
    }
}

LineInput CommExaminedLine::read(Time deadline) {
    WaitedBytes waited = reader_.read(deadline);
    check(waited.error);
    return {std::move(waited.bytes), waited.errorFlags};
}

}  // namespace velmora
