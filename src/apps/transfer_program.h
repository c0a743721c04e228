// The user's program that runs after each complete file.
#pragma once

#include <string>

#include "base/system_text.h"
#include "eventloop/program_queue.h"
#include "transfers/transfer.h"
#include "transfers/transfer_text.h"

namespace velmora {

/// Calls a program for each file that was saved or loaded whole: with name, path, "save" or "load" and bytes
/// as arguments, and as VELMORA_NAME, VELMORA_PATH, VELMORA_DIRECTION and VELMORA_BYTES. Listings and the
/// clock are no files. The queue must outlive it.
class TransferProgram : public TransferObserver {
  public:
    explicit TransferProgram(ProgramQueue& queue) : queue_(queue) {}

    void transferEnded(const Transfer& transfer, const TransferEnd& end) override {
        if (!movesFile(transfer) || end.result != TransferResult::Complete) {
            return;
        }
        const std::string name = toSystemText(transfer.name);
        const std::string direction = nameOf(transfer.direction);
        const std::string bytes = std::to_string(transfer.bytes);
        queue_.call({{name, transfer.path, direction, bytes},
                     {{"VELMORA_NAME", name},
                      {"VELMORA_PATH", transfer.path},
                      {"VELMORA_DIRECTION", direction},
                      {"VELMORA_BYTES", bytes}}});
    }

  private:
    ProgramQueue& queue_;
};

}  // namespace velmora
