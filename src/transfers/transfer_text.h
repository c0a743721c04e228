// A transfer in words.
#pragma once

#include <string>

#include "transfers/transfer.h"

namespace velmora {

/// The end of a transfer as one line of Windows-1252: "saved Journal.odb 16,392 bytes in 17.2 s
/// (953 bytes/s)", "save of Journal.odb incomplete: 1,024 bytes in 3.0 s, disk full (186)", "load of
/// Memo.odb refused: no such file (189)", "told TIME".
std::string describe(const Transfer& transfer, const TransferEnd& end);

/// Names that programs may rely on: "save" or "load"; "data", "procedure", "block", "text", "bytes",
/// "listing", "sheet", "boot" or "clock"; "complete", "incomplete" or "refused".
const char* nameOf(TransferDirection direction);
const char* nameOf(TransferKind kind);
const char* nameOf(TransferResult result);

}  // namespace velmora
