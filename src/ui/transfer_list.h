// The window of transfers without its table: which there are, and what is said of each.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/clock.h"
#include "transfers/transfer.h"

namespace velmora {

/// Where the transfers are shown. Called for each message of the link, so it must be cheap.
class TransferListView {
  public:
    virtual ~TransferListView() = default;

    /// There is a new first transfer.
    virtual void transferAdded() = 0;
    /// More is known of the first transfer.
    virtual void transferChanged() = 0;
};

/// One transfer of the list.
struct ListedTransfer {
    Transfer transfer;
    std::optional<TransferEnd> end;  ///< nothing while it is under way
};

/// All transfers, the latest first. Texts are Windows-1252 bytes.
class TransferList : public TransferObserver {
  public:
    enum Column : std::size_t { Time, Name, Direction, Size, Duration, Rate, Result, kColumns };

    /// The local time of a universal one.
    using LocalTime = std::function<DateTime(const DateTime& universal)>;

    /// `earlier`: those of earlier runs, the latest last.
    explicit TransferList(LocalTime localTime, std::vector<EndedTransfer> earlier = {});

    /// Who shows the list; must outlive the last transfer.
    void show(TransferListView& view) { view_ = &view; }

    std::size_t size() const { return transfers_.size(); }
    /// Requires: row < size().
    const ListedTransfer& at(std::size_t row) const { return transfers_[row]; }

    static const char* heading(Column column);
    /// What stands in the table. Requires: row < size().
    std::string text(std::size_t row, Column column) const;
    /// What has no column, line by line: the path, the earlier copy, the cells. Of more than kShownRemarks
    /// cells the others are counted. Requires: row < size().
    std::string details(std::size_t row) const;

    void transferBegan(const Transfer& transfer) override;
    void transferMoved(const Transfer& transfer) override;
    void transferEnded(const Transfer& transfer, const TransferEnd& end) override;

    /// Beyond these the oldest are dropped.
    static constexpr std::size_t kMost = 10'000;
    static constexpr std::size_t kShownRemarks = 20;

  private:
    bool running() const { return !transfers_.empty() && !transfers_.front().end; }
    void add(const ListedTransfer& transfer);

    LocalTime localTime_;
    TransferListView* view_ = nullptr;
    std::deque<ListedTransfer> transfers_;
};

}  // namespace velmora
