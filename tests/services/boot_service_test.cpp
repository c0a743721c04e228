#include "services/boot_service.h"

#include "services/boot_file.h"
#include "services/service_fixture.h"
#include "services/two_byte_number.h"

namespace velmora {
namespace {

using namespace test;

std::string codeOf(std::size_t length) {
    std::string code;
    for (std::size_t i = 0; i < length; ++i) {
        code += static_cast<char>(i * 7);
    }
    return code;
}

class BootServiceTest : public ServiceFixture {
  protected:
    void SetUp() override { openService("BOOT"); }
    void addBootFile(const std::string& code, const std::string& relocations = {}) {
        memory.addFile("/psion/Prog.bin", makeBootFile(code, relocations));
    }
    void load() {
        message("PROG");
        sender.frames.clear();
    }
    void address(std::uint32_t value) { message(twoBytes(value)); }
    void next() { message("next"); }
    void expectEnd() {
        ASSERT_EQ(sender.frames.size(), 1U);
        EXPECT_EQ(sender.frames[0], (RecordingSender::Frame{FrameType::Discon, ""}));
        sender.frames.clear();
        expectClean();
    }
};

TEST_F(BootServiceTest, TheOpeningIsAnsweredEmpty) {
    dropLink();
    message("BOOT");
    expectReply("");
}

TEST_F(BootServiceTest, TheNameIsAnsweredWithTheLengthOfTheCode) {
    addBootFile(codeOf(450));
    message("PROG");
    expectReply("\x01\xC2");
    EXPECT_EQ(window.current, 12);
    EXPECT_EQ(window.currentFile, "/psion/Prog.bin");
    EXPECT_EQ(window.stats[StatsBytesReceived], 4);
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(BootServiceTest, TheFileIsShownAsItIsStored) {
    memory.addFile("/psion/PROG.BIN", makeBootFile("code", {}));
    message("PROG");
    EXPECT_EQ(window.currentFile, "/psion/PROG.BIN");
}

TEST_F(BootServiceTest, CodeIsSentInChunksWithTheirAddresses) {
    const std::string code = codeOf(450);
    addBootFile(code);
    load();
    address(0x2000);
    expectReply("\x20\x00"s + code.substr(0, 200));
    next();
    expectReply("\x20\xC8" + code.substr(200, 200));
    next();
    expectReply("\x21\x90" + code.substr(400));
    EXPECT_EQ(window.stats[StatsBytesSent], 450) << "code bytes only";
    next();
    expectEnd();
}

TEST_F(BootServiceTest, CodeOfOneChunkIsSentAtOnce) {
    addBootFile(codeOf(200));
    load();
    address(0x8000);
    expectReply("\x80\x00"s + codeOf(200));
    next();
    expectEnd();
}

TEST_F(BootServiceTest, CodeIsRelocatedToTheAddress) {
    std::string code(18, '\0');
    code.replace(16, 2, "\x12\x34");
    addBootFile(code, "\x00\x10"s);
    load();
    address(0x2000);
    expectReply("\x20\x00"s + std::string(16, '\0') + "\x32\x34");
}

TEST_F(BootServiceTest, CodeWithoutRelocationsIsSentUnchanged) {
    addBootFile("abc");
    load();
    address(0xFFFF);
    expectReply(
        "\xFF\xFF"
        "abc");
}

TEST_F(BootServiceTest, AnEmptyCodeEndsAtTheAddress) {
    addBootFile("");
    message("PROG");
    expectReply("\0\0"s);
    address(0x2000);
    expectEnd();
}

TEST_F(BootServiceTest, MoreThanTheAddressIsIgnored) {
    addBootFile("abc");
    load();
    message("\x20\x00trailing"s);
    expectReply("\x20\x00"s + "abc");
}

TEST_F(BootServiceTest, AcknowledgementsDoNothing) {
    addBootFile(codeOf(450));
    load();
    send(PLP_EV_ACKED);
    address(0x2000);
    sender.frames.clear();
    send(PLP_EV_ACKED);
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_EQ(dispatcher.currentService(), "BOOT");
}

TEST_F(BootServiceTest, AMessageToAServiceThatIsNotOpenIsRefused) {
    BootService closed{sender, window, files, transfers, names};
    addBootFile("abc");
    std::int32_t code = PLP_EV_DATA;
    std::string payload = "PROG";
    closed.handle(code, payload);
    EXPECT_EQ(sender.frames,
              (std::vector<RecordingSender::Frame>{{FrameType::Discon, codePayload(kCodeInvalidRequest)}}));
    EXPECT_EQ(code, PLP_EV_RESET);
}

TEST_F(BootServiceTest, BlanksAroundTheNameAreNoPartOfIt) {
    addBootFile("abc");
    message(" PROG  ");
    expectReply("\0\x03"s);
    EXPECT_EQ(window.stats[StatsBytesReceived], 7);
}

TEST_F(BootServiceTest, AMissingFileIsRefused) {
    message("PROG");
    expectRefused(189);
    EXPECT_EQ(window.states, std::vector<std::int32_t>{5});
}

TEST_F(BootServiceTest, ARefusedNameIsNotFound) {
    message("PR*G");
    expectRefused(189);
}

class BadBootFileTest : public BootServiceTest, public testing::WithParamInterface<std::string> {};

TEST_P(BadBootFileTest, IsRefused) {
    memory.addFile("/psion/Prog.bin", GetParam());
    message("PROG");
    expectRefused(188);
    EXPECT_EQ(trace.find("ERROR"), nullptr) << "a failed check is no failure of the program";
}

INSTANTIATE_TEST_SUITE_P(Contents, BadBootFileTest,
                         testing::Values(""s, "\0"s, "\0\x03"s + "ab"s,                // cut short
                                         "\0\x01"s + "a\0\x62\0\0\0\0"s,               // wrong code check
                                         "\0\x01"s + "a\0\x61"s,                       // no table
                                         "\0\x01"s + "a\0\x61\xFF\xFF"s,               // table cut short
                                         "\0\x02"s + "ab\0\xC3\0\x01\0\0\0\x01"s,      // wrong table check
                                         "\0\x02"s + "ab\0\xC3\0\x01\0\x01\0\x01"s));  // entry outside

TEST_F(BootServiceTest, AShortAddressIsRefused) {
    addBootFile("abc");
    load();
    message("\x20");
    expectRefused(190);
}

TEST_F(BootServiceTest, AWordThatOutgrowsItsBytesIsARunTimeError) {
    addBootFile("\xF0\x00"s, "\0\0"s);
    load();
    address(0x1000);
    expectRefused(188);
    expectTraced("6: Overflow");
}

TEST_F(BootServiceTest, AnAddressThatOutgrowsItsBytesIsARunTimeError) {
    addBootFile(codeOf(300));
    load();
    address(0xFFFF);
    sender.frames.clear();
    next();
    expectRefused(188);
}

TEST_F(BootServiceTest, AFileThatCannotBeReadIsARunTimeError) {
    addBootFile("abc");
    files.failAtCall(FileCall::Read, 1, ErrorNumber::DeviceIoError);
    message("PROG");
    expectRefused(188);
    expectTraced("57: Device I/O error");
}

TEST_F(BootServiceTest, ALostLineStartsTheNextTransferAnew) {
    addBootFile(codeOf(450));
    load();
    address(0x2000);
    dropLink();
    expectClean();
    sender.frames.clear();
    openService("BOOT");
    message("PROG");
    expectReply("\x01\xC2");
    address(0x4000);
    expectReply("\x40\x00"s + codeOf(200));
}

// Who observes the transfers.

using Lines = std::vector<std::string>;

TEST_F(BootServiceTest, CodeIsToldAsALoad) {
    addBootFile(codeOf(250));
    load();
    EXPECT_EQ(told.running.size, 250U);
    EXPECT_EQ(told.running.kind, TransferKind::Boot);
    address(0x2000);
    next();
    EXPECT_EQ(told.running.bytes, 250U);
    next();
    EXPECT_EQ(told.lines(), Lines{"loaded Prog.bin 250 bytes in 0.0 s"});
}

TEST_F(BootServiceTest, CodeThatIsNotFetchedToItsEndIsIncomplete) {
    addBootFile(codeOf(250));
    load();
    address(0x2000);
    dropLink();
    EXPECT_EQ(told.lines(), Lines{"load of Prog.bin incomplete: 200 bytes in 0.0 s, the link ended"});
}

TEST_F(BootServiceTest, CodeThatIsNotThereIsToldAsRefused) {
    message("NONE");
    EXPECT_EQ(told.lines(), Lines{"load of None.bin refused: no such file (189)"});
}

}  // namespace
}  // namespace velmora
