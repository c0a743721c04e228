#include "ui/notices.h"

#include "link/server_state.h"
#include "transfers/transfer_text.h"

namespace velmora {

void Notices::transferEnded(const Transfer& transfer, const TransferEnd& end) {
    if (movesFile(transfer) && end.result != TransferResult::Refused) {
        tell({endSentence(transfer, end), end.result == TransferResult::Incomplete});
    }
}

void Notices::serverIs(std::int32_t state) {
    if (state == OnExit || state == Shutdown) {
        tell({"The server was stopped by the Organiser."});
    }
}

void Notices::portLost(const std::string& port) {
    tell({"The port " + port + " is lost.", true});
}

void Notices::tell(const Notice& notice) const {
    if (!userLooks_()) {
        show_(notice);
    }
}

}  // namespace velmora
