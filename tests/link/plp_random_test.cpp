// A long random life of the link: whatever arrives and whenever, timers and state stay as they must.
#include <gtest/gtest.h>

#include <random>

#include "support/link_rig.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using test::milliseconds;

class RandomLife : public testing::TestWithParam<unsigned>, protected test::LinkRig {
  protected:
    unsigned below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
    bool oneIn(unsigned chances) { return below(chances) == 0; }

    std::string randomBytes(std::size_t length) {
        static constexpr char kLikely[] = {0x16, 0x10, 0x02, 0x03, 0x01, 0x18};
        std::string bytes;
        for (std::size_t i = 0; i < length; ++i) {
            bytes += oneIn(2) ? kLikely[below(sizeof kLikely)] : static_cast<char>(below(256));
        }
        return bytes;
    }
    std::string randomFrame() {
        const auto type = static_cast<FrameType>(oneIn(10) ? below(32) * 8 : below(4) * 8);
        std::string wire = frame(type, static_cast<std::uint8_t>(below(8)), randomBytes(below(40)));
        if (oneIn(10)) {
            wire[below(static_cast<unsigned>(wire.size()))] = static_cast<char>(below(256));
        }
        if (oneIn(20)) {
            wire.resize(below(static_cast<unsigned>(wire.size())));
        }
        return wire;
    }
    /// A frame that the link in its present state is likely to welcome.
    std::string welcomeFrame() {
        switch (plp.linkState()) {
            case LinkState::Idle:
            case LinkState::WaitLink:
                return frame(oneIn(2) ? FrameType::Connect : FrameType::Ack, 0);
            case LinkState::Linking:
                return frame(FrameType::Data, 1, "FTRAN");
            case LinkState::Ready:
                return frame(FrameType::Data, anySequence(), "request");
            case LinkState::WaitAck:
                return frame(FrameType::Ack, static_cast<std::uint8_t>(below(3)));
        }
        return {};
    }
    std::uint8_t anySequence() { return static_cast<std::uint8_t>(below(8)); }

    void meddle() {
        if (oneIn(40) && window.current > Offline && !stopping) {
            stop();
        }
        if (oneIn(40) && window.current <= Offline) {
            start();
        }
    }
    void step() {
        switch (below(10)) {
            case 0:
                port.input += randomBytes(below(60));
                break;
            case 1:
                port.input += randomFrame();
                break;
            case 2:
            case 3:
            case 4:
            case 5:
                port.input += welcomeFrame();
                break;
            case 6:
                time.advance(milliseconds(below(2000)));
                break;
            case 7:
                if (oneIn(10)) {
                    time.advance(31s);
                }
                break;
            case 8:
                if (oneIn(10)) {
                    fail();
                }
                break;
            default:
                meddle();
                break;
        }
        if (window.current <= Offline && !oneIn(5)) {
            start();
        }
        time.advance(milliseconds(below(60)));
        port.sendError.reset();
        port.readError.reset();
    }
    void fail() {
        const CommError error(oneIn(3) ? 0 : kCommFailed, "gone", "port");
        oneIn(2) ? port.sendError = error : port.readError = error;
    }
    void liveIn(std::function<void()> meddling) {
        port.onSend = [meddling](const std::string&) { meddling(); };
        port.onRead = meddling;
        yield.onYield = meddling;
        window.onState = [meddling](std::int32_t) { meddling(); };
        services.onEvent = [this, meddling](std::int32_t& code, std::string& payload) {
            meddling();
            if (code != PLP_EV_RESET && !oneIn(3)) {
                plp.PLP_Send(oneIn(8) ? FrameType::Discon : FrameType::Data, oneIn(2) ? payload : "\x10");
            }
        };
    }
    void live(int steps) {
        start();
        for (int i = 0; i < steps; ++i) {
            step();
            ASSERT_TRUE(plp.isConsistent())
                << "step " << i << ", state " << static_cast<int>(plp.linkState());
            ASSERT_EQ(window.current > Offline, port.open) << "step " << i;
            if (plp.linkState() == LinkState::Ready) {
                ++ready;
            }
            forget();
        }
    }

    std::mt19937 random{GetParam()};
    int ready = 0;
};

TEST_P(RandomLife, WithoutInterruptions) {
    liveIn([] {});
    live(20'000);
    EXPECT_GT(ready, 1000) << "the link should come up often enough to be worth testing";
}

TEST_P(RandomLife, WithStopsAndStartsInsideEveryCall) {
    int depth = 0;
    liveIn([this, &depth] {
        if (depth < 3) {
            ++depth;
            meddle();
            --depth;
        }
    });
    live(20'000);
    EXPECT_GT(ready, 300);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLife, testing::Range(1U, 6U));

}  // namespace
}  // namespace velmora
