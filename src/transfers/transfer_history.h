// The transfers of earlier runs.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "base/files.h"
#include "base/path_rules.h"
#include "base/timer.h"
#include "transfers/transfer.h"

namespace velmora {

/// Remembers how transfers ended, in a text file with one JSON object a line (transfer_json.h), the latest
/// last. What it hears is written a little later, so that no transfer waits for the disk, and when it is
/// destroyed. Holds references only; all of them must outlive it.
class TransferHistory : public TransferObserver {
  public:
    /// `path`: the file; its folder is made when it is first needed, for this user alone. The timer is the
    /// history's own. `complain` is told, in the system's encoding, why what happened could not be
    /// remembered.
    TransferHistory(Files& files, const PathRules& rules, std::string path, Timer& timer,
                    std::function<void(const std::string& why)> complain);
    ~TransferHistory() override;
    TransferHistory(const TransferHistory&) = delete;
    TransferHistory& operator=(const TransferHistory&) = delete;

    /// Those that are remembered, the latest last; lines that are none are left out. Never fails. Call it
    /// once, before the first transfer.
    std::vector<EndedTransfer> load();
    /// Writes what waits to be written.
    void save();

    void transferEnded(const Transfer& transfer, const TransferEnd& end) override;

    /// So many are remembered; the file may have twice as many until it is written anew.
    static constexpr std::size_t kRemembered = 1'000;
    /// Of a longer file only the end is read.
    static constexpr std::uint64_t kLongestRead = 16 * 1024 * 1024;

  private:
    std::string readEnd();
    void append();
    void writeAnew();

    Files& files_;
    const PathRules& rules_;
    std::string path_;
    Timer& timer_;
    std::function<void(const std::string& why)> complain_;
    std::deque<std::string> lines_;  // of all that are remembered
    std::size_t written_ = 0;        // lines in the file
    std::size_t waiting_ = 0;        // of the last lines, not yet in the file
};

}  // namespace velmora
