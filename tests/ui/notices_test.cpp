#include "ui/notices.h"

#include <gtest/gtest.h>

#include <vector>

#include "link/server_state.h"

namespace velmora {
namespace {

class NoticesTest : public ::testing::Test {
  protected:
    static Transfer file(TransferDirection direction = TransferDirection::Save) {
        return {"Journal.odb", "/psion/Journal.odb", direction};
    }
    void end(const Transfer& transfer, const TransferEnd& end = {}) {
        notices.transferBegan(transfer);
        notices.transferMoved(transfer);
        notices.transferEnded(transfer, end);
    }

    using Shown = std::vector<Notice>;
    Shown shown;
    bool userLooks = false;
    Notices notices{[this] { return userLooks; }, [this](const Notice& notice) { shown.push_back(notice); }};
};

TEST_F(NoticesTest, AFileIsToldOnceWhenItIsComplete) {
    end(file());
    EXPECT_EQ(shown, Shown({{"Save of Journal.odb: complete", false}}));
    end(file(TransferDirection::Load));
    EXPECT_EQ(shown.back(), (Notice{"Load of Journal.odb: complete", false}));
}

TEST_F(NoticesTest, FormulasThatWillNotComeBackAreToldWithTheirSheet) {
    Transfer sheet = file();
    sheet.remarks = {"C2", "C3"};
    end(sheet);
    EXPECT_EQ(shown, Shown({{"Save of Journal.odb: complete, 2 formulas changed", false}}));
}

TEST_F(NoticesTest, AnIncompleteFileIsAFault) {
    end(file(), {TransferResult::Incomplete, 186, "disk full"});
    EXPECT_EQ(shown, Shown({{"Save of Journal.odb: incomplete: disk full (186)", true}}));
}

TEST_F(NoticesTest, WhatWasRefusedIsNotTold) {
    end(file(), {TransferResult::Refused, 189, "no such file"});
    EXPECT_TRUE(shown.empty());
}

TEST_F(NoticesTest, ListingsAndTheClockAreNotTold) {
    end({"*.*", {}, TransferDirection::Load, TransferKind::Listing});
    end({"TIME", {}, TransferDirection::Load, TransferKind::Clock});
    EXPECT_TRUE(shown.empty());
}

TEST_F(NoticesTest, AStopByTheOrganiserIsToldAndNoOtherChangeOfState) {
    for (std::int32_t state = Welcome; state <= Error; ++state) {
        shown.clear();
        notices.serverIs(state);
        const bool stopped = state == OnExit || state == Shutdown;
        EXPECT_EQ(shown, stopped ? Shown({{"The server was stopped by the Organiser.", false}}) : Shown())
            << state;
    }
}

TEST_F(NoticesTest, ALostPortIsAFault) {
    notices.portLost("COM7");
    EXPECT_EQ(shown, Shown({{"The port COM7 is lost.", true}}));
}

TEST_F(NoticesTest, NothingIsToldAUserWhoLooks) {
    userLooks = true;
    end(file());
    end(file(), {TransferResult::Incomplete, 0, "the link ended"});
    notices.serverIs(OnExit);
    notices.portLost("COM7");
    EXPECT_TRUE(shown.empty());
    userLooks = false;
    end(file());
    EXPECT_EQ(shown.size(), 1U);
}

}  // namespace
}  // namespace velmora
