#include "simulated_line.h"

#include <algorithm>
#include <utility>

#include "link/frame_cutter.h"
#include "link/frames.h"

namespace velmora::simulation {
namespace {

Time inMicroseconds(std::chrono::nanoseconds span) {
    return std::chrono::ceil<Time>(span);
}

}  // namespace

SimulatedLine::SimulatedLine(const VirtualTime& time, FaultsOfStep& faults, Journal& journal, Random random)
    : time_(time), faults_(faults), journal_(journal), random_(random) {
    crc_.load_CRCtable();
}

void SimulatedLine::setRate(unsigned baud) {
    constexpr std::uint64_t kBitsOfByte = 10;
    byteTime_ = std::chrono::nanoseconds(kBitsOfByte * 1'000'000'000U / baud);
}

void SimulatedLine::setConnected(bool connected) {
    connected_ = connected;
    if (!connected) {
        discard(Direction::ToServer);
        discard(Direction::ToOrganiser);
    }
}

Time SimulatedLine::end(const Stretch& stretch) const {
    return stretch.begin + inMicroseconds(byteTime_ * stretch.bytes.size()) + delay_;
}

std::size_t SimulatedLine::arrived(const Stretch& stretch) const {
    const Time since = time_.now() - delay_ - stretch.begin;
    if (since <= Time::zero()) {
        return 0;
    }
    return std::min<std::size_t>(stretch.bytes.size(), static_cast<std::size_t>(since / byteTime_));
}

void SimulatedLine::send(Direction direction, std::string_view frame) {
    journal_.note(time_.now(), direction == Direction::ToServer ? ">" : "<", frame);
    if (direction == Direction::ToOrganiser) {
        watch_.serverSent(crc_, frame);
    }
    std::string bytes(frame);
    for (const Fault& fault : faults_.ofNextFrame(direction)) {
        switch (fault.kind) {
            case FaultKind::Drop:
                bytes.clear();
                break;
            case FaultKind::Corrupt:
                bytes = bytes.empty() ? bytes : damaged(frame, fault.amount);
                break;
            case FaultKind::Duplicate:
                bytes += bytes;
                break;
            case FaultKind::Truncate:
                bytes.resize(std::min<std::size_t>(bytes.size(), fault.amount % frame.size()));
                break;
            case FaultKind::Noise:
                bytes.insert(0, random_.bytes(1 + fault.amount % 32));
                break;
            default:
                idleFrom_[index(direction)] = std::max(idleFrom_[index(direction)], time_.now()) +
                                              std::chrono::milliseconds(fault.amount);
        }
    }
    transmit(direction, std::move(bytes));
}

void SimulatedLine::transmit(Direction direction, std::string bytes) {
    const Time begin = std::max(idleFrom_[index(direction)], time_.now());
    idleFrom_[index(direction)] = begin + inMicroseconds(byteTime_ * bytes.size());
    if (connected_ && !bytes.empty()) {
        queues_[index(direction)].push_back({begin, std::move(bytes), 0});
    }
}

/// The frame with a bit inverted, so that it does not read as another frame: a check sum of 16 bits lets one
/// of 65,536 such damages pass, which is the protocol's and not the server's.
std::string SimulatedLine::damaged(std::string_view frame, std::uint32_t bit) const {
    for (;; ++bit) {
        std::string bytes(frame);
        char& byte = bytes[(bit / 8) % bytes.size()];
        byte = static_cast<char>(byte ^ (1 << (bit % 8)));
        if (!readsAsAnother(bytes, frame)) {
            return bytes;
        }
    }
}

bool SimulatedLine::readsAsAnother(std::string_view damagedFrame, std::string_view frame) const {
    FrameCutter cutter;
    cutter.append(damagedFrame);
    while (const auto cut = cutter.next()) {
        if (*cut != frame && parseFrame(crc_, *cut)) {
            return true;
        }
    }
    return false;
}

bool SimulatedLine::silent() const {
    return std::all_of(queues_.begin(), queues_.end(), [&](const std::deque<Stretch>& queue) {
        return queue.empty() || end(queue.back()) <= time_.now();
    });
}

std::size_t SimulatedLine::waiting(Direction direction) const {
    std::size_t count = 0;
    for (const Stretch& stretch : queues_[index(direction)]) {
        const std::size_t here = arrived(stretch);
        count += here - stretch.taken;
        if (here < stretch.bytes.size()) {
            break;
        }
    }
    return count;
}

std::string SimulatedLine::take(Direction direction, std::size_t most) {
    std::deque<Stretch>& queue = queues_[index(direction)];
    std::string bytes;
    while (!queue.empty() && bytes.size() < most) {
        Stretch& stretch = queue.front();
        const std::size_t count = std::min(arrived(stretch) - stretch.taken, most - bytes.size());
        bytes.append(stretch.bytes, stretch.taken, count);
        stretch.taken += count;
        if (stretch.taken < stretch.bytes.size()) {
            break;
        }
        queue.pop_front();
    }
    return bytes;
}

std::optional<Time> SimulatedLine::nextArrival(Direction direction) const {
    const std::deque<Stretch>& queue = queues_[index(direction)];
    return queue.empty() ? std::nullopt : std::optional(end(queue.front()));
}

}  // namespace velmora::simulation
