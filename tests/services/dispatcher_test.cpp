#include "services/dispatcher.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <vector>

#include "base/run_time_error.h"
#include "services/stop_request_service.h"
#include "support/recording_sender.h"
#include "support/recording_trace.h"
#include "support/recording_window.h"

namespace velmora {
namespace {

using Frame = test::RecordingSender::Frame;

struct Event {
    std::int32_t code;
    std::string payload;

    friend bool operator==(const Event&, const Event&) = default;
};

/// Remembers its events and does what a test says.
class ScriptedHandler : public ServiceHandler {
  public:
    void handle(std::int32_t& code, std::string& payload) override {
        EXPECT_FALSE(inside) << "entered twice";
        inside = true;
        events.push_back({code, payload});
        const auto leave = [this](void*) { inside = false; };
        const std::unique_ptr<void, decltype(leave)> guard(this, leave);
        if (act) {
            act(code);
        }
    }
    std::vector<Event> events;
    std::function<void(std::int32_t&)> act;
    bool inside = false;
};

class DispatcherTest : public testing::Test {
  protected:
    DispatcherTest() {
        dispatcher.add("TIME", service);
        dispatcher.add("EXIT", exit);
    }
    std::int32_t event(std::int32_t code, std::string payload = {}) {
        dispatcher.Services(code, payload);
        return code;
    }
    void openService() {
        event(PLP_EV_DATA, "TIME");
        service.events.clear();
    }
    /// The handler's next event fails.
    template <typename Failure>
    void failWith(Failure failure) {
        service.act = [this, failure](std::int32_t& code) {
            if (code != PLP_EV_RESET) {
                sender.PLP_Send(FrameType::Data, "half");
                sender.frames.clear();
                throw failure;
            }
        };
    }
    void expectFailureAnswered(const std::string& text) {
        EXPECT_EQ(sender.frames, (std::vector<Frame>{{FrameType::Discon, "\xBC"}}));
        EXPECT_EQ(service.events.back(), (Event{PLP_EV_RESET, ""}));
        EXPECT_EQ(dispatcher.currentService(), "");
        const test::RecordingTrace::Entry* entry = trace.find("ERROR");
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(entry->categories, "COM,ERROR");
        EXPECT_EQ(entry->data, text);
    }

    test::RecordingSender sender;
    test::RecordingWindow window;
    test::RecordingTrace trace;
    StopRequests requests;
    StopRequestService exit{sender, requests.exit};
    ScriptedHandler service;
    ServiceDispatcher dispatcher{sender, window, trace};
};

TEST_F(DispatcherTest, TheFirstDataMessageOpensTheServiceItNames) {
    EXPECT_EQ(event(PLP_EV_DATA, "TIME"), kServiceOpened);
    EXPECT_EQ(service.events, (std::vector<Event>{{kServiceOpened, "TIME"}}));
    EXPECT_EQ(dispatcher.currentService(), "TIME");
}

TEST_F(DispatcherTest, AServiceIsNamedInAnyCase) {
    event(PLP_EV_DATA, "Time");
    EXPECT_EQ(dispatcher.currentService(), "TIME");
    EXPECT_EQ(service.events, (std::vector<Event>{{kServiceOpened, "Time"}}));
}

TEST_F(DispatcherTest, LaterEventsGoToTheOpenService) {
    openService();
    event(PLP_EV_DATA, "EXIT");
    event(PLP_EV_ACKED);
    EXPECT_EQ(service.events, (std::vector<Event>{{PLP_EV_DATA, "EXIT"}, {PLP_EV_ACKED, ""}}));
}

class UnknownNameTest : public DispatcherTest, public testing::WithParamInterface<const char*> {};

TEST_P(UnknownNameTest, IsRefusedAndLeavesNoServiceOpen) {
    window.current = 6;
    EXPECT_EQ(event(PLP_EV_DATA, GetParam()), PLP_EV_RESET);
    EXPECT_EQ(sender.frames, (std::vector<Frame>{{FrameType::Discon, "\xBE"}}));
    EXPECT_EQ(dispatcher.currentService(), "");
    EXPECT_EQ(window.states, std::vector<std::int32_t>{5});
    EXPECT_TRUE(service.events.empty());
}

INSTANTIATE_TEST_SUITE_P(Names, UnknownNameTest, testing::Values("TIMEX", " TIME", "TIME ", "TIM", ""));

TEST_F(DispatcherTest, AZeroBehindTheNameIsPartOfIt) {
    EXPECT_EQ(event(PLP_EV_DATA, std::string("TIME\0", 5)), PLP_EV_RESET);
    EXPECT_TRUE(service.events.empty());
}

TEST_F(DispatcherTest, WithoutAServiceOnlyDataCounts) {
    EXPECT_EQ(event(PLP_EV_RESET), PLP_EV_RESET);
    EXPECT_EQ(event(PLP_EV_ACKED), PLP_EV_ACKED);
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_TRUE(trace.entries.empty());
    EXPECT_TRUE(window.states.empty());
    EXPECT_FALSE(requests.exit);
}

TEST_F(DispatcherTest, EveryEventOfAServiceIsTraced) {
    event(PLP_EV_DATA, "time");
    event(PLP_EV_ACKED);
    ASSERT_EQ(trace.entries.size(), 2U);
    for (const auto& entry : trace.entries) {
        EXPECT_EQ(entry.categories, "PLP");
        EXPECT_EQ(entry.label, "PLP-->TIME");
    }
}

TEST_F(DispatcherTest, ALinkDownEndsTheServiceAndReturnsToWaiting) {
    openService();
    window.current = 8;
    EXPECT_EQ(event(PLP_EV_RESET), PLP_EV_RESET);
    EXPECT_EQ(service.events, (std::vector<Event>{{PLP_EV_RESET, ""}}));
    EXPECT_EQ(dispatcher.currentService(), "");
    EXPECT_EQ(window.current, 5);
}

TEST_F(DispatcherTest, ServicesMayFollowEachOther) {
    service.act = [](std::int32_t& code) { code = PLP_EV_RESET; };
    event(PLP_EV_DATA, "TIME");
    event(PLP_EV_DATA, "EXIT");
    EXPECT_EQ(dispatcher.currentService(), "EXIT");
}

TEST_F(DispatcherTest, TheErrorStateOutlivesTheService) {
    openService();
    window.current = 14;
    event(PLP_EV_RESET);
    EXPECT_TRUE(window.states.empty());
}

TEST_F(DispatcherTest, AFailedPortIsOverwrittenByTheClosing) {
    openService();
    window.current = 13;
    event(PLP_EV_RESET);
    EXPECT_EQ(window.states, std::vector<std::int32_t>{5});
}

TEST_F(DispatcherTest, ALinkDownDuringExitMakesTheRequest) {
    event(PLP_EV_DATA, "EXIT");
    EXPECT_FALSE(requests.exit);
    event(PLP_EV_RESET);
    EXPECT_TRUE(requests.exit);
}

TEST_F(DispatcherTest, ARunTimeErrorIsAnsweredAndTraced) {
    openService();
    failWith(RunTimeError(ErrorNumber::DiskFull));
    EXPECT_EQ(event(PLP_EV_DATA), PLP_EV_RESET);
    expectFailureAnswered("61: Disk full");
    EXPECT_EQ(window.current, 5);
}

TEST_F(DispatcherTest, AFailureAtTheOpeningIsAnsweredToo) {
    failWith(RunTimeError(ErrorNumber::Overflow, "x"));
    EXPECT_EQ(event(PLP_EV_DATA, "TIME"), PLP_EV_RESET);
    expectFailureAnswered("6: Overflow: x");
}

TEST_F(DispatcherTest, WantOfMemoryIsRunTimeErrorSeven) {
    openService();
    failWith(std::bad_alloc());
    event(PLP_EV_DATA);
    expectFailureAnswered("7: Out of memory");
}

TEST_F(DispatcherTest, AnyOtherFailureIsAnsweredToo) {
    openService();
    failWith(std::length_error("too long"));
    event(PLP_EV_DATA);
    expectFailureAnswered("too long");
}

TEST_F(DispatcherTest, AFailureWhileGivingBackIsOnlyTraced) {
    openService();
    service.act = [](std::int32_t&) { throw RunTimeError(ErrorNumber::DeviceIoError); };
    event(PLP_EV_DATA);
    EXPECT_EQ(service.events.size(), 2U);
    EXPECT_EQ(sender.frames.size(), 1U);
    expectFailureAnswered("57: Device I/O error");
    EXPECT_EQ(trace.entries.size(), 4U) << "opening, event, both failures";
}

TEST_F(DispatcherTest, AFailureWhenTheLinkIsDownSendsNothing) {
    openService();
    service.act = [](std::int32_t&) { throw RunTimeError(ErrorNumber::DeviceIoError); };
    event(PLP_EV_RESET);
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_EQ(dispatcher.currentService(), "");
    EXPECT_NE(trace.find("ERROR"), nullptr);
}

TEST_F(DispatcherTest, TheServerGoesOnAfterAFailure) {
    openService();
    failWith(RunTimeError(ErrorNumber::DiskFull));
    event(PLP_EV_DATA);
    service.act = nullptr;
    EXPECT_EQ(event(PLP_EV_DATA, "TIME"), kServiceOpened);
}

class StopInsideASend : public DispatcherTest {
  protected:
    /// As when the user presses Stop and the button's event runs inside a send.
    void stopInside() {
        window.current = 4;
        event(PLP_EV_RESET);
    }
};

TEST_F(StopInsideASend, TheServiceIsResetOnceItsHandlerHasReturned) {
    openService();
    window.current = 8;
    service.act = [this](std::int32_t& code) {
        if (code == PLP_EV_DATA) {
            stopInside();
            EXPECT_EQ(service.events.size(), 1U) << "must wait";
        }
    };
    EXPECT_EQ(event(PLP_EV_DATA, "x"), PLP_EV_DATA);
    EXPECT_EQ(service.events, (std::vector<Event>{{PLP_EV_DATA, "x"}, {PLP_EV_RESET, ""}}));
    EXPECT_EQ(dispatcher.currentService(), "");
    EXPECT_TRUE(window.states.empty()) << "setting 5 would start the server again";
}

TEST_F(StopInsideASend, AResetThatWaitedNeverSetsAState) {
    openService();
    service.act = [this](std::int32_t& code) {
        if (code == PLP_EV_DATA) {
            event(PLP_EV_RESET);
        }
    };
    event(PLP_EV_DATA, "x");
    EXPECT_EQ(dispatcher.currentService(), "");
    EXPECT_TRUE(window.states.empty());
}

TEST_F(StopInsideASend, AServiceThatEndsAtAnEventThatWaitedReturnsToWaiting) {
    openService();
    window.current = 8;
    service.act = [this](std::int32_t& code) {
        if (code == PLP_EV_DATA) {
            event(PLP_EV_ACKED);
        } else {
            code = PLP_EV_RESET;
        }
    };
    event(PLP_EV_DATA, "x");
    EXPECT_EQ(dispatcher.currentService(), "");
    EXPECT_EQ(window.states, std::vector<std::int32_t>{5});
}

TEST_F(StopInsideASend, AServiceThatEndsItselfMeanwhileStaysStopped) {
    openService();
    service.act = [this](std::int32_t& code) {
        stopInside();
        code = PLP_EV_RESET;
    };
    event(PLP_EV_DATA, "x");
    EXPECT_EQ(service.events.size(), 1U) << "it is closed already";
    EXPECT_TRUE(window.states.empty());
}

TEST_F(StopInsideASend, TheAnswerToAnUnknownNameMayBeTheMoment) {
    sender.onSend = [this] { stopInside(); };
    event(PLP_EV_DATA, "TIMEX");
    EXPECT_EQ(dispatcher.currentService(), "");
    EXPECT_TRUE(window.states.empty());
}

TEST_F(StopInsideASend, AFailureAfterTheStopSendsNothing) {
    openService();
    service.act = [this](std::int32_t& code) {
        if (code != PLP_EV_RESET) {
            stopInside();
            throw RunTimeError(ErrorNumber::DiskFull);
        }
    };
    event(PLP_EV_DATA, "x");
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_TRUE(window.states.empty());
    EXPECT_EQ(dispatcher.currentService(), "");
}

TEST_F(StopInsideASend, AStopByTheRunningControllerStillSetsWaiting) {
    openService();
    window.current = 8;  // the controller stores 4 only after the link was stopped
    event(PLP_EV_RESET);
    EXPECT_EQ(window.states, std::vector<std::int32_t>{5});
}

TEST_F(StopInsideASend, OtherEventsWaitInOrderToo) {
    openService();
    service.act = [this](std::int32_t&) {
        if (service.events.size() == 1) {
            event(PLP_EV_ACKED);
            event(PLP_EV_DATA, "next");
        }
    };
    event(PLP_EV_DATA, "first");
    EXPECT_EQ(service.events,
              (std::vector<Event>{{PLP_EV_DATA, "first"}, {PLP_EV_ACKED, ""}, {PLP_EV_DATA, "next"}}));
}

}  // namespace
}  // namespace velmora
