#include "ill_cable.h"

#include <utility>

namespace velmora::tools {
namespace {

/// What chance there is in a line is the same in every run.
constexpr std::uint64_t kSeed = 1;

}  // namespace

IllCable::IllCable(const Illness& illness, const CableEnd& first) : line_(illness, kSeed), first_(first) {}

CableDirection::Change IllCable::fromFirst() {
    return [this](std::string_view bytes) {
        const LineSettings settings = first_.settings();
        returned_ += valuesOf(line_.backToComputer(bytes, settings));
        return valuesOf(line_.toHandheld(bytes, settings));
    };
}

CableDirection::Change IllCable::toFirst() {
    return [this](std::string_view bytes) { return valuesOf(line_.toComputer(bytes, first_.settings())); };
}

std::string IllCable::takeForFirst(Time now) {
    return std::exchange(returned_, {}) + valuesOf(line_.unasked(now.time_since_epoch(), first_.settings()));
}

IllCable::Time IllCable::nextUnasked() const {
    const IllLine::Time next = line_.nextUnasked();
    return next == IllLine::Time::max() ? Time::max() : Time(next);
}

}  // namespace velmora::tools
