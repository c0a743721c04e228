#include "ui/transfer_speech.h"

#include "transfers/transfer_text.h"

namespace velmora {

void TransferSpeech::transferEnded(const Transfer& transfer, const TransferEnd& end) {
    if (movesFile(transfer)) {
        say_(endSentence(transfer, end));
    }
}

}  // namespace velmora
