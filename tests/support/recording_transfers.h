// An observer of transfers that keeps what it hears.
#pragma once

#include <string>
#include <vector>

#include "transfers/transfer.h"
#include "transfers/transfer_text.h"

namespace velmora::test {

/// The ended transfers, and how often the others were told of.
class RecordingTransfers : public TransferObserver {
  public:
    struct Ended {
        Transfer transfer;
        TransferEnd end;
    };

    void transferBegan(const Transfer& transfer) override {
        ++began;
        running = transfer;
    }
    void transferMoved(const Transfer& transfer) override {
        ++moved;
        running = transfer;
    }
    void transferEnded(const Transfer& transfer, const TransferEnd& ending) override {
        ended.push_back({transfer, ending});
    }

    /// The ends as lines; forgets them.
    std::vector<std::string> lines() {
        std::vector<std::string> result;
        for (const Ended& one : ended) {
            result.push_back(describe(one.transfer, one.end));
        }
        ended.clear();
        return result;
    }

    int began = 0;
    int moved = 0;
    Transfer running;  ///< as it was last told of
    std::vector<Ended> ended;
};

}  // namespace velmora::test
