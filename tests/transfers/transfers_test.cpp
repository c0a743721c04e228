#include "transfers/transfers.h"

#include <gtest/gtest.h>

#include "support/fake_timers.h"
#include "support/recording_transfers.h"

namespace velmora {
namespace {

using Lines = std::vector<std::string>;
using std::chrono::milliseconds;

class TransfersTest : public testing::Test {
  protected:
    TransfersTest() { transfers.observe(observer); }

    void ask(TransferDirection direction) {
        Transfer transfer;
        transfer.name = "Memo.odb";
        transfer.path = "/psion/Memo.odb";
        transfer.direction = direction;
        transfers.ask(transfer);
    }
    void begin(TransferDirection direction, std::optional<std::uint64_t> size = {}) {
        ask(direction);
        transfers.begin(size);
    }

    test::FakeTime time;
    test::RecordingTransfers observer;
    Transfers transfers{time};
};

TEST_F(TransfersTest, ATransferIsToldFromItsBeginningToItsEnd) {
    const DateTime began = time.universalTime();
    begin(TransferDirection::Load, 30);
    EXPECT_EQ(observer.began, 1);
    EXPECT_EQ(observer.running.path, "/psion/Memo.odb");
    EXPECT_EQ(observer.running.size, 30U);
    time.advance(milliseconds{1'000});
    transfers.moved(10);
    EXPECT_EQ(observer.running.bytes, 10U);
    EXPECT_EQ(observer.running.duration, milliseconds{1'000});
    time.advance(milliseconds{1'000});
    transfers.moved(20);
    EXPECT_EQ(observer.moved, 2);
    EXPECT_TRUE(transfers.underWay());
    time.advance(milliseconds{1'000});
    transfers.complete();
    EXPECT_FALSE(transfers.underWay());
    ASSERT_EQ(observer.ended.size(), 1U);
    EXPECT_EQ(observer.ended[0].transfer.began, began);
    EXPECT_EQ(observer.lines(), Lines{"loaded Memo.odb 30 bytes in 3.0 s (10 bytes/s)"});
}

TEST_F(TransfersTest, WhatIsAskedForIsNotToldOf) {
    ask(TransferDirection::Save);
    EXPECT_EQ(observer.began, 0);
    EXPECT_FALSE(transfers.underWay());
}

TEST_F(TransfersTest, ARequestIsRefused) {
    ask(TransferDirection::Save);
    transfers.refuse(187, "file exists");
    EXPECT_EQ(observer.began, 0);
    EXPECT_EQ(observer.lines(), Lines{"save of Memo.odb refused: file exists (187)"});
}

TEST_F(TransfersTest, TheRestOfATransferIsRefused) {
    begin(TransferDirection::Save);
    transfers.moved(12);
    transfers.refuse(186, "disk full");
    transfers.leave();
    EXPECT_EQ(observer.lines(), Lines{"save of Memo.odb incomplete: 12 bytes in 0.0 s, disk full (186)"});
}

TEST_F(TransfersTest, ARequestOutsideOfTransfersHasNoName) {
    transfers.refuse(190, "invalid request");
    begin(TransferDirection::Save);
    transfers.complete();
    transfers.refuse(188, "not possible");
    EXPECT_EQ(observer.lines(),
              (Lines{"request refused: invalid request (190)", "saved Memo.odb 0 bytes in 0.0 s",
                     "request refused: not possible (188)"}));
}

TEST_F(TransfersTest, AFileThatIsLeftIsIncomplete) {
    begin(TransferDirection::Save, 12);
    transfers.moved(12);
    transfers.leave();
    transfers.leave();
    EXPECT_EQ(observer.lines(), Lines{"save of Memo.odb incomplete: 12 bytes in 0.0 s, the link ended"});
    begin(TransferDirection::Load, 12);
    transfers.moved(11);
    transfers.leave();
    EXPECT_EQ(observer.lines(), Lines{"load of Memo.odb incomplete: 11 bytes in 0.0 s, the link ended"});
    begin(TransferDirection::Load);
    transfers.moved(12);
    transfers.leave();
    EXPECT_EQ(observer.lines(), Lines{"load of Memo.odb incomplete: 12 bytes in 0.0 s, the link ended"});
}

TEST_F(TransfersTest, AFileThatIsLeftWhenAllHasMovedIsComplete) {
    begin(TransferDirection::Load, 12);
    transfers.moved(12);
    transfers.leave();
    EXPECT_EQ(observer.lines(), Lines{"loaded Memo.odb 12 bytes in 0.0 s"});
}

TEST_F(TransfersTest, ARequestThatIsLeftHasFailed) {
    ask(TransferDirection::Load);
    transfers.leave();
    EXPECT_EQ(observer.lines(), Lines{"load of Memo.odb refused: it failed"});
}

TEST_F(TransfersTest, AnotherRequestLeavesTheTransferBefore) {
    begin(TransferDirection::Save);
    ask(TransferDirection::Load);
    EXPECT_EQ(observer.lines(), Lines{"save of Memo.odb incomplete: 0 bytes in 0.0 s, the link ended"});
}

TEST_F(TransfersTest, ACompleteTransferThatGoesOnBeginsAnew) {
    begin(TransferDirection::Save);
    transfers.moved(5);
    transfers.complete();
    transfers.moved(7);
    EXPECT_EQ(observer.began, 2);
    transfers.complete();
    EXPECT_EQ(observer.lines(),
              (Lines{"saved Memo.odb 5 bytes in 0.0 s", "saved Memo.odb 7 bytes in 0.0 s"}));
}

TEST_F(TransfersTest, WithoutATransferNothingMovesOrEnds) {
    transfers.moved(5);
    transfers.complete();
    transfers.leave();
    ask(TransferDirection::Save);
    transfers.moved(5);
    transfers.complete();
    EXPECT_EQ(observer.moved, 0);
    EXPECT_TRUE(observer.ended.empty());
}

}  // namespace
}  // namespace velmora
