#include "link/frame_cutter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "link/frames.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class FrameCutterTest : public testing::Test {
  protected:
    void SetUp() override { crc.load_CRCtable(); }

    std::string frame(std::string_view data, std::uint8_t sequence = 1) const {
        return buildFrame(crc, FrameType::Data, sequence, data);
    }
    /// Feeds bytes and returns the payloads of the frames that come out ("?" for a bad one).
    std::vector<std::string> feed(std::string_view bytes) {
        cutter.append(bytes);
        std::vector<std::string> payloads;
        while (const auto cut = cutter.next()) {
            const auto parsed = parseFrame(crc, *cut);
            payloads.push_back(parsed ? parsed->data : "?");
        }
        return payloads;
    }
    std::vector<std::string> feedIn(std::size_t portion, std::string_view bytes) {
        std::vector<std::string> payloads;
        for (std::size_t at = 0; at < bytes.size(); at += portion) {
            for (std::string& payload : feed(bytes.substr(at, portion))) {
                payloads.push_back(std::move(payload));
            }
        }
        return payloads;
    }
    std::vector<std::string> feedByteByByte(std::string_view bytes) { return feedIn(1, bytes); }
    using Payloads = std::vector<std::string>;

    Crc crc;
    FrameCutter cutter;
};

TEST_F(FrameCutterTest, CutsOneFrame) {
    EXPECT_EQ(feed(frame("hello")), Payloads{"hello"});
}

TEST_F(FrameCutterTest, NoFrameComesSoonerThanItSays) {
    for (const std::string& payload :
         {std::string(), std::string("\x10\x10\x03"), std::string(300, '\x10')}) {
        SCOPED_TRACE(payload.size());
        const std::string bytes = "noise\x16\x10" + frame(payload);
        for (std::size_t come = 0; come < bytes.size(); ++come) {
            cutter.clear();
            EXPECT_TRUE(feed(bytes.substr(0, come)).empty());
            EXPECT_GE(cutter.leastToCome(), 1U);
            EXPECT_LE(cutter.leastToCome(), bytes.size() - come) << come;
        }
    }
}

TEST_F(FrameCutterTest, AtItsEndAFrameLacksWhatItSays) {
    EXPECT_EQ(cutter.leastToCome(), 7U) << "header, end and check";
    feed("\x16");
    EXPECT_EQ(cutter.leastToCome(), 6U);
    feed("\x10\x02");
    EXPECT_EQ(cutter.leastToCome(), 4U);
    feed("data");
    EXPECT_EQ(cutter.leastToCome(), 4U);
    feed("\x10");
    EXPECT_EQ(cutter.leastToCome(), 3U);
    feed("\x10");
    EXPECT_EQ(cutter.leastToCome(), 4U) << "an escaped one";
    feed("\x10\x03");
    EXPECT_EQ(cutter.leastToCome(), 2U);
    feed("c");
    EXPECT_EQ(cutter.leastToCome(), 1U);
    feed("k");
    EXPECT_EQ(cutter.leastToCome(), 7U);
}

TEST_F(FrameCutterTest, CutsTwoFramesOfOneReadInOrder) {
    EXPECT_EQ(feed(frame("one", 1) + frame("two", 2)), (Payloads{"one", "two"}));
}

TEST_F(FrameCutterTest, CompletesAFrameSplitAnywhere) {
    const std::string whole = frame("MEMO\x10\x10\x03 text");
    for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
        cutter.clear();
        Payloads got = feed(whole.substr(0, cut));
        for (const std::string& payload : feed(whole.substr(cut))) {
            got.push_back(payload);
        }
        EXPECT_EQ(got, Payloads{"MEMO\x10\x10\x03 text"}) << "cut at " << cut;
    }
}

TEST_F(FrameCutterTest, DropsGarbageBetweenFrames) {
    EXPECT_EQ(feed("noise\x16\x10" + frame("one") + "\x10\x03noise" + frame("two", 2)),
              (Payloads{"one", "two"}));
    EXPECT_EQ(cutter.droppedBytes(), 7U + 7U);
}

TEST_F(FrameCutterTest, AHeaderSplitAfterGarbageSurvives) {
    EXPECT_EQ(feed("noise\x16\x10"), Payloads{});
    EXPECT_EQ(feed(frame("one").substr(2)), Payloads{"one"});
}

TEST_F(FrameCutterTest, AnEscapedTrailerDoesNotEndAFrame) {
    EXPECT_EQ(feed(frame("\x10\x03")), Payloads{"\x10\x03"});
    EXPECT_EQ(feed(frame("\x10\x10\x03", 2)), Payloads{"\x10\x10\x03"});
}

TEST_F(FrameCutterTest, EveryTripleOfControlBytesArrives) {
    const std::string bytes = "\x00\x02\x03\x10\x16"s;
    for (const char a : bytes) {
        for (const char b : bytes) {
            for (const char c : bytes) {
                const std::string payload = {a, b, c};
                cutter.clear();
                EXPECT_EQ(feed(frame(payload)), Payloads{payload}) << a + 0 << ' ' << b + 0 << ' ' << c + 0;
                EXPECT_EQ(feedByteByByte(frame(payload, 2)), Payloads{payload});
                EXPECT_EQ(feed("x" + frame(payload + payload, 3) + frame(payload, 4)),
                          (Payloads{payload + payload, payload}));
            }
        }
    }
}

TEST_F(FrameCutterTest, LongRunsOfDleArrive) {
    for (std::size_t length = 1; length < 20; ++length) {
        const std::string run(length, '\x10');
        EXPECT_EQ(feed(frame(run)), Payloads{run});
        EXPECT_EQ(feedByteByByte(frame(run + "\x03", 2)), Payloads{run + "\x03"});
    }
}

TEST_F(FrameCutterTest, CheckBytesThatLookLikeControlBytesAreTakenByPosition) {
    // Whatever the check happens to be, the frame ends two bytes behind its trailer.
    for (int i = 0; i < 3000; ++i) {
        const std::string payload = "p" + std::to_string(i);
        ASSERT_EQ(feed(frame(payload)), Payloads{payload});
    }
}

TEST_F(FrameCutterTest, AFrameWithoutAnEndIsKeptUntilTheCapacity) {
    EXPECT_EQ(feed("\x16\x10\x02" + std::string(FrameCutter::kCapacity - 3, 'x')), Payloads{});
    EXPECT_EQ(cutter.droppedBytes(), 0U);
    EXPECT_EQ(feed("y"), Payloads{});
    EXPECT_GT(cutter.droppedBytes(), FrameCutter::kCapacity - 3);
    EXPECT_EQ(feed(frame("next")), Payloads{"next"});
}

TEST_F(FrameCutterTest, AFrameBehindAnEndlessHeaderIsFoundOnceTheCapacityIsReached) {
    feed("\x16\x10\x02" + std::string(FrameCutter::kCapacity - 20, 'x'));
    const std::string good = frame("good");
    // Its trailer ends the endless frame, which fails its check; the next frame arrives.
    EXPECT_EQ(feed(good), Payloads{"?"});
    EXPECT_EQ(feed(good), Payloads{"good"});
}

TEST_F(FrameCutterTest, HeadersWithoutAnEndAreDroppedOneByOne) {
    std::string headers;
    for (int i = 0; i < 100'000; ++i) {
        headers += "\x16\x10\x02";
    }
    for (std::size_t i = 0; i < headers.size(); i += 1024) {
        EXPECT_EQ(feed(headers.substr(i, 1024)), Payloads{});
    }
    EXPECT_GE(cutter.droppedBytes(), headers.size() - FrameCutter::kCapacity);
}

TEST_F(FrameCutterTest, TheLongestFrameIsTheSameHoweverItArrives) {
    const std::size_t most = FrameCutter::kCapacity - frame("").size();
    for (const std::size_t portion : {std::size_t{1}, std::size_t{1024}, 3 * FrameCutter::kCapacity}) {
        cutter.clear();
        const std::string fits(most, 'x');
        EXPECT_EQ(feedIn(portion, frame(fits)), Payloads{fits}) << portion;
        EXPECT_EQ(feedIn(portion, frame(fits + "y")), Payloads{}) << portion;
        EXPECT_EQ(feedIn(portion, frame("next")), Payloads{"next"}) << portion;
    }
}

TEST_F(FrameCutterTest, AHeaderInsideATooLongFrameTakesOver) {
    const std::string stream = "\x16\x10\x02" + std::string(FrameCutter::kCapacity, 'x') + frame("good");
    for (const std::size_t portion : {std::size_t{1}, std::size_t{1024}, stream.size()}) {
        cutter.clear();
        EXPECT_EQ(feedIn(portion, stream), Payloads{"good"}) << portion;
    }
}

TEST_F(FrameCutterTest, PortionsDoNotMatterInAnyMixtureOfControlBytes) {
    const std::string likely = "\x16\x10\x02\x03\x01x"s;
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::string stream;
        while (stream.size() < 2000) {
            stream += random() % 20 == 0 ? frame("good") : std::string(1, likely[random() % likely.size()]);
        }
        cutter.clear();
        const Payloads whole = feed(stream);
        cutter.clear();
        EXPECT_EQ(feedIn(1, stream), whole);
        cutter.clear();
        EXPECT_EQ(feedIn(1 + random() % 100, stream), whole);
    }
}

TEST_F(FrameCutterTest, WhatIsHeldStaysWithinTheCapacity) {
    for (int i = 0; i < 300; ++i) {
        feed(i % 50 == 0 ? "\x16\x10\x02" + std::string(1021, 'x') : std::string(1024, '\x16'));
        EXPECT_LE(cutter.heldBytes(), FrameCutter::kCapacity);
    }
    cutter.clear();
    EXPECT_EQ(cutter.heldBytes(), 0U);
}

TEST_F(FrameCutterTest, ClearForgetsAHalfFrame) {
    const std::string whole = frame("one");
    feed(whole.substr(0, 8));
    cutter.clear();
    EXPECT_EQ(feed(whole.substr(8)), Payloads{});
    EXPECT_EQ(feed(whole), Payloads{"one"});
}

}  // namespace
}  // namespace velmora
