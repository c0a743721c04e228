#include "ui/transfer_list.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "base/byte_text.h"
#include "base/moment_text.h"
#include "base/number_text.h"
#include "base/system_text.h"
#include "transfers/transfer_text.h"

namespace velmora {
namespace {

std::string bytesText(std::uint64_t bytes) {
    return groupedText(static_cast<std::int64_t>(bytes));
}

/// Whether so much moved, for so long, that it is worth a word.
bool hasAmount(const ListedTransfer& listed) {
    const bool refused = listed.end && listed.end->result == TransferResult::Refused;
    return listed.transfer.kind != TransferKind::Clock && !refused;
}

/// "16,392", of a load under way "3,000 of 16,392".
std::string sizeText(const ListedTransfer& listed) {
    const Transfer& transfer = listed.transfer;
    const std::string bytes = bytesText(transfer.bytes);
    return listed.end || !transfer.size ? bytes : bytes + " of " + bytesText(*transfer.size);
}

std::string stateText(const ListedTransfer& listed) {
    if (listed.end) {
        return resultText(listed.transfer, *listed.end);
    }
    const std::string progress = progressText(listed.transfer);
    return progress.empty() ? "under way" : "under way, " + progress;
}

}  // namespace

TransferList::TransferList(LocalTime localTime, std::vector<EndedTransfer> earlier)
    : localTime_(std::move(localTime)) {
    for (EndedTransfer& one : earlier) {
        transfers_.push_front({std::move(one.transfer), std::move(one.end)});
    }
}

const char* TransferList::heading(Column column) {
    constexpr std::array<const char*, kColumns> kHeadings = {"Time",     "Name", "Direction", "Bytes",
                                                             "Duration", "Rate", "Result"};
    return kHeadings[column];
}

std::string TransferList::text(std::size_t row, Column column) const {
    const ListedTransfer& listed = at(row);
    const Transfer& transfer = listed.transfer;
    const bool amount = hasAmount(listed);
    switch (column) {
        case Time:
            return momentText(localTime_(transfer.began), kStampForm);
        case Name:
            return showControls(transfer.name);
        case Direction:
            return nameOf(transfer.direction);
        case Size:
            return amount ? sizeText(listed) : "";
        case Duration:
            return amount ? durationText(transfer) : "";
        case Rate:
            return amount ? rateText(transfer) : "";
        case Result:
            return showControls(stateText(listed));
        case kColumns:
            break;
    }
    return {};
}

std::string TransferList::details(std::size_t row) const {
    const Transfer& transfer = at(row).transfer;
    std::string lines;
    const auto add = [&lines](const std::string& line) { lines += (lines.empty() ? "" : "\n") + line; };
    if (!transfer.path.empty()) {
        add(shownText(transfer.path));
    }
    if (!transfer.earlierCopy.empty()) {
        add("Earlier copy: " + shownText(transfer.earlierCopy));
    }
    const std::size_t shown = std::min(transfer.remarks.size(), kShownRemarks);
    for (std::size_t i = 0; i < shown; ++i) {
        add(showControls(transfer.remarks[i]));
    }
    if (shown < transfer.remarks.size()) {
        add("and " + std::to_string(transfer.remarks.size() - shown) + " more");
    }
    return lines;
}

void TransferList::transferBegan(const Transfer& transfer) {
    add({transfer, {}});
}

void TransferList::transferMoved(const Transfer& transfer) {
    if (running()) {
        transfers_.front().transfer = transfer;
        if (view_ != nullptr) {
            view_->transferChanged();
        }
    }
}

void TransferList::transferEnded(const Transfer& transfer, const TransferEnd& end) {
    if (!running()) {
        add({transfer, end});
        return;
    }
    transfers_.front() = {transfer, end};
    if (view_ != nullptr) {
        view_->transferChanged();
    }
}

void TransferList::add(const ListedTransfer& transfer) {
    transfers_.push_front(transfer);
    if (transfers_.size() > kMost) {
        transfers_.pop_back();
    }
    if (view_ != nullptr) {
        view_->transferAdded();
    }
}

}  // namespace velmora
