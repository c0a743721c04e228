// What a transfer is, and who hears of it.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/clock.h"

namespace velmora {

/// As the Organiser's user says it.
enum class TransferDirection {
    Save,  ///< from the Organiser to this machine
    Load,  ///< from this machine to the Organiser
};

/// What moves.
enum class TransferKind {
    Data,       ///< a data file, record by record
    Procedure,  ///< a procedure
    Block,      ///< another file of the Organiser, as an image
    Text,       ///< lines of any file
    Bytes,      ///< bytes of any file
    Listing,    ///< the names of a folder's files
    Sheet,      ///< a spreadsheet, cell by cell
    Boot,       ///< machine code
    Clock,      ///< the date and time
};

/// One transfer, from the request on. Texts are Windows-1252 bytes.
struct Transfer {
    std::string name;  ///< as the PC calls the file; as the Organiser did where that leads nowhere
    std::string path;  ///< of the file, in the system's encoding; empty when there is none
    TransferDirection direction = TransferDirection::Save;
    TransferKind kind = TransferKind::Data;
    std::optional<std::uint64_t> size = {};  ///< bytes that are to move, where that is known beforehand
    std::uint64_t bytes = 0;                 ///< that have moved
    DateTime began = {};                     ///< universal time
    std::chrono::microseconds duration{0};   ///< from the beginning to the last news
    std::string earlierCopy = {};  ///< of the file that the save replaces, in the system's encoding; or empty
    /// Lines about cells of a saved sheet: the formulas that will not come back as they were, and, when it
    /// could not be saved, those to blame.
    std::vector<std::string> remarks = {};
};

/// Whether it moves a file's contents. Listings and the clock are asked for beside them.
inline bool movesFile(const Transfer& transfer) {
    return transfer.kind != TransferKind::Listing && transfer.kind != TransferKind::Clock;
}

/// How a transfer may end.
enum class TransferResult {
    Complete,    ///< all of it arrived, and a saved file is on the disk
    Incomplete,  ///< it broke off on the way
    Refused,     ///< nothing of it moved
};

/// The end of a transfer.
struct TransferEnd {
    TransferResult result = TransferResult::Complete;
    int code = 0;             ///< what the Organiser was told; 0 when it was not told of a failure
    std::string reason = {};  ///< why it is not complete, in words
};

/// A transfer that is over.
struct EndedTransfer {
    Transfer transfer;
    TransferEnd end;
};

/// Hears of every transfer, in the order of its life, between two messages of the link; of the way only where
/// it wants to. Must neither throw nor wait, and not touch the server.
class TransferObserver {
  public:
    virtual ~TransferObserver() = default;

    virtual void transferBegan(const Transfer& /*transfer*/) {}
    /// More bytes have moved. Called for every message.
    virtual void transferMoved(const Transfer& /*transfer*/) {}
    /// A refused transfer has not begun before.
    virtual void transferEnded(const Transfer& transfer, const TransferEnd& end) = 0;
};

}  // namespace velmora
