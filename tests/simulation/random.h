// The one source of chance: the same numbers on every machine and with every library.
#pragma once

#include <cstdint>
#include <string>

namespace velmora::simulation {

/// Numbers that follow from a seed (SplitMix64).
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }
    /// 0 to `count` - 1. Requires: count > 0.
    std::uint64_t below(std::uint64_t count) { return next() % count; }
    /// `least` to `most`.
    std::uint64_t between(std::uint64_t least, std::uint64_t most) { return least + below(most - least + 1); }
    /// True in `times` of `outOf` cases.
    bool chance(std::uint64_t times, std::uint64_t outOf) { return below(outOf) < times; }
    template <typename List>
    const auto& pick(const List& list) {
        return list[below(std::size(list))];
    }
    std::string bytes(std::size_t count) {
        std::string all(count, '\0');
        for (char& byte : all) {
            byte = static_cast<char>(next());
        }
        return all;
    }

  private:
    std::uint64_t state_;
};

}  // namespace velmora::simulation
