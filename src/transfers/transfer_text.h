// A transfer in words.
#pragma once

#include <string>

#include "transfers/transfer.h"

namespace velmora {

/// The end of a transfer as one line of Windows-1252: "saved Journal.odb 16,392 bytes in 17.2 s
/// (953 bytes/s)", with ", 2 formulas changed" behind it for a sheet of which so many will not come back as
/// they were, "save of Journal.odb incomplete: 1,024 bytes in 3.0 s, disk full (186)", "load of
/// Memo.odb refused: no such file (189)", "told TIME".
std::string describe(const Transfer& transfer, const TransferEnd& end);

/// The same of a file, for those who see or hear nothing else of it, and without figures: "Save of
/// Journal.odb: complete", "Load of Memo.odb: refused: no such file (189)".
std::string endSentence(const Transfer& transfer, const TransferEnd& end);

// Parts of such a line, for tables.

/// "17.2 s".
std::string durationText(const Transfer& transfer);
/// "953 bytes/s"; empty for what took no time worth dividing by.
std::string rateText(const Transfer& transfer);
/// "complete", "complete, 2 formulas changed", "incomplete: disk full (186)", "refused: no such file (189)".
std::string resultText(const Transfer& transfer, const TransferEnd& end);
/// How far a transfer is: "45 %, 1:05 left"; only the share until the rate is known, nothing while the size
/// is not.
std::string progressText(const Transfer& transfer);

/// Names that programs may rely on: "save" or "load"; "data", "procedure", "block", "text", "bytes",
/// "listing", "sheet", "boot" or "clock"; "complete", "incomplete" or "refused".
const char* nameOf(TransferDirection direction);
const char* nameOf(TransferKind kind);
const char* nameOf(TransferResult result);

}  // namespace velmora
