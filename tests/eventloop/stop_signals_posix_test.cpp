#include <signal.h>

#include "event_loop_fixture.h"
#include "eventloop/stop_signals.h"

namespace velmora {
namespace {

using StopSignalsTest = EventLoopFixture;

TEST_F(StopSignalsTest, EitherSignalRunsTheHandlerOnTheEventLoop) {
    for (const int signal : {SIGINT, SIGTERM}) {
        int requests = 0;
        bool inside = false;
        const StopSignals stopSignals([&] {
            EXPECT_FALSE(inside) << "not in the middle of another event";
            ++requests;
            QCoreApplication::exit();
        });
        run([&inside, signal] {
            inside = true;
            ::kill(::getpid(), signal);
            inside = false;
        });
        EXPECT_EQ(requests, 1);
    }
}

TEST_F(StopSignalsTest, ARequestRepeatedAtOnceIsOne) {
    int requests = 0;
    const StopSignals stopSignals([&] {
        ++requests;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    });
    run([] {
        ::kill(::getpid(), SIGINT);
        ::kill(::getpid(), SIGTERM);
    });
    EXPECT_EQ(requests, 1);
}

}  // namespace
}  // namespace velmora
