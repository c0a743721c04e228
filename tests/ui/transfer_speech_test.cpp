#include "ui/transfer_speech.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmora {
namespace {

std::vector<std::string> saidOf(const Transfer& transfer, const TransferEnd& end) {
    std::vector<std::string> said;
    TransferSpeech speech([&](const std::string& words) { said.push_back(words); });
    speech.transferBegan(transfer);
    speech.transferMoved(transfer);
    speech.transferEnded(transfer, end);
    return said;
}

TEST(TransferSpeech, AFileIsSaidOnceWhenItHasEnded) {
    EXPECT_EQ(saidOf({"Journal.odb", "/psion/Journal.odb"}, {}),
              std::vector<std::string>{"Save of Journal.odb: complete"});
}

TEST(TransferSpeech, ARefusedOneIsSaidWithItsReason) {
    const Transfer transfer{"Memo.odb", {}, TransferDirection::Load};
    EXPECT_EQ(saidOf(transfer, {TransferResult::Refused, 189, "no such file"}),
              std::vector<std::string>{"Load of Memo.odb: refused: no such file (189)"});
}

TEST(TransferSpeech, ListingsAndTheClockAreNotSaid) {
    EXPECT_TRUE(saidOf({"*.*", {}, TransferDirection::Load, TransferKind::Listing}, {}).empty());
    EXPECT_TRUE(saidOf({"TIME", {}, TransferDirection::Load, TransferKind::Clock}, {}).empty());
}

}  // namespace
}  // namespace velmora
