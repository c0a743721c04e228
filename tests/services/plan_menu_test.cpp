#include "services/plan_menu.h"

#include <gtest/gtest.h>

#include "support/recording_sender.h"

namespace velmora {
namespace {

using namespace std::string_literals;

TEST(PlanMenu, OffersFiveFormatsByNameAndNumber) {
    test::RecordingSender sender;
    PlanmService service(sender, offeredFormats());
    std::int32_t code = kServiceOpened;
    std::string name = "PLANM";
    service.handle(code, name);
    ASSERT_EQ(sender.frames.size(), 1U);
    EXPECT_EQ(sender.frames[0].data,
              "\3WKS\0\2"s + "\3DIF\0\3"s + "\3CSV\0\4"s + "\3TXT\0\5"s + "\x8TXT(tab)\0\6"s + "\0"s);
    EXPECT_EQ(code, kServiceOpened);
}

TEST(PlanMenu, ClosesOnTheAcknowledgement) {
    test::RecordingSender sender;
    PlanmService service(sender, offeredFormats());
    std::int32_t code = PLP_EV_ACKED;
    std::string nothing;
    service.handle(code, nothing);
    EXPECT_EQ(code, PLP_EV_RESET);
    EXPECT_TRUE(sender.frames.empty());
}

}  // namespace
}  // namespace velmora
