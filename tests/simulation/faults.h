// What can go wrong in a step, and what did.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velmora::simulation {

enum class FaultKind : std::uint8_t {
    // On the line, at the `at`-th frame of a direction.
    Drop,
    Corrupt,    ///< bit `amount` is inverted
    Duplicate,  ///< the frame comes twice
    Truncate,   ///< all behind byte `amount` is lost
    Noise,      ///< 1 to 32 bytes of nothing come before it
    Stall,      ///< the direction stands still for `amount` ms
    // On the line, `at` ms after the step began.
    CableCut,  ///< for `amount` ms
    // On the disk, at its `at`-th operation in the step.
    DiskFailure,   ///< it fails with an error that `amount` chooses
    DiskFull,      ///< from then on there is room for `amount` more bytes
    FileRemoved,   ///< another program deletes the file of the step
    FileRenamed,   ///< another program renames it
    PowerFails,    ///< only what was flushed stays; the server is back after `amount` ms
    ServerKilled,  ///< the server's process ends; it is back after `amount` ms
    // `at` ms after the step began; the server is back after `amount` ms.
    PowerFailsMeanwhile,
    ServerKilledMeanwhile,
    ServerStopped,  ///< by its user
};
constexpr std::size_t kFaultKinds = 16;

/// The words for a kind in reports.
const char* faultName(FaultKind kind);

enum class Direction : std::uint8_t { ToServer, ToOrganiser };

/// One fault of a step.
struct Fault {
    FaultKind kind = FaultKind::Drop;
    Direction direction = Direction::ToServer;
    std::uint32_t at = 0;
    std::uint32_t amount = 0;
};

/// The fault in words, for a report.
std::string describe(const Fault& fault);

/// How often each kind came to pass.
using FaultCounts = std::array<std::uint64_t, kFaultKinds>;

/// The faults of the step under way: what happens where is asked here, and counted.
class FaultsOfStep {
  public:
    /// A new step with its faults begins.
    void begin(std::vector<Fault> faults);

    /// What has not come to pass does not come any more.
    void end() { faults_.clear(); }

    /// The faults of the next frame of a direction. Counts them.
    std::vector<Fault> ofNextFrame(Direction direction);
    /// The faults of the next operation of the disk. Counts them.
    std::vector<Fault> ofNextDiskOperation();
    /// The faults that are due at a time after the begin, in ms, once each. Counts them.
    std::vector<Fault> ofTime(std::uint64_t milliseconds);

    /// Whether any fault of the step came to pass.
    bool any() const { return happened_ > 0; }
    /// Whether one of a kind did.
    bool any(FaultKind kind) const { return inStep_[static_cast<std::size_t>(kind)] > 0; }
    const FaultCounts& counts() const { return counts_; }

  private:
    template <typename Applies>
    std::vector<Fault> take(Applies applies);

    std::vector<Fault> faults_;
    std::array<std::uint32_t, 2> frames_{};
    std::uint32_t operations_ = 0;
    std::size_t happened_ = 0;
    FaultCounts inStep_{};
    FaultCounts counts_{};
};

}  // namespace velmora::simulation
