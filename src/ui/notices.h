// What the desktop tells a user who looks at other programs.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "transfers/transfer.h"

namespace velmora {

/// One notice: a sentence of Windows-1252.
struct Notice {
    std::string text;
    bool fault = false;  ///< something went wrong; else it went well

    bool operator==(const Notice&) const = default;
};

/// Decides what is worth a notice: how each file ended, that the Organiser has stopped the server, that the
/// port is lost. While the user looks at one of the program's windows nothing is, since that shows it all.
/// Neither are listings and the clock, which come with most files, nor what was refused: the Organiser says
/// so, and its user holds that.
class Notices : public TransferObserver {
  public:
    /// Whether one of the program's windows is the active one.
    using UserLooks = std::function<bool()>;
    using Show = std::function<void(const Notice& notice)>;

    Notices(UserLooks userLooks, Show show) : userLooks_(std::move(userLooks)), show_(std::move(show)) {}

    void transferEnded(const Transfer& transfer, const TransferEnd& end) override;

    /// The server's state (ServerState) after each change.
    void serverIs(std::int32_t state);
    /// The port failed while the server ran. `port`: what messages call it, Windows-1252.
    void portLost(const std::string& port);

  private:
    void tell(const Notice& notice) const;

    UserLooks userLooks_;
    Show show_;
};

}  // namespace velmora
