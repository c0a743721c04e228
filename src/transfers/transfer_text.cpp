#include "transfers/transfer_text.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "base/number_text.h"

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

/// "17.2": a time in seconds.
std::string secondsText(std::chrono::microseconds duration) {
    const auto tenths = std::llround(static_cast<double>(duration.count()) * 10 / kSecond);
    return groupedText(tenths / 10) + '.' + std::to_string(tenths % 10);
}

/// "16,392 bytes in 17.2 s".
std::string amountText(const Transfer& transfer) {
    return groupedText(static_cast<std::int64_t>(transfer.bytes)) +
           (transfer.bytes == 1 ? " byte in " : " bytes in ") + secondsText(transfer.duration) + " s";
}

/// " (953 bytes/s)"; empty for what took no time worth dividing by.
std::string rateText(const Transfer& transfer) {
    constexpr std::chrono::milliseconds kLeast{100};
    if (transfer.duration < kLeast) {
        return {};
    }
    const double rate =
        static_cast<double>(transfer.bytes) * kSecond / static_cast<double>(transfer.duration.count());
    return " (" + groupedText(std::llround(rate)) + " bytes/s)";
}

std::string reasonText(const TransferEnd& end) {
    return end.reason + (end.code == 0 ? "" : " (" + std::to_string(end.code) + ")");
}

}  // namespace

std::string describe(const Transfer& transfer, const TransferEnd& end) {
    const Words words = wordsFor(transfer);
    if (end.result == TransferResult::Complete) {
        const std::string what = std::string(words.done) + ' ' + transfer.name;
        return transfer.kind == TransferKind::Clock ? what
                                                    : what + ' ' + amountText(transfer) + rateText(transfer);
    }
    const std::string what =
        transfer.name.empty() ? "request" : std::string(words.deed) + ' ' + transfer.name;
    return end.result == TransferResult::Refused
               ? what + " refused: " + reasonText(end)
               : what + " incomplete: " + amountText(transfer) + ", " + reasonText(end);
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
