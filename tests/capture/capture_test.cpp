#include "capture/capture.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;

CapturedPacket packetAt(std::chrono::nanoseconds time) {
    CapturedPacket packet;
    packet.time = time;
    packet.bytes = "byte";
    return packet;
}

TEST(LastOf, WhatIsOlderThanTheSpanIsLeftOut) {
    Capture capture;
    capture.ports = {{"/dev/ttyUSB0", "9600,N,8,1", 9600}};
    capture.packets = {packetAt(39s), packetAt(40s), packetAt(70s), packetAt(100s)};
    const Capture last = lastOf(capture, 60s);
    EXPECT_EQ(last.ports, capture.ports);
    EXPECT_EQ(last.packets, (std::vector<CapturedPacket>{packetAt(40s), packetAt(70s), packetAt(100s)}));
}

TEST(LastOf, NothingIsLeftOfNothing) {
    Capture capture;
    capture.masked = true;
    const Capture last = lastOf(capture, 60s);
    EXPECT_TRUE(last.masked);
    EXPECT_TRUE(last.packets.empty());
}

}  // namespace
}  // namespace velmora
