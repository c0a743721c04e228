#include <windows.h>

#include <memory>

#include "event_loop_fixture.h"
#include "eventloop/stop_signals.h"
#include "support/console_request.h"

namespace velmora {
namespace {

using test::ConsoleRequest;

class StopSignalsTest : public EventLoopFixture {
  protected:
    static void SetUpTestSuite() { ConsoleRequest::keepTheProgram(); }
    void SetUp() override {
        if (!ConsoleRequest::canBeMade()) {
            GTEST_SKIP() << "this system's requests cannot be made from inside";
        }
        if (consoleHasClosed) {
            GTEST_SKIP() << "the console closes, and nothing is answered any more";
        }
    }

    HeldStopSignals held;

    /// Made once; the request's thread then keeps the system's list of routines locked for good.
    static inline bool consoleHasClosed = false;
};

TEST_F(StopSignalsTest, CtrlCAndCtrlBreakRunTheHandlerOnTheEventLoop) {
    const DWORD here = GetCurrentThreadId();
    for (const DWORD kind : {CTRL_C_EVENT, CTRL_BREAK_EVENT}) {
        int requests = 0;
        const StopSignals stopSignals(held, [&] {
            EXPECT_EQ(GetCurrentThreadId(), here);
            ++requests;
            QCoreApplication::exit();
        });
        run([kind] { EXPECT_TRUE(ConsoleRequest(kind).isAnswered()); });
        EXPECT_EQ(requests, 1);
    }
}

TEST_F(StopSignalsTest, AConsoleThatClosesIsHeldBackUntilTheProgramHasStoppedByItself) {
    int requests = 0;
    auto stopSignals = std::make_unique<StopSignals>(held, [&] {
        ++requests;
        QCoreApplication::exit();
    });
    std::unique_ptr<ConsoleRequest> request;
    consoleHasClosed = true;
    run([&request] { request = std::make_unique<ConsoleRequest>(CTRL_CLOSE_EVENT); });
    EXPECT_EQ(requests, 1);
    // Must not wait for the request, which is not answered before the program has ended.
    stopSignals.reset();
    const StopSignals next(held, [] {});
    EXPECT_TRUE(request->waits());
}

}  // namespace
}  // namespace velmora
