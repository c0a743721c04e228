#include "faults.h"

#include <utility>

namespace velmora::simulation {
namespace {

bool isOfLine(FaultKind kind) {
    return kind <= FaultKind::Stall;
}
bool isOfDisk(FaultKind kind) {
    return kind >= FaultKind::DiskFailure && kind <= FaultKind::ServerKilled;
}

}  // namespace

const char* faultName(FaultKind kind) {
    constexpr std::array<const char*, kFaultKinds> kNames = {
        "frame lost",
        "frame damaged",
        "frame doubled",
        "frame cut short",
        "noise on the line",
        "line stalled",
        "cable cut and mended",
        "file operation failed",
        "disk full",
        "file removed by another program",
        "file renamed by another program",
        "power failed in a file operation",
        "server killed in a file operation",
        "power failed",
        "server killed and started anew",
        "server stopped and started",
    };
    return kNames[static_cast<std::size_t>(kind)];
}

std::string describe(const Fault& fault) {
    std::string text = faultName(fault.kind);
    if (isOfLine(fault.kind)) {
        text +=
            fault.direction == Direction::ToServer ? " to the server, frame " : " to the Organiser, frame ";
    } else {
        text += isOfDisk(fault.kind) ? ", operation " : ", after ms ";
    }
    return text + std::to_string(fault.at) + ", amount " + std::to_string(fault.amount);
}

void FaultsOfStep::begin(std::vector<Fault> faults) {
    faults_ = std::move(faults);
    frames_ = {};
    operations_ = 0;
    happened_ = 0;
    inStep_ = {};
}

template <typename Applies>
std::vector<Fault> FaultsOfStep::take(Applies applies) {
    std::vector<Fault> taken;
    for (auto fault = faults_.begin(); fault != faults_.end();) {
        if (!applies(*fault)) {
            ++fault;
            continue;
        }
        ++happened_;
        ++inStep_[static_cast<std::size_t>(fault->kind)];
        ++counts_[static_cast<std::size_t>(fault->kind)];
        taken.push_back(*fault);
        fault = faults_.erase(fault);
    }
    return taken;
}

std::vector<Fault> FaultsOfStep::ofNextFrame(Direction direction) {
    const std::uint32_t frame = frames_[static_cast<std::size_t>(direction)]++;
    return take([&](const Fault& fault) {
        return isOfLine(fault.kind) && fault.direction == direction && fault.at == frame;
    });
}

std::vector<Fault> FaultsOfStep::ofNextDiskOperation() {
    const std::uint32_t operation = operations_++;
    return take([&](const Fault& fault) { return isOfDisk(fault.kind) && fault.at == operation; });
}

std::vector<Fault> FaultsOfStep::ofTime(std::uint64_t milliseconds) {
    return take([&](const Fault& fault) {
        return !isOfLine(fault.kind) && !isOfDisk(fault.kind) && fault.at <= milliseconds;
    });
}

}  // namespace velmora::simulation
