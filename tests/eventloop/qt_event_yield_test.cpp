#include "eventloop/qt_event_yield.h"

#include "event_loop_fixture.h"

namespace velmora {
namespace {

using QtEventYieldTest = EventLoopFixture;

TEST_F(QtEventYieldTest, EventsThatWaitRunInside) {
    bool ran = false;
    run([&ran] {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [&ran] { ran = true; }, Qt::QueuedConnection);
        QtEventYield().processEvents();
        EXPECT_TRUE(ran);
        QCoreApplication::exit();
    });
}

TEST_F(QtEventYieldTest, ALoopThatWasToldToEndEndsAlthoughACallYieldsAfterwards) {
    run([] {
        QCoreApplication::exit();
        QtEventYield().processEvents();
        QtEventYield().processEvents();
    });
}

TEST_F(QtEventYieldTest, ALoopThatIsToldToEndInsideAYieldEndsAlthoughTheCallGoesOn) {
    run([] {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
        QtEventYield().processEvents();
        QtEventYield().processEvents();
    });
}

}  // namespace
}  // namespace velmora
