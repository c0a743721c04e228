#include "link/debug.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "link/frames.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DescribeFrameTest : public testing::Test {
  protected:
    void SetUp() override { crc.load_CRCtable(); }
    std::string described(FrameType type, std::uint8_t sequence, std::string_view data = {}) const {
        return describeFrame(buildFrame(crc, type, sequence, data));
    }
    Crc crc;
};

TEST_F(DescribeFrameTest, AnAckHasItsSequenceAndNoTab) {
    EXPECT_EQ(described(FrameType::Ack, 3), "3 ACK");
    EXPECT_EQ(described(FrameType::Ack, 0), "0 ACK");
}

TEST_F(DescribeFrameTest, ADisconShowsItsReason) {
    EXPECT_EQ(described(FrameType::Discon, 0, "\xC0"), "DISCON\t<C0>");
    EXPECT_EQ(described(FrameType::Discon, 0, std::string(1, '\0')), "DISCON\t<00>");
}

TEST_F(DescribeFrameTest, ALinkRequestShowsNoBytes) {
    EXPECT_EQ(described(FrameType::Connect, 0), "CONNECT");
    EXPECT_EQ(described(FrameType::Connect, 0, "0"), "CONNECT");
}

TEST_F(DescribeFrameTest, DataHasSequenceLengthAndBytes) {
    EXPECT_EQ(described(FrameType::Data, 2, "MEMO"), "2 DATA\tlen=4\tMEMO");
    EXPECT_EQ(described(FrameType::Data, 0), "0 DATA\tlen=0\t");
}

TEST_F(DescribeFrameTest, ADleAppearsTwiceAndCounts) {
    EXPECT_EQ(described(FrameType::Data, 2, "a\x10z"), "2 DATA\tlen=4\ta<10><10>z");
}

TEST_F(DescribeFrameTest, BytesOutside32To126AreHexadecimal) {
    EXPECT_EQ(described(FrameType::Data, 1, "\x1F ~\x7F\xFF\t"), "1 DATA\tlen=6\t<1F> ~<7F><FF><09>");
}

TEST_F(DescribeFrameTest, OtherTypeBytesReadAsDataWithAnOddNumber) {
    EXPECT_EQ(described(FrameType::Discon, 1), "-15 DATA\tlen=0\t");
    EXPECT_EQ(described(FrameType::Connect, 2), "-6 DATA\tlen=0\t");
    EXPECT_EQ(described(static_cast<FrameType>(0xF8), 7), "231 DATA\tlen=0\t");
}

TEST_F(DescribeFrameTest, FewerThanFiveBytesHaveNoType) {
    for (std::size_t length = 0; length < 5; ++length) {
        EXPECT_EQ(describeFrame(std::string("\x16\x10\x02\x01").substr(0, length)), "") << length;
    }
}

TEST_F(DescribeFrameTest, AFrameCutShortHasANegativeLength) {
    EXPECT_EQ(describeFrame("\x16\x10\x02\x01\x19"), "1 DATA\tlen=-4\t");
}

TEST(LinkStateNameTest, IsPaddedToTen) {
    EXPECT_EQ(linkStateName(LinkState::Idle), "idle      ");
    EXPECT_EQ(linkStateName(LinkState::WaitLink), "wait link ");
    EXPECT_EQ(linkStateName(LinkState::Linking), "linking   ");
    EXPECT_EQ(linkStateName(LinkState::Ready), "ready     ");
    EXPECT_EQ(linkStateName(LinkState::WaitAck), "wait_ack  ");
}

/// A sink that shows some categories and remembers what it was asked.
class FakeSink : public TraceSink {
  public:
    bool logging() const override { return on; }
    bool categoryEnabled(std::string_view category) override {
        asked.emplace_back(category);
        return shown.count(std::string(category)) > 0;
    }
    void addline(const std::string& text) override { lines.push_back(text); }

    bool on = true;
    std::set<std::string> shown;
    std::vector<std::string> asked;
    std::vector<std::string> lines;
};

class DebugTest : public testing::Test {
  protected:
    void SetUp() override { crc.load_CRCtable(); }
    std::string lineOf(std::string_view categories, std::string_view label, std::string_view data) {
        sink.shown = {"PLP", "STATE", "EVENT", "COM", "STATUS"};
        sink.lines.clear();
        debug.trace(categories, label, data);
        return sink.lines.size() == 1 ? sink.lines[0] : "no line";
    }
    Crc crc;
    FakeSink sink;
    Debug debug{sink};
};

TEST_F(DebugTest, NothingIsAskedWhileLoggingIsOff) {
    sink.on = false;
    sink.shown = {"PLP"};
    debug.trace("PLP", "x", {});
    EXPECT_THAT(sink.lines, IsEmpty());
    EXPECT_THAT(sink.asked, IsEmpty());
}

TEST_F(DebugTest, OneEnabledCategoryIsEnough) {
    sink.shown = {"DATA"};
    debug.trace("COM,DATA", "send", {});
    debug.trace("COM,ERROR", "ERROR", {});
    debug.trace("COM", "open port", {});
    EXPECT_THAT(sink.lines, ElementsAre("send \t"));
    EXPECT_THAT(sink.asked, ElementsAre("COM", "DATA", "COM", "ERROR", "COM"));
}

/// A sink that tells polling apart.
class TellingSink : public FakeSink {
  public:
    void addPollingLine(const std::string& text) override { addline("polling: " + text); }
};

TEST_F(DebugTest, PollingIsToldApartWhateverIsShownOfIt) {
    TellingSink telling;
    telling.shown = {"STATE"};
    Debug traced(telling);
    traced.showStateOf([] { return LinkState::WaitLink; });
    traced.trace("STATE", {}, {});
    traced.trace("PLP", "1", "timeout");
    traced.trace("STATE", {}, {});
    traced.trace("PLP", "PLP stopping", {});
    traced.trace("STATE", {}, {});
    EXPECT_THAT(telling.lines,
                ElementsAre("\tStatus=wait link ", "polling: \tStatus=wait link ", "\tStatus=wait link "));
}

TEST_F(DebugTest, ASinkThatTellsNothingApartTakesPollingAsAnyOtherLine) {
    EXPECT_EQ(lineOf("PLP", "1", "timeout"), "1 \ttimeout");
}

TEST_F(DebugTest, CategoriesAreComparedInCapitals) {
    sink.shown = {"PLP"};
    debug.trace("plp", "x", {});
    EXPECT_THAT(sink.lines, ElementsAre("x \t"));
}

TEST_F(DebugTest, ALineIsLabelBlankTabAndFrame) {
    EXPECT_EQ(lineOf("COM,DATA", "send", buildFrame(crc, FrameType::Ack, 1, {})), "send \t1 ACK");
    EXPECT_EQ(lineOf("PLP", "PLP DOWN", {}), "PLP DOWN \t");
}

TEST_F(DebugTest, AFrameWithItsHeaderIsDescribedHoweverShort) {
    EXPECT_EQ(lineOf("COM,DATA", "recv", "\x16\x10\x02"), "recv \t");
}

TEST_F(DebugTest, APlainTextIsShownAsItReads) {
    EXPECT_EQ(lineOf("COM", "open port", "COM1 9600,N,8,1"), "open port \tCOM1 9600,N,8,1");
    EXPECT_EQ(lineOf("PLP", "3", "timeout"), "3 \ttimeout");
    EXPECT_EQ(lineOf("COM", "text", "a\tb\n"), "text \ta<09>b<0A>");
}

TEST_F(DebugTest, ALabelIsOneLineWhateverItHolds) {
    EXPECT_EQ(lineOf("PLP", "PLP-->A\r\n\x1B[2J\x7F\x9B", {}), "PLP-->A<0D><0A><1B>[2J<7F><9B> \t");
    EXPECT_EQ(lineOf("COM,STATUS", "a\nb", {}), "a<0A>b\tStatus=idle      ");
}

TEST_F(DebugTest, StatusEntriesShowTheLinkState) {
    LinkState state = LinkState::Ready;
    debug.showStateOf([&state] { return state; });
    EXPECT_EQ(lineOf("COM,status", "send", "x"), "send\tStatus=ready     ");
    state = LinkState::WaitAck;
    EXPECT_EQ(lineOf("STATUS", "poll", {}), "poll\tStatus=wait_ack  ");
}

TEST_F(DebugTest, RecvAndResendShowTheirFrameEvenWithStatus) {
    const std::string ack = buildFrame(crc, FrameType::Ack, 1, {});
    EXPECT_EQ(lineOf("COM,STATUS", "recv", ack), "recv \t1 ACK");
    EXPECT_EQ(lineOf("COM,STATUS", "resend", ack), "resend \t1 ACK");
}

TEST_F(DebugTest, AStateEntryShowsTheStateAlone) {
    EXPECT_EQ(lineOf("STATE", {}, {}), "\tStatus=idle      ") << "before a link is there to ask";
    debug.showStateOf([] { return LinkState::Linking; });
    EXPECT_EQ(lineOf("STATE", {}, {}), "\tStatus=linking   ");
    EXPECT_EQ(lineOf("PLP,STATE,COM", {}, {}), "\tStatus=linking   ") << "wherever the category stands";
    EXPECT_EQ(lineOf("STATE", "labelled", {}), "labelled \t");
    EXPECT_EQ(lineOf("STATE", {}, "data"), " \tdata");
    EXPECT_EQ(lineOf("COM", {}, {}), " \t");
}

}  // namespace
}  // namespace velmora
