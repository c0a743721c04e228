#include "transfers/transfer_text.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using std::chrono::milliseconds;

Transfer journal(TransferDirection direction = TransferDirection::Save) {
    Transfer transfer;
    transfer.name = "Journal.odb";
    transfer.direction = direction;
    transfer.bytes = 16'392;
    transfer.duration = milliseconds{17'200};
    return transfer;
}

TEST(TransferTextTest, ACompleteTransferHasItsRate) {
    EXPECT_EQ(describe(journal(), {}), "saved Journal.odb 16,392 bytes in 17.2 s (953 bytes/s)");
    EXPECT_EQ(describe(journal(TransferDirection::Load), {}),
              "loaded Journal.odb 16,392 bytes in 17.2 s (953 bytes/s)");
}

TEST(TransferTextTest, AMomentHasNoRate) {
    Transfer transfer = journal();
    transfer.bytes = 1;
    transfer.duration = milliseconds{99};
    EXPECT_EQ(describe(transfer, {}), "saved Journal.odb 1 byte in 0.1 s");
}

TEST(TransferTextTest, ATransferOfHoursIsToldInSeconds) {
    Transfer transfer = journal();
    transfer.duration = std::chrono::hours{3};
    EXPECT_EQ(describe(transfer, {}), "saved Journal.odb 16,392 bytes in 10,800.0 s (2 bytes/s)");
}

TEST(TransferTextTest, WhatBrokeOffSaysHowFarItCame) {
    EXPECT_EQ(describe(journal(), {TransferResult::Incomplete, 186, "disk full"}),
              "save of Journal.odb incomplete: 16,392 bytes in 17.2 s, disk full (186)");
    EXPECT_EQ(describe(journal(TransferDirection::Load), {TransferResult::Incomplete, 0, "the link ended"}),
              "load of Journal.odb incomplete: 16,392 bytes in 17.2 s, the link ended");
}

TEST(TransferTextTest, ARefusalHasItsReason) {
    EXPECT_EQ(describe(journal(TransferDirection::Load), {TransferResult::Refused, 189, "no such file"}),
              "load of Journal.odb refused: no such file (189)");
    EXPECT_EQ(describe({}, {TransferResult::Refused, 190, "invalid request"}),
              "request refused: invalid request (190)");
}

TEST(TransferTextTest, ListingsAndTheClockHaveVerbsOfTheirOwn) {
    Transfer transfer = journal(TransferDirection::Load);
    transfer.name = "*.odb";
    transfer.kind = TransferKind::Listing;
    EXPECT_EQ(describe(transfer, {}), "listed *.odb 16,392 bytes in 17.2 s (953 bytes/s)");
    EXPECT_EQ(describe(transfer, {TransferResult::Refused, 190, "invalid request"}),
              "listing of *.odb refused: invalid request (190)");
    transfer.name = "TIME";
    transfer.kind = TransferKind::Clock;
    EXPECT_EQ(describe(transfer, {}), "told TIME");
    EXPECT_EQ(describe(transfer, {TransferResult::Refused, 0, "it failed"}),
              "answer to TIME refused: it failed");
}

TEST(TransferTextTest, EverythingHasALastingName) {
    EXPECT_STREQ(nameOf(TransferDirection::Save), "save");
    EXPECT_STREQ(nameOf(TransferDirection::Load), "load");
    EXPECT_STREQ(nameOf(TransferKind::Data), "data");
    EXPECT_STREQ(nameOf(TransferKind::Procedure), "procedure");
    EXPECT_STREQ(nameOf(TransferKind::Block), "block");
    EXPECT_STREQ(nameOf(TransferKind::Text), "text");
    EXPECT_STREQ(nameOf(TransferKind::Bytes), "bytes");
    EXPECT_STREQ(nameOf(TransferKind::Listing), "listing");
    EXPECT_STREQ(nameOf(TransferKind::Sheet), "sheet");
    EXPECT_STREQ(nameOf(TransferKind::Boot), "boot");
    EXPECT_STREQ(nameOf(TransferKind::Clock), "clock");
    EXPECT_STREQ(nameOf(TransferResult::Complete), "complete");
    EXPECT_STREQ(nameOf(TransferResult::Incomplete), "incomplete");
    EXPECT_STREQ(nameOf(TransferResult::Refused), "refused");
}

}  // namespace
}  // namespace velmora
