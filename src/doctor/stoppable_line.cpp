#include "doctor/stoppable_line.h"

#include <algorithm>
#include <chrono>

namespace velmora {
namespace {

constexpr ExaminedLine::Time kLook = std::chrono::milliseconds(20);

}  // namespace

LineInput StoppableLine::read(Time deadline) {
    LineInput input;
    do {
        if (stopWanted_ && stopWanted_()) {
            throw ExaminationStopped();
        }
        LineInput more = line_.read(std::min(deadline, now() + kLook));
        input.bytes += more.bytes;
        input.errorFlags |= more.errorFlags;
    } while (input.bytes.empty() && now() < deadline);
    return input;
}

}  // namespace velmora
