#include "services/planm_service.h"

#include <gtest/gtest.h>

#include "support/recording_sender.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class PlanmServiceTest : public testing::Test {
  protected:
    std::int32_t event(std::int32_t code) {
        std::string payload;
        planm.handle(code, payload);
        return code;
    }
    test::RecordingSender sender;
    PlanmService planm{sender, {{2, "WKS"}, {3, "DIF"}, {4, "CSV"}, {5, "TXT"}, {6, "TXT(tab)"}}};
};

TEST_F(PlanmServiceTest, TheOpeningIsAnsweredWithTheList) {
    EXPECT_EQ(event(kServiceOpened), kServiceOpened);
    ASSERT_EQ(sender.frames.size(), 1U);
    EXPECT_EQ(sender.frames[0].type, FrameType::Data);
    EXPECT_EQ(sender.frames[0].data,
              "\x03WKS\0\x02\x03"s
              "DIF\0\x03\x03"s
              "CSV\0\x04\x03"s
              "TXT\0\x05\x08"s
              "TXT(tab)\0\x06\0"s);
    EXPECT_EQ(sender.frames[0].data.size(), 36U);
}

TEST_F(PlanmServiceTest, WhateverFollowsClosesWithoutAnotherReply) {
    EXPECT_EQ(event(PLP_EV_ACKED), PLP_EV_RESET);
    EXPECT_EQ(event(PLP_EV_DATA), PLP_EV_RESET);
    EXPECT_EQ(event(PLP_EV_RESET), PLP_EV_RESET);
    EXPECT_TRUE(sender.frames.empty());
}

TEST(PlanmServiceWithoutFormats, TheListIsItsEnd) {
    test::RecordingSender sender;
    PlanmService planm(sender, {});
    std::int32_t code = kServiceOpened;
    std::string payload;
    planm.handle(code, payload);
    EXPECT_EQ(sender.frames[0].data, "\0"s);
}

}  // namespace
}  // namespace velmora
