// The transfer that is under way, as the services tell of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/clock.h"
#include "transfers/transfer.h"

namespace velmora {

/// Follows one transfer after the other, since the Organiser asks for one at a time, and passes the news on.
/// The clock and the observers must outlive it.
class Transfers {
  public:
    explicit Transfers(const Clock& clock) : clock_(clock) {}

    /// Adds somebody who hears of all transfers from now on.
    void observe(TransferObserver& observer) { observers_.push_back(&observer); }

    /// The Organiser asks for a transfer. Nothing is told of it yet.
    void ask(Transfer transfer);
    /// It can have it. `size` is how much is to move, where that is known.
    void begin(std::optional<std::uint64_t> size = {});
    /// What the save is about to replace is kept at this path; empty when it replaces nothing.
    void keepsCopy(const std::string& path) { transfer_.earlierCopy = path; }
    /// A cell of the sheet that is being saved deserves a line.
    void remark(const std::string& line) { transfer_.remarks.push_back(line); }
    /// So many bytes more have moved. A transfer that was complete, and goes on, begins anew.
    void moved(std::size_t bytes);
    /// All has arrived.
    void complete();
    /// The Organiser was refused what it asked for: the transfer, or, when it has begun, the rest of it. A
    /// request that belongs to no transfer is told of as one without a name.
    void refuse(int code, std::string reason);
    /// The service lets go of its file: what has not ended ends here.
    void leave();

    bool underWay() const { return stage_ == Stage::UnderWay; }

  private:
    enum class Stage { None, Asked, UnderWay, Over };

    void end(const TransferEnd& end);

    const Clock& clock_;
    std::vector<TransferObserver*> observers_;
    Stage stage_ = Stage::None;
    Transfer transfer_;
    std::chrono::microseconds began_{0};
};

}  // namespace velmora
