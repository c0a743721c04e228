#include "organiser/serial_line.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "base/byte_text.h"
#include "base/event_yield.h"
#include "serial/adapter_key.h"
#include "serial/open_diagnosis.h"
#include "serial/port_list.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A line that takes no byte for this long, beside the time of the bytes, is held up for good.
constexpr std::uint32_t kStalledWriteMs = 5'000;
/// The longest single wait for a byte; longer ones are made of several, since not every driver ends a wait
/// when its device goes, but each tells of it when it is asked.
constexpr OrganiserLine::Time kLongestWait = 1s;
constexpr std::uint32_t kBitsPerByte = 10;

/// This program has no user interface that would want its turn.
class NoEvents : public EventYield {
  public:
    void processEvents() override {}
};

/// A read waits for the bytes that it asks for.
CommTimeouts timeoutsAt(int baud) {
    CommTimeouts timeouts;
    timeouts.readInterval = 0;
    timeouts.writeTotalMultiplier = kBitsPerByte * 1'000 / static_cast<std::uint32_t>(baud) + 1;
    timeouts.writeTotalConstant = kStalledWriteMs;
    return timeouts;
}

/// Lets the number stand for the adapter, wherever it is; one that is not there stays a device that does not
/// exist.
void placeAdapter(PortNames& names, int number, const AdapterKey& key) {
    const std::vector<PortIdentity> found = portsMatching(key, listPorts(names));
    if (found.size() > 1) {
        throw LineError(severalSentence(key, found));
    }
    if (!found.empty()) {
        names.setDevice(number, found.front().device);
    }
}

}  // namespace

SerialLine::SerialLine(const std::string& device, int baud)
    : name_(device), device_(makeCommDevice(names_)), timeouts_(timeoutsAt(baud)) {
    const int number = names_.numberFor(device);
    if (const std::optional<AdapterKey> key = adapterKeyOfName(device)) {
        placeAdapter(names_, number, *key);
    }
    const std::string port = "COM" + std::to_string(number);
    NoEvents noEvents;
    PlainComm plain(*device_, noEvents, timeouts_);
    constexpr bool kRaiseDtr = true;
    if (plain.CommOpen(port, std::to_string(baud) + ",N,8,1", kRaiseDtr) != kSuccess) {
        throw LineError(describeOpenFailure(names_.device(number).value_or(name_), plain.lastErrorNumber()));
    }
}

OrganiserLine::Time SerialLine::now() const {
    return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

void SerialLine::check(SystemError error) const {
    if (error != kSuccess) {
        throw LineError(name_ + ": " + toUtf8(device_->errorMessage(error)) + ".");
    }
}

void SerialLine::write(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t taken = 0;
        check(device_->write(bytes, taken));
        if (taken == 0) {
            throw LineError(name_ + ": The line did not take the bytes in time.");
        }
        bytes.remove_prefix(taken);
    }
}

/// What the driver's queue holds, empty when it holds nothing.
std::string SerialLine::takeWaiting() {
    CommStatus status;
    check(device_->clearError(status));
    std::string bytes(status.inQueue, '\0');
    std::size_t taken = 0;
    if (!bytes.empty()) {
        check(device_->read(bytes.data(), bytes.size(), taken));
    }
    bytes.resize(taken);
    return bytes;
}

/// One byte as soon as it comes, empty when none does.
std::string SerialLine::waitForOne(Time atMost) {
    const auto wait =
        static_cast<std::uint32_t>(std::chrono::ceil<std::chrono::milliseconds>(atMost).count());
    if (wait != timeouts_.readTotalConstant) {
        timeouts_.readTotalConstant = wait;
        check(device_->setTimeouts(timeouts_));
    }
    char first = 0;
    std::size_t taken = 0;
    check(device_->read(&first, 1, taken));
    return std::string(taken, first);
}

std::string SerialLine::read(Time deadline) {
    while (true) {
        std::string bytes = takeWaiting();
        const Time left = std::min<Time>(deadline - now(), kLongestWait);
        if (!bytes.empty() || left <= Time::zero()) {
            return bytes;
        }
        bytes = waitForOne(left);
        if (!bytes.empty()) {
            // Those that came with it are in the queue by now.
            return bytes + takeWaiting();
        }
    }
}

}  // namespace velmora
