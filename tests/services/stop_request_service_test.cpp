#include "services/stop_request_service.h"

#include <gtest/gtest.h>

#include "support/recording_sender.h"

namespace velmora {
namespace {

class StopRequestServiceTest : public testing::Test {
  protected:
    std::int32_t event(std::int32_t code) {
        std::string payload;
        exit.handle(code, payload);
        return code;
    }
    test::RecordingSender sender;
    StopRequests requests;
    StopRequestService exit{sender, requests.exit};
};

TEST_F(StopRequestServiceTest, EveryEventWhileTheLinkIsUpIsAnsweredEmptyAndKeepsTheServiceOpen) {
    for (const std::int32_t code : {3, 1, 2}) {
        EXPECT_EQ(event(code), code);
        EXPECT_EQ(sender.frames.back(), (test::RecordingSender::Frame{FrameType::Data, ""}));
    }
    EXPECT_EQ(sender.frames.size(), 3U);
    EXPECT_FALSE(requests.exit);
}

TEST_F(StopRequestServiceTest, TheRequestTakesEffectWhenTheLinkDrops) {
    event(kServiceOpened);
    EXPECT_EQ(event(PLP_EV_RESET), PLP_EV_RESET);
    EXPECT_TRUE(requests.exit);
    EXPECT_FALSE(requests.shutdown);
    EXPECT_EQ(sender.frames.size(), 1U);
}

}  // namespace
}  // namespace velmora
