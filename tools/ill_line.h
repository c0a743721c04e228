// A line with illnesses: what becomes of the bytes that go into it.
#pragma once

#include <chrono>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "illness.h"
#include "serial/bit_sampling.h"

namespace velmora::tools {

/// Computes, bit by bit where settings differ, what arrives of what is sent. Bytes of one call follow each
/// other without a pause. Has no clock: callers say what time it is.
class IllLine {
  public:
    using Time = std::chrono::nanoseconds;
    using Bytes = std::vector<SampledByte>;

    /// The same seed gives the same line.
    IllLine(Illness illness, std::uint64_t seed);

    /// What the handheld gets of what the computer sends with its settings.
    Bytes toHandheld(std::string_view bytes, const LineSettings& computer);
    /// What the computer gets of what the handheld sends.
    Bytes toComputer(std::string_view bytes, const LineSettings& computer);
    /// What comes back to the computer of what it sends.
    Bytes backToComputer(std::string_view bytes, const LineSettings& computer);
    /// What reaches the computer from the line itself since the last call.
    Bytes unasked(Time now, const LineSettings& computer);
    /// When unasked will have something; Time::max() for never.
    Time nextUnasked() const;

  private:
    Bytes carried(std::string_view bytes, const LineSettings& sender, const LineSettings& receiver);
    std::string modemAnswer(const Bytes& heard);
    bool happens(double probability);

    Illness illness_;
    std::mt19937_64 random_;
    std::string command_;  // that the modem is being told
    Time next_{0};
};

/// Only the values.
std::string valuesOf(const IllLine::Bytes& bytes);

}  // namespace velmora::tools
