// Transfers for those who do not see the window.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "transfers/transfer.h"

namespace velmora {

/// Says how each file ended, as the server without a window prints it. Listings and the clock, which come
/// with most files, are not said.
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
