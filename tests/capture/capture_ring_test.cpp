#include "capture/capture_ring.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

class CaptureRingTest : public testing::Test {
  protected:
    void add(const std::string& bytes) { ring.addPacket({7, {}, CaptureDirection::Sent, bytes, {"note"}}); }

    CaptureRing ring{16 * 1024};
};

TEST_F(CaptureRingTest, KeepsWhatFits) {
    EXPECT_TRUE(ring.capture().packets.empty());
    ring.addPort({"COM1", "", 0});
    add("one");
    ring.addPort({"COM2", "", 0});
    add("two");
    const Capture capture = ring.capture();
    EXPECT_EQ(capture.ports, (std::vector<CapturedPort>{{"COM1", "", 0}, {"COM2", "", 0}}));
    ASSERT_EQ(capture.packets.size(), 2U);
    EXPECT_EQ(capture.packets[0].bytes, "one");
    EXPECT_EQ(capture.packets[0].port, 0U);
    EXPECT_EQ(capture.packets[1].port, 1U);
    EXPECT_FALSE(capture.masked);
}

TEST_F(CaptureRingTest, DropsTheOldestWithTheirPorts) {
    ring.addPort({"COM1", "", 0});
    add("old");
    ring.addPort({"COM2", "", 0});
    for (int i = 0; i < 100; ++i) {
        add(std::string(1000, static_cast<char>('A' + i % 26)));
    }
    const Capture capture = ring.capture();
    EXPECT_EQ(capture.ports, (std::vector<CapturedPort>{{"COM2", "", 0}}));
    EXPECT_GE(capture.packets.size(), 10U);
    EXPECT_LE(capture.packets.size(), 16U);
    EXPECT_EQ(capture.packets.front().port, 0U);
    EXPECT_EQ(capture.packets.back().bytes[0], 'A' + 99 % 26);
}

TEST_F(CaptureRingTest, ThePacketThatCameLastStaysWhateverItsSize) {
    ring.addPort({"COM1", "", 0});
    add("old");
    add(std::string(100'000, 'x'));
    EXPECT_EQ(ring.capture().packets.size(), 1U);
}

TEST_F(CaptureRingTest, PortsOverWhichNothingPassedAreDropped) {
    for (int i = 0; i < 5; ++i) {
        ring.addPort({"COM" + std::to_string(i), "", 0});
    }
    add("one");
    EXPECT_EQ(ring.capture().ports, (std::vector<CapturedPort>{{"COM4", "", 0}}));
}

}  // namespace
}  // namespace velmora
