#include "serial/comm_plain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_comm_device.h"
#include "support/no_yield.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;

class CommPlainTest : public ::testing::Test {
  protected:
    std::int32_t open(bool dtr = true) { return plain.CommOpen("COM1", "9600,N,8,1", dtr); }
    void expectRecorded(std::int32_t number, const std::string& source, const std::string& words) {
        EXPECT_EQ(plain.lastErrorNumber(), number);
        EXPECT_EQ(plain.lastErrorSource(), source);
        EXPECT_EQ(plain.lastErrorText(), words);
    }

    test::FakeCommDevice device;
    test::NoYield yield;
    PlainComm plain{device, yield};
    std::string text = "old";
};

TEST_F(CommPlainTest, OpeningTakesItsStepsInOrder) {
    EXPECT_EQ(open(), 0);
    EXPECT_THAT(device.calls, ElementsAre("open", "setupQueues", "purge", "setTimeouts", "getState",
                                          "buildState", "setDtrControl on", "setState"));
    EXPECT_EQ(device.openedName, "COM1");
    EXPECT_EQ(device.settings, "9600,N,8,1");
    EXPECT_TRUE(plain.handleInUse());
    EXPECT_EQ(plain.handle(), test::FakeCommDevice::kOpenHandle);
}

TEST_F(CommPlainTest, OpeningAsksForQueuesAndTimeouts) {
    open();
    EXPECT_EQ(device.inputQueue, 1024U);
    EXPECT_EQ(device.outputQueue, 1024U);
    EXPECT_EQ(device.timeouts.readInterval, 0xFFFFFFFFU);
    EXPECT_EQ(device.timeouts.readTotalMultiplier, 0U);
    EXPECT_EQ(device.timeouts.readTotalConstant, 1000U);
    EXPECT_EQ(device.timeouts.writeTotalMultiplier, 1000U);
    EXPECT_EQ(device.timeouts.writeTotalConstant, 0U);
}

TEST_F(CommPlainTest, DtrIsPutIntoTheControlBlockBeforeItIsSet) {
    open(false);
    ASSERT_GE(device.calls.size(), 2U);
    EXPECT_EQ(device.calls[device.calls.size() - 2], "setDtrControl off");
    EXPECT_EQ(device.calls.back(), "setState");
}

TEST_F(CommPlainTest, OpeningTwiceIsPortInUse) {
    open();
    EXPECT_EQ(open(), -1);
    expectRecorded(-1, "CommOpen", "Port in use");
}

TEST_F(CommPlainTest, AFailedCreateLeavesTheObjectFree) {
    device.errors["open"] = 2;
    EXPECT_EQ(open(), 2);
    expectRecorded(2, "CommOpen (CreateFile)", "message 2");
    EXPECT_FALSE(plain.handleInUse());
    EXPECT_FALSE(device.called("close"));
    device.errors.clear();
    EXPECT_EQ(open(), 0);
}

struct OpenStep {
    const char* call;
    const char* source;
};

class CommPlainOpenStepTest : public CommPlainTest, public ::testing::WithParamInterface<OpenStep> {};

TEST_P(CommPlainOpenStepTest, FailureClosesTheDeviceAndNamesTheStep) {
    device.errors[GetParam().call] = 31;
    EXPECT_EQ(open(), 31);
    expectRecorded(31, GetParam().source, "message 31");
    EXPECT_EQ(device.calls.back(), "close");
    EXPECT_FALSE(device.isOpen);
}

TEST_P(CommPlainOpenStepTest, AFailureOnceTheDeviceIsOpenLeavesTheObjectInUse) {
    device.errors[GetParam().call] = 87;
    open();
    EXPECT_TRUE(plain.handleInUse());
    device.errors.clear();
    EXPECT_EQ(open(), -1);
    expectRecorded(-1, "CommOpen", "Port in use");
}

INSTANTIATE_TEST_SUITE_P(Steps, CommPlainOpenStepTest,
                         ::testing::Values(OpenStep{"setupQueues", "CommOpen (SetupComm)"},
                                           OpenStep{"purge", "CommOpen (PurgeComm)"},
                                           OpenStep{"setTimeouts", "CommOpen (SetCommTimeouts)"},
                                           OpenStep{"getState", "CommOpen (GetCommState)"},
                                           OpenStep{"buildState", "CommOpen (BuildCommDCB)"},
                                           OpenStep{"setState", "CommOpen (SetCommState)"}),
                         [](const auto& step) { return std::string(step.param.call); });

TEST_F(CommPlainTest, SettingReadsBuildsAndSetsTheState) {
    open();
    device.calls.clear();
    EXPECT_EQ(plain.CommSet("2400,N,8,1"), 0);
    EXPECT_THAT(device.calls, ElementsAre("getState", "buildState", "setState"));
    EXPECT_EQ(device.settings, "2400,N,8,1");
}

class CommPlainSetStepTest : public CommPlainTest, public ::testing::WithParamInterface<OpenStep> {};

TEST_P(CommPlainSetStepTest, FailureNamesTheStepAndLeavesThePortOpen) {
    open();
    device.errors[GetParam().call] = 87;
    EXPECT_EQ(plain.CommSet("bad"), 87);
    expectRecorded(87, GetParam().source, "message 87");
    EXPECT_TRUE(device.isOpen);
}

INSTANTIATE_TEST_SUITE_P(Steps, CommPlainSetStepTest,
                         ::testing::Values(OpenStep{"getState", "CommSet (GetCommState)"},
                                           OpenStep{"buildState", "CommSet (BuildCommDCB)"},
                                           OpenStep{"setState", "CommSet (SetCommState)"}),
                         [](const auto& step) { return std::string(step.param.call); });

TEST_F(CommPlainTest, ClosingFreesTheObject) {
    open();
    EXPECT_EQ(plain.CommClose(), 0);
    EXPECT_FALSE(plain.handleInUse());
    EXPECT_EQ(open(), 0);
}

TEST_F(CommPlainTest, ClosingWhatIsNotInUseDoesNothing) {
    EXPECT_EQ(plain.CommClose(), 0);
    EXPECT_FALSE(device.called("close"));
}

TEST_F(CommPlainTest, AFailedCloseKeepsTheMark) {
    open();
    device.errors["close"] = 6;
    EXPECT_EQ(plain.CommClose(), 6);
    expectRecorded(6, "CommClose (CloseHandle)", "message 6");
    EXPECT_TRUE(plain.handleInUse());
}

TEST_F(CommPlainTest, FlushingPurges) {
    open();
    device.calls.clear();
    EXPECT_EQ(plain.CommFlush(), 0);
    EXPECT_THAT(device.calls, ElementsAre("purge"));
    device.errors["purge"] = 6;
    EXPECT_EQ(plain.CommFlush(), 6);
    expectRecorded(6, "CommFlush (PurgeComm)", "message 6");
}

TEST_F(CommPlainTest, ReadingGivesWhatWaitsUpToTheMaximum) {
    open();
    device.input = "abcdef";
    EXPECT_EQ(plain.CommRead(text, 4), 4);
    EXPECT_EQ(text, "abcd");
    EXPECT_EQ(plain.CommRead(text, 100), 2);
    EXPECT_EQ(text, "ef");
}

TEST_F(CommPlainTest, ReadingLetsEventsRunBeforeItLooks) {
    open();
    yield.onYield = [this] { device.input = "late"; };
    EXPECT_EQ(plain.CommRead(text, 100), 4);
    EXPECT_EQ(text, "late");
    EXPECT_EQ(yield.calls, 1);
}

TEST_F(CommPlainTest, AnEmptyQueueIsNotRead) {
    open();
    EXPECT_EQ(plain.CommRead(text, 100), 0);
    EXPECT_EQ(text, "");
    EXPECT_FALSE(device.called("read"));
}

TEST_F(CommPlainTest, OneReadGivesAtMostItsBuffer) {
    open();
    device.input.assign(3000, 'x');
    EXPECT_EQ(plain.CommRead(text, 5000), 1024);
    EXPECT_EQ(text.size(), 1024U);
    EXPECT_EQ(device.input.size(), 1976U);
}

TEST_F(CommPlainTest, AFailedReadTellsTheErrorFlagsInHexadecimal) {
    open();
    device.input = "x";
    device.errorFlags = 0x1A;
    device.errors["read"] = 31;
    EXPECT_EQ(plain.CommRead(text, 10), -1);
    EXPECT_EQ(text, "");
    expectRecorded(31, "CommRead (ReadFile)", "message 31  COMM Error Flags = 1A");
}

TEST_F(CommPlainTest, AQueueThatCannotBeAskedFailsTheRead) {
    open();
    device.errors["clearError"] = 31;
    EXPECT_EQ(plain.CommRead(text, 10), -1);
    expectRecorded(31, "CommRead (ClearCommError)", "message 31  COMM Error Flags = 0");
}

TEST_F(CommPlainTest, APendingReadIsWaitedForUntilItIsComplete) {
    open();
    device.input = "abc";
    device.errors["read"] = kTransferPending;
    device.pendingResults = {kTransferIncomplete, kTransferIncomplete, kSuccess};
    EXPECT_EQ(plain.CommRead(text, 10), 3);
    EXPECT_EQ(text, "abc");
}

TEST_F(CommPlainTest, APendingReadThatFailsNamesTheWait) {
    open();
    device.input = "abc";
    device.errors["read"] = kTransferPending;
    device.pendingResults = {kTransferIncomplete, 31};
    EXPECT_EQ(plain.CommRead(text, 10), -1);
    EXPECT_EQ(text, "");
    expectRecorded(31, "CommRead (GetOverlappedResult)", "message 31  COMM Error Flags = 0");
}

TEST_F(CommPlainTest, AnEventThatClosesThePortFailsTheReadWithoutTouchingTheDevice) {
    open();
    device.input = "abc";
    yield.onYield = [this] { plain.CommClose(); };
    EXPECT_EQ(plain.CommRead(text, 10), -1);
    EXPECT_EQ(plain.lastErrorSource(), "CommRead (ClearCommError)");
    EXPECT_FALSE(device.called("read"));
}

TEST_F(CommPlainTest, WritingLetsEventsRunElevenTimes) {
    open();
    EXPECT_EQ(plain.CommWrite("hello"), 5);
    EXPECT_EQ(device.sent, "hello");
    EXPECT_EQ(yield.calls, 11);
}

TEST_F(CommPlainTest, AFailedWriteLetsEventsRunOnce) {
    open();
    device.errors["write"] = 31;
    EXPECT_EQ(plain.CommWrite("hello"), -1);
    expectRecorded(31, "CommWrite (WriteFile)", "message 31  COMM Error Flags = 0");
    EXPECT_EQ(yield.calls, 1);
}

TEST_F(CommPlainTest, AWriteThatFailsWithoutAReasonCountsAsFarAsItGotAndLetsEventsRunOnce) {
    open();
    device.errors["write"] = kNoReason;
    device.writtenWithoutReason = 3;
    EXPECT_EQ(plain.CommWrite("hello"), 3);
    EXPECT_EQ(plain.lastErrorNumber(), 0);
    EXPECT_EQ(yield.calls, 1);
}

TEST_F(CommPlainTest, APendingWriteIsWaitedForUntilItIsComplete) {
    open();
    device.errors["write"] = kTransferPending;
    device.pendingResults = {kTransferIncomplete, kSuccess};
    EXPECT_EQ(plain.CommWrite("hello"), 5);
    EXPECT_EQ(device.pendingResults.size(), 0U);
    EXPECT_EQ(yield.calls, 11);
}

TEST_F(CommPlainTest, APendingWriteThatFailsNamesTheWait) {
    open();
    device.errors["write"] = kTransferPending;
    device.pendingResults = {31};
    EXPECT_EQ(plain.CommWrite("hello"), -1);
    EXPECT_EQ(plain.lastErrorSource(), "CommWrite (GetOverlappedResult)");
}

TEST_F(CommPlainTest, AnEventThatClosesThePortAfterTheWriteDoesNotUndoIt) {
    open();
    yield.onYield = [this] { plain.CommClose(); };
    EXPECT_EQ(plain.CommWrite("hello"), 5);
    EXPECT_EQ(plain.handle(), CommDevice::kNoHandle);
}

TEST_F(CommPlainTest, ModemLinesAreMasked) {
    open();
    device.modemLines = kDsrOn;
    bool state = false;
    EXPECT_EQ(plain.CommReadCD(kDsrOn, state), 0);
    EXPECT_TRUE(state);
    EXPECT_EQ(plain.CommReadCD(kCtsOn, state), 0);
    EXPECT_FALSE(state);
}

TEST_F(CommPlainTest, UnknownModemLinesAreOff) {
    open();
    device.modemLines = kDsrOn;
    device.errors["modemStatus"] = 50;
    bool state = true;
    EXPECT_EQ(plain.CommReadCD(kDsrOn, state), 50);
    EXPECT_FALSE(state);
    expectRecorded(50, "CommReadCD (GetCommModemStatus)", "message 50");
}

TEST_F(CommPlainTest, LinesHaveTheirFunctionNumbers) {
    open();
    for (const int line : {1, 2, 3, 4}) {
        plain.CommSetLine(line, true);
        plain.CommSetLine(line, false);
    }
    EXPECT_THAT(device.escapes, ElementsAre(8, 9, 5, 6, 3, 4, 0, 0));
}

TEST_F(CommPlainTest, ALineThatCannotBeSetIsRecorded) {
    open();
    device.errors["escapeFunction"] = 50;
    EXPECT_EQ(plain.CommSetLine(2, true), 50);
    expectRecorded(50, "CommSetLine (EscapeCommFunction)", "message 50");
}

TEST_F(CommPlainTest, TheQueueCountHasASourceOfItsOwn) {
    open();
    device.input = "abc";
    std::size_t count = 0;
    EXPECT_EQ(plain.InputQueueCount(count), 0);
    EXPECT_EQ(count, 3U);
    device.errors["clearError"] = 31;
    EXPECT_EQ(plain.InputQueueCount(count), -1);
    EXPECT_EQ(count, 0U);
    expectRecorded(31, "CommRead (InBufferCount)", "message 31  COMM Error Flags = 0");
}

TEST_F(CommPlainTest, MessagesAreCutAtTheFirstZeroAndTrimmed) {
    device.errors["open"] = 2;
    device.message = std::string("  Not found.\r\n\0rest", 19);
    open();
    EXPECT_EQ(plain.lastErrorText(), "Not found.");
}

TEST_F(CommPlainTest, MessagesHaveAtMost255Characters) {
    device.errors["open"] = 2;
    device.message.assign(300, 'm');
    open();
    EXPECT_EQ(plain.lastErrorText().size(), 255U);
}

TEST_F(CommPlainTest, TheFullDescriptionNamesNumberSourceAndText) {
    device.errors["open"] = 31;
    open();
    EXPECT_EQ(plain.fullErrorDescription(), "Error (31): CommOpen (CreateFile) - message 31");
}

}  // namespace
}  // namespace velmora
