// What FTRAN and FILE have in common.
#include "services/file_requests.h"

#include "services/service_fixture.h"

namespace velmora {
namespace {

using namespace test;

class FileRequestsTest : public ServiceFixture, public testing::WithParamInterface<const char*> {
  protected:
    void open() { openService(GetParam()); }
    /// Opens "f" as bytes; the type or kind 1 is text for FILE and a procedure for FTRAN.
    bool isFtran() const { return std::string(GetParam()) == "FTRAN"; }
    void openText(int mode, const std::string& name) {
        openRequest(mode, isFtran() ? 0 : 1, name);
        sender.frames.clear();
    }
};

INSTANTIATE_TEST_SUITE_P(Services, FileRequestsTest, testing::Values("FTRAN", "FILE"));

TEST_P(FileRequestsTest, TheOpeningIsAnsweredEmpty) {
    send(PLP_EV_DATA, GetParam());
    expectReply("");
}

TEST_P(FileRequestsTest, AcknowledgementsDoNothing) {
    open();
    send(PLP_EV_ACKED);
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_EQ(dispatcher.currentService(), GetParam());
}

TEST_P(FileRequestsTest, AMessageWithoutAnOperationIsRefused) {
    open();
    message("");
    expectRefused(190);
}

TEST_P(FileRequestsTest, AnUnknownOperationIsRefused) {
    for (const int operation : {5, 6, 128, 255}) {
        open();
        message(std::string(1, static_cast<char>(operation)));
        expectRefused(190);
    }
}

TEST_P(FileRequestsTest, AnOpenRequestWithoutModeAndKindIsRefused) {
    for (const std::string& argument : {""s, "\x01"s}) {
        open();
        message(kOpen + argument);
        expectRefused(190);
    }
}

TEST_P(FileRequestsTest, ModesAboveFourAreRefused) {
    for (const int mode : {5, 127, 255}) {
        open();
        openRequest(mode, 0, "f.txt");
        expectRefused(190);
    }
    EXPECT_TRUE(memory.paths().empty());
}

TEST_P(FileRequestsTest, AReadWithoutAMaximumIsRefused) {
    memory.addFile("/psion/F.txt", "x\r\n");
    open();
    openText(0, "F.txt");
    message({kRead});
    expectRefused(190);
}

TEST_P(FileRequestsTest, ARefusedNameIsNotFound) {
    for (const std::string& name : {"A*"s, "NOFOLDER/A"s, "A\0B"s}) {
        open();
        openRequest(1, 0, name);
        expectRefused(189);
    }
}

TEST_P(FileRequestsTest, ModesThatNeedAFileFindNone) {
    for (const int mode : {0, 2, 4}) {
        open();
        openRequest(mode, 0, "gone.txt");
        expectRefused(189);
    }
}

TEST_P(FileRequestsTest, CreatingAFileThatExistsIsRefused) {
    memory.addFile("/psion/F.txt", "x");
    open();
    openRequest(3, 0, "F.txt");
    expectRefused(187);
    EXPECT_EQ(memory.content("/psion/F.txt"), "x");
}

TEST_P(FileRequestsTest, ReadingAFileOpenForWritingIsRefused) {
    open();
    openText(1, "f.txt");
    read();
    expectRefused(188);
}

TEST_P(FileRequestsTest, WritingAFileOpenForReadingIsRefused) {
    memory.addFile("/psion/F.txt", "x\r\n");
    open();
    openText(0, "F.txt");
    write("y");
    expectRefused(188);
    EXPECT_EQ(memory.content("/psion/F.txt"), "x\r\n");
}

TEST_P(FileRequestsTest, ReadingAndWritingNothingIsRefused) {
    open();
    read();
    expectRefused(188);
    open();
    write("x");
    expectRefused(188);
}

TEST_P(FileRequestsTest, ARecordLongerThanTheMaximumIsRefused) {
    memory.addFile("/psion/F.txt", std::string(30, 'x') + "\r\n");
    open();
    openText(0, "F.txt");
    read(20);
    expectRefused(185);
}

TEST_P(FileRequestsTest, AHeldFileIsRefused) {
    open();
    files.failAtCall(FileCall::Open, 1, ErrorNumber::PermissionDenied);
    openRequest(1, 0, "f.txt");
    expectRefused(199);
}

TEST_P(FileRequestsTest, AFullDiskIsAnswered) {
    open();
    openText(1, "f.txt");
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    write("x");
    expectRefused(186);
}

TEST_P(FileRequestsTest, AFailedReadIsARunTimeError) {
    memory.addFile("/psion/F.txt", "x\r\n");
    open();
    openText(0, "F.txt");
    files.failAtCall(FileCall::Read, 1, ErrorNumber::DeviceIoError);
    read();
    expectRefused(188);
    expectTraced("57: Device I/O error");
}

TEST_P(FileRequestsTest, ALostLineLeavesWhatWasWrittenAndTheNextServiceStartsClean) {
    open();
    openText(1, "f.txt");
    write("one");
    write("two");
    dropLink();
    expectClean();
    EXPECT_EQ(memory.content("/psion/F.txt"), "one\r\ntwo\r\n");
    EXPECT_EQ(window.current, 5);
    sender.frames.clear();
    open();
    read();
    expectRefused(188);
}

TEST_P(FileRequestsTest, AStopInsideTheReplyToAnOpenDoesNotStartTheServerAgain) {
    open();
    sender.onSend = [this] {
        sender.onSend = nullptr;
        window.current = 4;
        dropLink();
    };
    openRequest(1, 0, "f.txt");
    EXPECT_TRUE(window.states.empty());
    EXPECT_EQ(sender.frames.size(), 1U);
    sender.frames.clear();
    expectClean();
}

TEST_P(FileRequestsTest, AReplyThatThePortRefusedLeavesItsStateAlone) {
    open();
    sender.works = false;
    sender.onSend = [this] { window.setState(13); };
    openRequest(1, 0, "f.txt");
    EXPECT_EQ(window.current, 13);
}

// Who observes the transfers.

using Lines = std::vector<std::string>;

TEST_P(FileRequestsTest, ASavedFileIsToldWithItsBytes) {
    open();
    openText(1, "MEMO.TXT");
    EXPECT_EQ(told.began, 1);
    EXPECT_EQ(told.running.path, "/psion/Memo.txt");
    EXPECT_FALSE(told.running.size);
    write("one");
    write("two");
    time.advance(milliseconds{2'000});
    closeRequest();
    EXPECT_EQ(told.lines(), Lines{"saved Memo.txt 10 bytes in 2.0 s (5 bytes/s)"});
    dropLink();
    EXPECT_TRUE(told.ended.empty());
}

TEST_P(FileRequestsTest, ASaveIsToldWithTheCopyOfWhatItReplaces) {
    memory.addFile("/psion/Memo.txt", "old");
    open();
    openText(1, "MEMO.TXT");
    const std::string copy = told.running.earlierCopy;
    ASSERT_TRUE(memory.fileExists(copy));
    EXPECT_EQ(memory.content(copy), "old");
    closeRequest();
    EXPECT_EQ(told.ended.at(0).transfer.earlierCopy, copy);
    dropLink();
    open();
    openText(0, "MEMO.TXT");
    EXPECT_EQ(told.running.earlierCopy, "") << "a load replaces nothing";
}

TEST_P(FileRequestsTest, AFileThatIsLoadedToItsEndIsComplete) {
    memory.addFile("/psion/Memo.txt", "one\r\ntwo\r\n");
    open();
    openText(0, "MEMO.TXT");
    EXPECT_EQ(told.running.size, 10U);
    EXPECT_EQ(told.running.direction, TransferDirection::Load);
    read();
    EXPECT_EQ(told.running.bytes, 5U);
    read();
    EXPECT_TRUE(told.ended.empty());
    read();
    EXPECT_EQ(told.lines(), Lines{"loaded Memo.txt 10 bytes in 0.0 s"});
}

TEST_P(FileRequestsTest, ATransferThatTheLinkEndsIsIncomplete) {
    open();
    openText(1, "MEMO.TXT");
    write("one");
    dropLink();
    EXPECT_EQ(told.lines(), Lines{"save of Memo.txt incomplete: 5 bytes in 0.0 s, the link ended"});
}

TEST_P(FileRequestsTest, AFullDiskIsTheReasonOfAnIncompleteTransfer) {
    open();
    openText(1, "MEMO.TXT");
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    write("one");
    EXPECT_EQ(told.lines(), Lines{"save of Memo.txt incomplete: 0 bytes in 0.0 s, disk full (186)"});
}

TEST_P(FileRequestsTest, ARefusedOpenIsToldWithItsReason) {
    open();
    openText(0, "MISSING.TXT");
    EXPECT_EQ(told.began, 0);
    EXPECT_EQ(told.lines(), Lines{"load of Missing.txt refused: no such file (189)"});
}

TEST_P(FileRequestsTest, ARequestWithoutAFileIsToldAsRefused) {
    open();
    write("one");
    EXPECT_EQ(told.lines(), Lines{"request refused: not possible (188)"});
}

TEST_P(FileRequestsTest, AFileWhoseSizeCannotBeToldIsLoadedAllTheSame) {
    memory.addFile("/psion/Memo.txt", "one\r\n");
    open();
    files.failAtCall(FileCall::Size, 1, ErrorNumber::DeviceIoError);
    openText(0, "MEMO.TXT");
    EXPECT_EQ(told.began, 1);
    EXPECT_FALSE(told.running.size);
    read();
    expectReply("one");
    read();
    EXPECT_EQ(told.lines(), Lines{"loaded Memo.txt 5 bytes in 0.0 s"});
}

}  // namespace
}  // namespace velmora
