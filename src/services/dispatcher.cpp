#include "services/dispatcher.h"

#include <new>
#include <utility>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "link/server_state.h"
#include "services/service_codes.h"

namespace velmora {
namespace {

std::string describe(const RunTimeError& error) {
    return std::to_string(error.number()) + ": " + error.what();
}

/// Runs `work` and describes the failure that left it; empty when it succeeded.
template <typename Work>
std::string failureOf(const Work& work) {
    try {
        work();
    } catch (const RunTimeError& error) {
        return describe(error);
    } catch (const std::bad_alloc&) {
        return describe(RunTimeError(ErrorNumber::OutOfMemory));
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

}  // namespace

ServiceDispatcher::ServiceDispatcher(FrameSender& sender, ServerWindow& window, Trace& trace)
    : sender_(sender), window_(window), trace_(trace) {}

void ServiceDispatcher::add(const std::string& name, ServiceHandler& handler) {
    handlers_[name] = &handler;
}

void ServiceDispatcher::Services(std::int32_t& code, std::string& payload) {
    if (running_) {
        deferred_.push_back({code, payload});
        return;
    }
    running_ = true;
    deliver(code, payload, false);
    while (!deferred_.empty()) {
        Event event = std::move(deferred_.front());
        deferred_.pop_front();
        deliver(event.code, event.payload, true);
    }
    running_ = false;
}

void ServiceDispatcher::deliver(std::int32_t& code, std::string& payload, bool deferred) {
    if (currentService_.empty()) {
        if (code != PLP_EV_DATA) {
            return;
        }
        currentService_ = upperCase(payload);
        code = kServiceOpened;
    }
    trace_.trace("PLP", "PLP-->" + currentService_, {});
    const bool wasReset = code == PLP_EV_RESET;
    runHandler(code, payload);
    if (code == PLP_EV_RESET) {
        closeService(deferred && wasReset);
    }
}

void ServiceDispatcher::runHandler(std::int32_t& code, std::string& payload) {
    const auto found = handlers_.find(currentService_);
    if (found == handlers_.end()) {
        sender_.PLP_Send(FrameType::Discon, codePayload(kCodeInvalidRequest));
        code = PLP_EV_RESET;
        return;
    }
    ServiceHandler& handler = *found->second;
    const bool wasReset = code == PLP_EV_RESET;
    const std::string failure = failureOf([&] { handler.handle(code, payload); });
    if (!failure.empty()) {
        answerFailure(handler, failure, wasReset);
        code = PLP_EV_RESET;
    }
}

void ServiceDispatcher::answerFailure(ServiceHandler& handler, std::string_view description, bool wasReset) {
    trace_.trace("COM,ERROR", "ERROR", description);
    if (!wasReset && window_.state() >= WaitLink) {
        sender_.PLP_Send(FrameType::Discon, codePayload(kCodeNotPossible));
    }
    std::int32_t reset = PLP_EV_RESET;
    std::string nothing;
    const std::string second = failureOf([&] { handler.handle(reset, nothing); });
    if (!second.empty()) {
        trace_.trace("COM,ERROR", "ERROR", second);
    }
}

void ServiceDispatcher::closeService(bool linkWasStopped) {
    currentService_.clear();
    const std::int32_t state = window_.state();
    if (!linkWasStopped && state >= WaitLink && state != Error) {
        window_.setState(WaitLink);
    }
}

}  // namespace velmora
