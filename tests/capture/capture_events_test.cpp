#include "capture/capture_events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "capture/capture_cases.h"

namespace velmora {
namespace {

using test::CaptureScript;
using testing::ElementsAre;
using Kind = CaptureEvent::Kind;

std::vector<std::string> linesOf(const Capture& capture) {
    std::vector<std::string> lines;
    for (const CaptureEvent& event : eventsOf(capture)) {
        const std::string way = event.direction == CaptureDirection::Sent ? "sent " : "received ";
        switch (event.kind) {
            case Kind::Port:
                lines.push_back("port " + capture.ports[event.port].device);
                break;
            case Kind::Frame:
                lines.push_back(way + (event.parsed ? std::to_string(event.parsed->type) : "bad") +
                                (event.repeated ? " again" : ""));
                break;
            case Kind::Stray:
                lines.push_back(way + "stray " + std::to_string(event.stray));
                break;
            case Kind::Comment:
                lines.push_back("comment " + event.bytes);
                break;
        }
    }
    return lines;
}

TEST(CaptureEvents, AnEmptyCaptureHasNone) {
    EXPECT_TRUE(eventsOf({}).empty());
    EXPECT_TRUE(eventsOf(CaptureScript().capture).empty());
}

TEST(CaptureEvents, FramesArePutTogetherWhateverComesBetween) {
    const std::string frame = test::dataFrame(1, "hello");
    CaptureScript script;
    script.received(0, frame.substr(0, 4)).sent(1, test::ack(0)).received(2, frame.substr(4));
    EXPECT_THAT(linesOf(script.capture), ElementsAre("port /dev/ttyUSB0", "sent 0", "received 24"));
    EXPECT_EQ(eventsOf(script.capture)[2].time, script.capture.packets[2].time);
    EXPECT_EQ(eventsOf(script.capture)[2].bytes, frame);
}

TEST(CaptureEvents, DamagedFramesAndStrayBytesAreTold) {
    std::string damaged = test::ack(1);
    damaged.back() ^= 1;
    CaptureScript script;
    script.received(0, "ab" + damaged + "cdefg").received(1, "\x16\x10");
    EXPECT_THAT(linesOf(script.capture),
                ElementsAre("port /dev/ttyUSB0", "received stray 2", "received bad", "received stray 3",
                            "received stray 2", "received stray 2"));
}

TEST(CaptureEvents, ARepeatIsTheSameDataOnTheSameLink) {
    CaptureScript script;
    script.sent(0, test::dataFrame(1, "a")).received(1, test::dataFrame(1, "a"));
    script.sent(2, test::dataFrame(1, "a")).sent(3, test::dataFrame(2, "a"));
    script.sent(4, test::frame(FrameType::Connect, 0)).sent(5, test::dataFrame(2, "a"));
    EXPECT_THAT(linesOf(script.capture), ElementsAre("port /dev/ttyUSB0", "sent 24", "received 24",
                                                     "sent 24 again", "sent 24", "sent 16", "sent 24"));
}

TEST(CaptureEvents, AnotherPortBeginsAnew) {
    CaptureScript script;
    script.received(0, "\x16\x10\x02").note(0, "hm");
    script.capture.ports.push_back({"COM7", "", 0});
    script.received(1, test::ack(0));
    EXPECT_THAT(linesOf(script.capture), ElementsAre("port /dev/ttyUSB0", "comment hm", "received stray 3",
                                                     "port COM7", "received 0"));
}

}  // namespace
}  // namespace velmora
