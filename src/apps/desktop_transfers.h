// The transfers of the desktop program: those of earlier runs, and their window.
#pragma once

#include "apps/platform_parts.h"
#include "apps/server_core.h"
#include "eventloop/qt_timer.h"
#include "link/debug.h"
#include "transfers/transfer_history.h"
#include "ui/qt/frm_transfers.h"
#include "ui/transfer_list.h"

namespace velmora {

/// Lists and remembers what a server transfers. Platform and trace must outlive it, and it the server.
class DesktopTransfers {
  public:
    /// Reads what is remembered. `trace` is told of what cannot be.
    DesktopTransfers(PlatformParts& platform, TraceSink& trace);

    /// Follows the transfers of a server; call it once.
    void follow(ServerCore& server);
    void show() { window_.present(); }
    void close() { window_.close(); }
    QWidget& window() { return window_; }

  private:
    QtTimer timer_;
    TransferHistory history_;
    TransferList list_;
    frmTransfers window_;
};

}  // namespace velmora
