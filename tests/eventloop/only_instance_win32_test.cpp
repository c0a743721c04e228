#include <memory>

#include "event_loop_fixture.h"
#include "eventloop/only_instance.h"

namespace velmora {
namespace {

class OnlyInstanceTest : public EventLoopFixture {};

TEST_F(OnlyInstanceTest, ASecondStartTellsTheFirstOnItsEventLoop) {
    OnlyInstance first("C:\\Velmora.ini");
    EXPECT_TRUE(first.first());
    int told = 0;
    first.onAnother([&told] {
        ++told;
        QCoreApplication::exit();
    });
    run([] { EXPECT_FALSE(OnlyInstance("C:\\Velmora.ini").first()); });
    EXPECT_EQ(told, 1);
}

TEST_F(OnlyInstanceTest, AnotherPurposeIsNotInItsWay) {
    const OnlyInstance first("C:\\Velmora.ini");
    const OnlyInstance other("C:\\Other.ini");
    EXPECT_TRUE(other.first());
}

TEST_F(OnlyInstanceTest, TheNextOneIsFirstAgainOnceTheFirstHasEnded) {
    { const OnlyInstance first("C:\\Velmora.ini"); }
    EXPECT_TRUE(OnlyInstance("C:\\Velmora.ini").first());
}

}  // namespace
}  // namespace velmora
