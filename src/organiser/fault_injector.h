// A bad cable on purpose: loses, damages, doubles and delays frames.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <string_view>

#include "link/frame_cutter.h"
#include "organiser/organiser_line.h"

namespace velmora {

/// What happens to a frame, in both directions. Probabilities are 0 (never) to 1 (always).
struct FaultOptions {
    double drop = 0;
    double corrupt = 0;    ///< one bit of the frame is inverted
    double duplicate = 0;  ///< the frame comes twice
    OrganiserLine::Time delay{0};
    std::uint64_t seed = 1;

    /// Whether a line with these options differs from one without.
    bool any() const { return drop > 0 || corrupt > 0 || duplicate > 0 || delay > delay.zero(); }
};

/// Wraps a line. The fate of the n-th frame of a direction depends on the seed and n alone, not on the time
/// and not on the other direction. Received bytes that belong to no frame are lost.
class FaultInjector : public OrganiserLine {
  public:
    struct Counts {
        std::size_t frames = 0;
        std::size_t dropped = 0;
        std::size_t corrupted = 0;
        std::size_t duplicated = 0;
    };

    /// `line` must outlive the injector.
    FaultInjector(OrganiserLine& line, const FaultOptions& options);

    /// Every call is one frame. A delayed frame leaves during a later read.
    void write(std::string_view bytes) override;
    std::string read(Time deadline) override;
    Time now() const override { return line_.now(); }

    const Counts& sent() const { return out_.counts; }
    const Counts& received() const { return in_.counts; }

  private:
    struct Held {
        Time due;
        std::string bytes;
    };
    struct Direction {
        std::mt19937_64 random;
        std::deque<Held> held;
        Counts counts;
    };

    void pass(Direction& direction, std::string_view frame);
    void release();

    OrganiserLine& line_;
    FaultOptions options_;
    Direction out_;
    Direction in_;
    FrameCutter cutter_;
};

}  // namespace velmora
