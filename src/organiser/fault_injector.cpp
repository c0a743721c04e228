#include "organiser/fault_injector.h"

#include <algorithm>

namespace velmora {
namespace {

/// 0 up to, not including, 1. The standard's distributions may differ between libraries; a seed must not.
double fraction(std::uint64_t bits) {
    return static_cast<double>(bits >> 11U) / 9'007'199'254'740'992.0;  // 2 to the 53rd
}

}  // namespace

FaultInjector::FaultInjector(OrganiserLine& line, const FaultOptions& options)
    : line_(line), options_(options) {
    // Different sequences in the two directions, both fixed by the seed.
    out_.random.seed(options.seed);
    in_.random.seed(~options.seed);
}

/// Decides a frame's fate. Four numbers are drawn whatever happens, so that changing one probability leaves
/// the other decisions as they are.
void FaultInjector::pass(Direction& direction, std::string_view frame) {
    ++direction.counts.frames;
    const bool drop = fraction(direction.random()) < options_.drop;
    const bool corrupt = fraction(direction.random()) < options_.corrupt;
    const bool duplicate = fraction(direction.random()) < options_.duplicate;
    const std::uint64_t where = direction.random();
    if (drop) {
        ++direction.counts.dropped;
        return;
    }
    std::string bytes(frame);
    if (corrupt && !bytes.empty()) {
        ++direction.counts.corrupted;
        const std::size_t bit = where % (bytes.size() * 8);
        bytes[bit / 8] = static_cast<char>(static_cast<unsigned char>(bytes[bit / 8]) ^ (1U << (bit % 8)));
    }
    const Time due = line_.now() + options_.delay;
    if (duplicate) {
        ++direction.counts.duplicated;
        direction.held.push_back({due, bytes});
    }
    direction.held.push_back({due, std::move(bytes)});
}

/// Sends what has been held long enough.
void FaultInjector::release() {
    while (!out_.held.empty() && out_.held.front().due <= line_.now()) {
        const std::string bytes = std::move(out_.held.front().bytes);
        out_.held.pop_front();
        line_.write(bytes);
    }
}

void FaultInjector::write(std::string_view bytes) {
    release();
    pass(out_, bytes);
    release();
}

std::string FaultInjector::read(Time deadline) {
    while (true) {
        release();
        if (!in_.held.empty() && in_.held.front().due <= line_.now()) {
            std::string bytes = std::move(in_.held.front().bytes);
            in_.held.pop_front();
            return bytes;
        }
        Time wake = deadline;
        for (const Direction* direction : {&out_, &in_}) {
            if (!direction->held.empty()) {
                wake = std::min(wake, direction->held.front().due);
            }
        }
        const std::string bytes = line_.read(wake);
        cutter_.append(bytes);
        while (const auto frame = cutter_.next()) {
            pass(in_, *frame);
        }
        if (bytes.empty() && line_.now() >= deadline) {
            release();
            if (in_.held.empty() || in_.held.front().due > line_.now()) {
                return {};
            }
        }
    }
}

}  // namespace velmora
