// Transfers for those who do not see the window.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "transfers/transfer.h"

namespace velmora {

/// Says how each file ended, in few words: whoever hears them goes on with something else meanwhile. Listings
/// and the clock, which come with most files, are not said.
class TransferSpeech : public TransferObserver {
  public:
    /// Takes one line of Windows-1252.
    using Say = std::function<void(const std::string& words)>;

    explicit TransferSpeech(Say say) : say_(std::move(say)) {}

    void transferEnded(const Transfer& transfer, const TransferEnd& end) override;

  private:
    Say say_;
};

}  // namespace velmora
