#include "transfers/transfer_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/number_text.h"
#include "base/span_text.h"

namespace velmora {
namespace {

constexpr double kSecond = 1e6;  // microseconds

/// How one speaks of a transfer: what was done, and what was to be done.
struct Words {
    const char* done;
    const char* deed;
};

Words wordsFor(const Transfer& transfer) {
    if (transfer.kind == TransferKind::Clock) {
        return {"told", "answer to"};
    }
    if (transfer.kind == TransferKind::Listing) {
        return {"listed", "listing of"};
    }
    return transfer.direction == TransferDirection::Save ? Words{"saved", "save of"}
                                                         : Words{"loaded", "load of"};
}

/// "16,392 bytes in 17.2 s".
std::string amountText(const Transfer& transfer) {
    return groupedText(static_cast<std::int64_t>(transfer.bytes)) +
           (transfer.bytes == 1 ? " byte in " : " bytes in ") + durationText(transfer);
}

/// Bytes a second; nothing for what took no time worth dividing by.
std::optional<double> rateOf(const Transfer& transfer) {
    constexpr std::chrono::milliseconds kLeast{100};
    if (transfer.duration < kLeast) {
        return std::nullopt;
    }
    return static_cast<double>(transfer.bytes) * kSecond / static_cast<double>(transfer.duration.count());
}

/// ", 2 formulas changed"; empty when none did.
std::string changesText(const Transfer& transfer) {
    const std::size_t count = transfer.remarks.size();
    return count == 0 ? ""
                      : ", " + groupedText(static_cast<std::int64_t>(count)) +
                            (count == 1 ? " formula changed" : " formulas changed");
}

std::string reasonText(const TransferEnd& end) {
    return end.reason + (end.code == 0 ? "" : " (" + std::to_string(end.code) + ")");
}

}  // namespace

std::string describe(const Transfer& transfer, const TransferEnd& end) {
    const Words words = wordsFor(transfer);
    if (end.result == TransferResult::Complete) {
        std::string what = std::string(words.done) + ' ' + transfer.name;
        if (transfer.kind == TransferKind::Clock) {
            return what;
        }
        const std::string rate = rateText(transfer);
        return what + ' ' + amountText(transfer) + (rate.empty() ? "" : " (" + rate + ")") +
               changesText(transfer);
    }
    const std::string what =
        transfer.name.empty() ? "request" : std::string(words.deed) + ' ' + transfer.name;
    return end.result == TransferResult::Refused
               ? what + " refused: " + reasonText(end)
               : what + " incomplete: " + amountText(transfer) + ", " + reasonText(end);
}

std::string endSentence(const Transfer& transfer, const TransferEnd& end) {
    const std::string deed = transfer.direction == TransferDirection::Save ? "Save of " : "Load of ";
    return (transfer.name.empty() ? "Request" : deed + transfer.name) + ": " + resultText(transfer, end);
}

std::string durationText(const Transfer& transfer) {
    const auto tenths = std::llround(static_cast<double>(transfer.duration.count()) * 10 / kSecond);
    return groupedText(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

std::string rateText(const Transfer& transfer) {
    const std::optional<double> rate = rateOf(transfer);
    return rate ? groupedText(std::llround(*rate)) + " bytes/s" : "";
}

std::string resultText(const Transfer& transfer, const TransferEnd& end) {
    if (end.result == TransferResult::Complete) {
        return nameOf(end.result) + changesText(transfer);
    }
    return nameOf(end.result) + (": " + reasonText(end));
}

std::string progressText(const Transfer& transfer) {
    if (transfer.size.value_or(0) == 0) {
        return {};
    }
    constexpr std::chrono::seconds kTelling{1};  // before that the rate says little
    const std::uint64_t size = *transfer.size;
    const std::uint64_t bytes = std::min(transfer.bytes, size);
    std::string share = std::to_string(bytes * 100 / size) + " %";
    if (bytes == 0 || transfer.duration < kTelling) {
        return share;
    }
    const double left = static_cast<double>(size - bytes) / *rateOf(transfer);
    return share + ", " + spanText(std::llround(left)) + " left";
}

const char* nameOf(TransferDirection direction) {
    return direction == TransferDirection::Save ? "save" : "load";
}

const char* nameOf(TransferKind kind) {
    constexpr std::array<const char*, 9> kNames = {"data",    "procedure", "block", "text", "bytes",
                                                   "listing", "sheet",     "boot",  "clock"};
    return kNames[static_cast<std::size_t>(kind)];
}

const char* nameOf(TransferResult result) {
    constexpr std::array<const char*, 3> kNames = {"complete", "incomplete", "refused"};
    return kNames[static_cast<std::size_t>(result)];
}

}  // namespace velmora
