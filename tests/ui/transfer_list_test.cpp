#include "ui/transfer_list.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using std::chrono::milliseconds;
using Column = TransferList::Column;

class TransferListTest : public testing::Test, protected TransferListView {
  protected:
    TransferListTest() { list.show(*this); }

    void transferAdded() override { ++added; }
    void transferChanged() override { ++changed; }

    static DateTime oneHourLater(const DateTime& universal) {
        DateTime local = universal;
        ++local.hour;
        return local;
    }
    static Transfer memo() {
        Transfer transfer;
        transfer.name = "Memo.odb";
        transfer.path = "/psion/Memo.odb";
        transfer.direction = TransferDirection::Load;
        transfer.began = {2026, 11, 22, 18, 39, 35};
        return transfer;
    }
    static Transfer far(Transfer transfer, std::uint64_t bytes, int seconds) {
        transfer.bytes = bytes;
        transfer.duration = std::chrono::seconds{seconds};
        return transfer;
    }
    std::vector<std::string> row(std::size_t index) const {
        std::vector<std::string> texts;
        for (std::size_t column = 0; column < TransferList::kColumns; ++column) {
            texts.push_back(list.text(index, static_cast<Column>(column)));
        }
        return texts;
    }

    TransferList list{oneHourLater};
    int added = 0;
    int changed = 0;
};

using Row = std::vector<std::string>;

TEST_F(TransferListTest, ATransferIsFollowedFromItsBeginningToItsEnd) {
    Transfer transfer = memo();
    transfer.size = 16'000;
    list.transferBegan(transfer);
    EXPECT_EQ(row(0),
              (Row{"2026-11-22 19:39:35", "Memo.odb", "load", "0 of 16,000", "0.0 s", "", "under way, 0 %"}));
    list.transferMoved(far(transfer, 4'000, 4));
    EXPECT_EQ(row(0), (Row{"2026-11-22 19:39:35", "Memo.odb", "load", "4,000 of 16,000", "4.0 s",
                           "1,000 bytes/s", "under way, 25 %, 0:12 left"}));
    list.transferEnded(far(transfer, 16'000, 16), {});
    EXPECT_EQ(row(0), (Row{"2026-11-22 19:39:35", "Memo.odb", "load", "16,000", "16.0 s", "1,000 bytes/s",
                           "complete"}));
    EXPECT_EQ(list.size(), 1U);
    EXPECT_EQ(added, 1);
    EXPECT_EQ(changed, 2);
}

TEST_F(TransferListTest, ASaveIsOfUnknownSize) {
    Transfer transfer = memo();
    transfer.direction = TransferDirection::Save;
    list.transferBegan(transfer);
    list.transferMoved(far(transfer, 1'200, 2));
    EXPECT_EQ(list.text(0, Column::Direction), "save");
    EXPECT_EQ(list.text(0, Column::Size), "1,200");
    EXPECT_EQ(list.text(0, Column::Result), "under way");
}

TEST_F(TransferListTest, TheLatestIsOnTop) {
    list.transferBegan(memo());
    list.transferEnded(memo(), {});
    Transfer missing = memo();
    missing.name = "Missing.odb";
    list.transferEnded(missing, {TransferResult::Refused, 189, "no such file"});
    EXPECT_EQ(list.text(0, Column::Name), "Missing.odb");
    EXPECT_EQ(list.text(0, Column::Result), "refused: no such file (189)");
    EXPECT_EQ(list.text(0, Column::Size), "") << "nothing moved";
    EXPECT_EQ(list.text(0, Column::Duration), "");
    EXPECT_EQ(list.text(1, Column::Name), "Memo.odb");
    EXPECT_EQ(added, 2);
}

TEST_F(TransferListTest, TheClockHasNoAmounts) {
    Transfer clock = memo();
    clock.kind = TransferKind::Clock;
    clock.name = "TIME";
    list.transferBegan(clock);
    list.transferEnded(far(clock, 20, 1), {});
    EXPECT_EQ(row(0), (Row{"2026-11-22 19:39:35", "TIME", "load", "", "", "", "complete"}));
}

TEST_F(TransferListTest, ThoseOfEarlierRunsAreBelow) {
    Transfer older = memo();
    older.name = "Older.odb";
    TransferList other(oneHourLater,
                       {{older, {}}, {memo(), {TransferResult::Incomplete, 0, "the link ended"}}});
    EXPECT_EQ(other.size(), 2U);
    EXPECT_EQ(other.text(0, Column::Result), "incomplete: the link ended");
    EXPECT_EQ(other.text(1, Column::Name), "Older.odb");
    other.transferBegan(memo());
    other.transferMoved(memo());
    other.transferEnded(memo(), {});
    EXPECT_EQ(other.size(), 3U);
}

TEST_F(TransferListTest, NewsOfNoTransferChangesNothing) {
    list.transferMoved(memo());
    list.transferEnded(memo(), {});
    list.transferMoved(far(memo(), 5, 1));
    EXPECT_EQ(list.text(0, Column::Size), "0");
    EXPECT_EQ(changed, 0);
}

TEST_F(TransferListTest, TheOldestAreDropped) {
    for (std::size_t i = 0; i <= TransferList::kMost; ++i) {
        Transfer transfer = memo();
        transfer.bytes = i;
        list.transferEnded(transfer, {});
    }
    EXPECT_EQ(list.size(), TransferList::kMost);
    EXPECT_EQ(list.text(TransferList::kMost - 1, Column::Size), "1");
}

TEST_F(TransferListTest, DetailsTellWhatHasNoColumn) {
    Transfer sheet = memo();
    sheet.name = "Sums.wks";
    sheet.direction = TransferDirection::Save;
    sheet.earlierCopy = "/copies/Sums.wks";
    sheet.remarks = {"A1: =1-(2-3) comes back as =1-2-3"};
    list.transferBegan(sheet);
    EXPECT_EQ(list.details(0),
              "/psion/Memo.odb\nEarlier copy: /copies/Sums.wks\nA1: =1-(2-3) comes back as =1-2-3");
    sheet.remarks.resize(TransferList::kShownRemarks + 3);
    list.transferEnded(far(sheet, 28, 0), {});
    EXPECT_TRUE(list.details(0).ends_with("\n\nand 3 more"));
    list.transferEnded({}, {TransferResult::Refused, 190, "invalid request"});
    EXPECT_EQ(list.details(0), "");
}

TEST_F(TransferListTest, WhatANameHoldsDoesNotBreakTheTable) {
    Transfer odd = memo();
    odd.name = "A\nB";
    list.transferEnded(odd, {});
    EXPECT_EQ(list.text(0, Column::Name), "A<0A>B");
}

TEST_F(TransferListTest, EveryColumnHasAHeading) {
    for (std::size_t column = 0; column < TransferList::kColumns; ++column) {
        EXPECT_STRNE(TransferList::heading(static_cast<Column>(column)), "");
    }
    list.transferBegan(memo());
    EXPECT_EQ(list.text(0, TransferList::kColumns), "");
}

}  // namespace
}  // namespace velmora
