#include "link/idle_polling.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "link/frames.h"

namespace velmora {
namespace {

/// One entry of the trace, the link's state with it, and whether it is polling.
struct Entry {
    std::string categories;
    std::string label;
    std::string data;
    LinkState state;
    bool polling;
};

class IdlePollingTest : public testing::Test {
  protected:
    IdlePollingTest() { crc.load_CRCtable(); }

    std::string ack(std::uint8_t sequence) const { return buildFrame(crc, FrameType::Ack, sequence, {}); }
    std::string data() const { return buildFrame(crc, FrameType::Data, 1, "FILE"); }
    std::string connect() const { return buildFrame(crc, FrameType::Connect, 0, {}); }

    void expect(const std::vector<Entry>& entries) {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const Entry& entry = entries[i];
            EXPECT_EQ(polling.covers(entry.categories, entry.label, entry.data, entry.state), entry.polling)
                << "entry " << i << ": " << entry.label;
        }
    }

    Crc crc;
    IdlePolling polling;
};

TEST_F(IdlePollingTest, RepeatedLinkRequestsArePollingButTheFirstIsNot) {
    expect({
        {"PLP", "starting PLP", "", LinkState::Idle, false},
        {"STATE", "", "", LinkState::Idle, false},
        {"PLP", "PLP INITLINK", "", LinkState::Idle, false},
        {"COM,DATA", "send", connect(), LinkState::WaitLink, false},
        {"STATE", "", "", LinkState::WaitLink, false},
        {"PLP", "1", "timeout", LinkState::WaitLink, true},
        {"COM,DATA", "send", connect(), LinkState::WaitLink, true},
        {"STATE", "", "", LinkState::WaitLink, true},
        {"PLP", "1", "timeout", LinkState::WaitLink, true},
    });
}

TEST_F(IdlePollingTest, ARepeatedAcknowledgementThatKeepsTheLinkAliveIsPolling) {
    expect({
        {"PLP", "3", "timeout", LinkState::Ready, true},
        {"PLP", "PLP_ERROR", "", LinkState::Ready, true},
        {"COM,DATA", "send", ack(5), LinkState::Ready, true},
        {"STATE", "", "", LinkState::Ready, true},
    });
}

TEST_F(IdlePollingTest, AnAcknowledgementOfNothingIsPolling) {
    expect({
        {"EVENT", "Event RECEIVE", "", LinkState::Ready, true},
        {"COM,DATA", "recv", ack(2), LinkState::Ready, true},
        {"STATE", "", "", LinkState::Ready, true},
    });
}

TEST_F(IdlePollingTest, AnAcknowledgementThatIsWaitedForIsNot) {
    expect({
        {"EVENT", "Event RECEIVE", "", LinkState::WaitAck, true},
        {"COM,DATA", "recv", ack(2), LinkState::WaitAck, false},
        {"STATE", "", "", LinkState::Ready, false},
    });
}

TEST_F(IdlePollingTest, ALookAtThePortIsPollingUntilItBringsSomething) {
    expect({
        {"EVENT", "Event RECEIVE", "", LinkState::Ready, true},
        {"STATE", "", "", LinkState::Ready, true},
        {"EVENT", "Event RECEIVE", "", LinkState::Ready, true},
        {"COM,DATA", "recv", data(), LinkState::Ready, false},
        {"COM,DATA", "send", ack(1), LinkState::Ready, false},
        {"STATE", "", "", LinkState::Ready, false},
        {"PLP", "PLP-->FILE", "", LinkState::Ready, false},
        {"STATE", "", "", LinkState::Ready, false},
    });
}

TEST_F(IdlePollingTest, AFrameThatIsSentAgainIsNot) {
    expect({
        {"PLP", "4", "timeout", LinkState::WaitAck, false},
        {"PLP", "PLP_ERROR", "", LinkState::WaitAck, false},
        {"COM,DATA", "resend", data(), LinkState::WaitAck, false},
        {"STATE", "", "", LinkState::WaitAck, false},
    });
}

TEST_F(IdlePollingTest, ADamagedFrameAndWhatAnswersItAreNot) {
    expect({
        {"EVENT", "Event RECEIVE", "", LinkState::Ready, true},
        {"COM,DATA", "recv", "\x16\x10\x02\x01", LinkState::Ready, false},
        {"PLP", "PLP_ERROR", "", LinkState::Ready, false},
        {"COM,DATA", "send", ack(1), LinkState::Ready, false},
    });
}

TEST_F(IdlePollingTest, ADamagedAcknowledgementIsToldByWhatFollows) {
    expect({
        {"COM,DATA", "recv", ack(1), LinkState::Ready, true},
        {"PLP", "PLP_ERROR", "", LinkState::Ready, false},
        {"COM,DATA", "send", ack(1), LinkState::Ready, false},
    });
}

TEST_F(IdlePollingTest, WhatElseIsSentAmidAPollIsNot) {
    expect({
        {"PLP", "1", "timeout", LinkState::WaitLink, true},
        {"COM,DATA", "send", data(), LinkState::Ready, false},
        {"PLP", "1", "timeout", LinkState::WaitLink, true},
        {"PLP", "PLP stopping", "", LinkState::WaitLink, false},
        {"COM", "PLP_STOPPED", "", LinkState::WaitLink, false},
    });
}

}  // namespace
}  // namespace velmora
