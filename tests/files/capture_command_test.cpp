#include "files/capture_command.h"

#include "capture/capture_cases.h"
#include "capture/pcapng_writer.h"
#include "files/tool_fixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class CaptureCommandTest : public test::ToolTest {
  protected:
    int show(const Capture& capture) { return run({"capture", "-"}, pcapngFile(capture)); }
};

TEST_F(CaptureCommandTest, PrintsEachFrameAsTheTraceDoesBehindItsTime) {
    test::CaptureScript script;
    script.sent(0, test::frame(FrameType::Connect, 0)).received(12, test::ack(0)).note(12, "state: ready");
    script.received(1500, test::dataFrame(1, "TIME")).sent(1501, test::ack(1));
    EXPECT_EQ(show(script.capture), 0) << complaint;
    expectPrinted(
        "0.000\tport \t/dev/ttyUSB0 9600,N,8,1\n"
        "0.000\tsend \tCONNECT\n"
        "0.012\trecv \t0 ACK\n"
        "0.012\tnote \tstate: ready\n"
        "1.500\trecv \t1 DATA\tlen=4\tTIME\n"
        "1.501\tsend \t1 ACK\n"
        "Length: 1.501 s\n");
}

TEST_F(CaptureCommandTest, MarksRepeatsBadChecksAndStrayBytes) {
    std::string damaged = test::ack(1);
    damaged.back() ^= 1;
    test::CaptureScript script;
    script.received(0, "??" + damaged + "?\x16");
    script.received(1, test::dataFrame(2, "a")).received(2, test::dataFrame(2, "a"));
    script.sent(3, test::dataFrame(2, "a")).sent(4, test::dataFrame(2, "a"));
    EXPECT_EQ(show(script.capture), 0);
    expectPrinted(
        "0.000\trecv \t[2 stray bytes]\n"
        "0.000\trecv \t1 ACK\t[bad check]\n"
        "0.001\trecv \t[2 stray bytes]\n"
        "0.001\trecv \t2 DATA\tlen=1\ta\n"
        "0.002\trecv \t2 DATA\tlen=1\ta\t[repeat]\n"
        "0.003\tsend \t2 DATA\tlen=1\ta\n"
        "0.004\tresend \t2 DATA\tlen=1\ta\n");
}

TEST_F(CaptureCommandTest, EndsWithTheStatistics) {
    test::CaptureScript script;
    script.sent(0, test::dataFrame(1, "a")).received(20, test::ack(1)).received(100, "x");
    script.capture.masked = true;
    EXPECT_EQ(show(script.capture), 0);
    expectPrinted(
        "Length: 0.100 s, masked\n"
        "From the Organiser: 10 bytes, 1 frame, 0 repeats, 0 bad checks, 1 stray byte, 10 % of the line "
        "used\n"
        "From the server: 10 bytes, 1 frame, 0 repeats, 0 bad checks, 0 stray bytes, 10 % of the line used\n"
        "  acknowledged in 0.020 s (0.020 to 0.020 s, 1 frame)\n");
}

TEST_F(CaptureCommandTest, TextsOfTheFileCannotBreakALine) {
    test::CaptureScript script;
    script.note(0, "a\nb").note(0, "\xFF\n");
    EXPECT_EQ(show(script.capture), 0);
    expectPrinted("note \ta<0A>b\n");
    expectPrinted("note \t<FF><0A>\n");
}

TEST_F(CaptureCommandTest, AFileThatBreaksOffIsPrintedAsFarAsItGoesAndIsAFailure) {
    test::CaptureScript script;
    script.sent(0, test::ack(1)).sent(0, test::ack(2));
    const std::string whole = pcapngFile(script.capture);
    EXPECT_EQ(run({"capture", "-"}, whole.substr(0, whole.size() - 1)), 1);
    expectPrinted("send \t1 ACK\n");
    EXPECT_NE(complaint.find("the file is cut off; what follows is missing"), std::string::npos) << complaint;
}

TEST_F(CaptureCommandTest, AnotherKindOfFileIsRefused) {
    EXPECT_EQ(run({"capture", "-"}, "ORGANS"), 1);
    EXPECT_NE(complaint.find("the file is no capture (pcapng)"), std::string::npos) << complaint;
    EXPECT_EQ(run({"capture", "/w/missing"}), 1);
    expectUsage({"capture"}, "FILE is required");
}

}  // namespace
}  // namespace velmora
