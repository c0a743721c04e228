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

TEST(TransferTextTest, ASentenceSaysWhatBecameOfAFile) {
    EXPECT_EQ(endSentence(journal(), {}), "Save of Journal.odb: complete");
    EXPECT_EQ(
        endSentence(journal(TransferDirection::Load), {TransferResult::Incomplete, 0, "the link ended"}),
        "Load of Journal.odb: incomplete: the link ended");
    EXPECT_EQ(endSentence({}, {TransferResult::Refused, 190, "invalid request"}),
              "Request: refused: invalid request (190)");
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

TEST(TransferTextTest, FormulasThatChangedAreCounted) {
    Transfer transfer = journal();
    transfer.remarks = {"A1: =A2-(B2-C2) comes back as =A2-B2-C2"};
    EXPECT_EQ(describe(transfer, {}),
              "saved Journal.odb 16,392 bytes in 17.2 s (953 bytes/s), 1 formula changed");
    EXPECT_EQ(resultText(transfer, {}), "complete, 1 formula changed");
    transfer.remarks.resize(1'200);
    transfer.duration = milliseconds{50};
    EXPECT_EQ(describe(transfer, {}), "saved Journal.odb 16,392 bytes in 0.1 s, 1,200 formulas changed");
    const TransferEnd broken{TransferResult::Incomplete, 61, "Disk full"};
    EXPECT_EQ(describe(transfer, broken),
              "save of Journal.odb incomplete: 16,392 bytes in 0.1 s, Disk full (61)");
}

TEST(TransferTextTest, ATablesColumnsSayTheSame) {
    EXPECT_EQ(durationText(journal()), "17.2 s");
    EXPECT_EQ(rateText(journal()), "953 bytes/s");
    Transfer moment = journal();
    moment.duration = milliseconds{99};
    EXPECT_EQ(rateText(moment), "");
    EXPECT_EQ(resultText(journal(), {}), "complete");
    EXPECT_EQ(resultText(journal(), {TransferResult::Refused, 189, "no such file"}),
              "refused: no such file (189)");
    EXPECT_EQ(resultText(journal(), {TransferResult::Incomplete, 0, "the link ended"}),
              "incomplete: the link ended");
}

TEST(TransferTextTest, TheShareAndTheTimeLeftAreToldWhereTheSizeIsKnown) {
    Transfer transfer = journal(TransferDirection::Load);
    EXPECT_EQ(progressText(transfer), "");
    transfer.size = 0;
    EXPECT_EQ(progressText(transfer), "");
    transfer.size = 10'000;
    transfer.bytes = 2'500;
    transfer.duration = milliseconds{999};
    EXPECT_EQ(progressText(transfer), "25 %") << "the rate is not known yet";
    transfer.duration = milliseconds{5'000};
    EXPECT_EQ(progressText(transfer), "25 %, 0:15 left");
    transfer.duration = milliseconds{22'000};
    EXPECT_EQ(progressText(transfer), "25 %, 1:06 left");
    transfer.duration = std::chrono::hours{1};
    EXPECT_EQ(progressText(transfer), "25 %, 3:00:00 left");
    transfer.duration = std::chrono::minutes{25};
    EXPECT_EQ(progressText(transfer), "25 %, 1:15:00 left");
    transfer.bytes = 0;
    EXPECT_EQ(progressText(transfer), "0 %");
    transfer.bytes = 10'002;
    EXPECT_EQ(progressText(transfer), "100 %, 0:00 left") << "what the size did not count";
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
