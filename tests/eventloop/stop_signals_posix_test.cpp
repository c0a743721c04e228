#include <signal.h>

#include <latch>
#include <thread>

#include "event_loop_fixture.h"
#include "eventloop/stop_signals.h"

namespace velmora {
namespace {

class StopSignalsTest : public EventLoopFixture {
  protected:
    HeldStopSignals held;
};

TEST_F(StopSignalsTest, EachSignalRunsTheHandlerOnTheEventLoop) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        int requests = 0;
        bool inside = false;
        const StopSignals stopSignals(held, [&] {
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
    const StopSignals stopSignals(held, [&] {
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

TEST_F(StopSignalsTest, ARequestBeforeAnybodyListensIsHeard) {
    ::kill(::getpid(), SIGTERM);
    int requests = 0;
    const StopSignals stopSignals(held, [&] {
        ++requests;
        QCoreApplication::exit();
    });
    run([] {});
    EXPECT_EQ(requests, 1);
}

TEST_F(StopSignalsTest, AThreadThatIsMadeMeanwhileDoesNotTakeTheSignal) {
    std::latch sent(1);
    std::thread toolkit([&sent] { sent.wait(); });
    int requests = 0;
    const StopSignals stopSignals(held, [&] {
        ++requests;
        QCoreApplication::exit();
    });
    run([&sent] {
        ::kill(::getpid(), SIGTERM);
        sent.count_down();
    });
    toolkit.join();
    EXPECT_EQ(requests, 1);
}

TEST(HeldStopSignalsTest, ARequestThatNobodyTookIsDroppedAtTheEnd) {
    {
        const HeldStopSignals held;
        ::kill(::getpid(), SIGTERM);
    }
    sigset_t blocked;
    ::pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    EXPECT_EQ(::sigismember(&blocked, SIGTERM), 0) << "and the next one ends the program";
}

TEST(HeldStopSignalsTest, KeptToTheEndOfTheProgramARequestChangesNothingAnyMore) {
    sigset_t before;
    ::pthread_sigmask(SIG_BLOCK, nullptr, &before);
    {
        HeldStopSignals held;
        held.keepToTheEnd();
    }
    ::kill(::getpid(), SIGTERM);  // would end the tests
    sigset_t requested;
    ::sigemptyset(&requested);
    ::sigaddset(&requested, SIGTERM);
    EXPECT_EQ(::sigwaitinfo(&requested, nullptr), SIGTERM) << "it waits for whoever asks";
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST(HeldStopSignalsTest, AHangUpThatIsIgnoredStaysSo) {
    ::signal(SIGHUP, SIG_IGN);
    {
        const HeldStopSignals held;
        sigset_t blocked;
        ::pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
        EXPECT_EQ(::sigismember(&blocked, SIGHUP), 0);
        EXPECT_EQ(::sigismember(&blocked, SIGTERM), 1);
    }
    ::signal(SIGHUP, SIG_DFL);
}

}  // namespace
}  // namespace velmora
