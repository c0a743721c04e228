// A transfer as an object for programs.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>

#include "transfers/transfer.h"

namespace velmora {

// The members, whose names programs may rely on. Texts are UTF-8, whatever they were before.

/// "name", "path", "direction" and "kind" as nameOf has them, "size" where it is known.
void addTransfer(nlohmann::ordered_json& object, const Transfer& transfer);
/// "bytes" and "seconds" so far.
void addAmount(nlohmann::ordered_json& object, const Transfer& transfer);
/// "result" as nameOf has it, "code", "reason"; "earlierCopy" and "remarks" where there are any.
void addEnd(nlohmann::ordered_json& object, const Transfer& transfer, const TransferEnd& end);

/// An ended transfer with all members of the above and "began"; what may be missing may be missing. Nothing
/// for any other value. Texts are in our own encodings again.
std::optional<EndedTransfer> endedTransferOf(const nlohmann::ordered_json& object);
/// The object of an ended transfer.
nlohmann::ordered_json objectOf(const EndedTransfer& ended);

}  // namespace velmora
