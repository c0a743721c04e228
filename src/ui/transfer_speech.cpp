#include "ui/transfer_speech.h"

#include "transfers/transfer_text.h"

namespace velmora {

void TransferSpeech::transferBegan(const Transfer& /*transfer*/) {}

void TransferSpeech::transferMoved(const Transfer& /*transfer*/) {}

void TransferSpeech::transferEnded(const Transfer& transfer, const TransferEnd& end) {
    if (transfer.kind != TransferKind::Listing && transfer.kind != TransferKind::Clock) {
        say_(describe(transfer, end));
    }
}

}  // namespace velmora
