#include "organiser/serial_line.h"

#include <utility>

#include "base/byte_text.h"
#include "base/event_yield.h"
#include "serial/named_port.h"
#include "serial/open_diagnosis.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A line that takes no byte for this long, beside the time of the bytes, is held up for good.
constexpr std::uint32_t kStalledWriteMs = 5'000;
constexpr OrganiserLine::Time kLongestWait = 1s;
constexpr std::uint32_t kBitsPerByte = 10;

/// A read waits for the bytes that it asks for.
CommTimeouts timeoutsAt(int baud) {
    CommTimeouts timeouts;
    timeouts.readInterval = 0;
    timeouts.writeTotalMultiplier = kBitsPerByte * 1'000 / static_cast<std::uint32_t>(baud) + 1;
    timeouts.writeTotalConstant = kStalledWriteMs;
    return timeouts;
}

/// Gives a named port a number; one that fits several adapters is an error of the line.
int placePort(PortNames& names, const std::string& device) {
    try {
        return placeNamedPort(names, device);
    } catch (const SeveralAdapters& error) {
        throw LineError(error.what());
    }
}

}  // namespace

SerialLine::SerialLine(const std::string& device, int baud)
    : name_(device),
      device_(makeCommDevice(names_)),
      reader_(
          *device_, timeoutsAt(baud), [this] { return now(); }, kLongestWait) {
    const int number = placePort(names_, device);
    const std::string port = "COM" + std::to_string(number);
    NoEvents noEvents;
    PlainComm plain(*device_, noEvents, timeoutsAt(baud));
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

std::string SerialLine::read(Time deadline) {
    WaitedBytes waited = reader_.read(deadline);
    check(waited.error);
    return std::move(waited.bytes);
}

}  // namespace velmora
