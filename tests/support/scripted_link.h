// A link that a test plays.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "link/server_state.h"
#include "server/link_control.h"

namespace velmora::test {

/// Opens and closes the port like a link; what happens inside its calls is the test's.
class ScriptedLink : public LinkControl {
  public:
    std::int32_t PLP_Start(SerialPort& port, Timer& timer) override {
        calls.push_back("start");
        if (startResult > 1) {
            return startResult;
        }
        port_ = &port;
        timer_ = &timer;
        port.OpenPort();
        run(onStart);
        return startResult;
    }
    void PLP_Stop() override {
        calls.push_back("stop");
        run(onStop);
        if (port_ != nullptr) {
            port_->ClosePort();
            timer_->setEnabled(false);
        }
    }
    std::int32_t PLP_ReceiveEvent() override {
        calls.push_back("receive");
        run(onReceive);
        return receiveResult;
    }
    void PLP_Timeout() override {
        calls.push_back("timeout");
        run(onTimeout);
    }

    int count(const std::string& call) const {
        int found = 0;
        for (const std::string& made : calls) {
            found += made == call ? 1 : 0;
        }
        return found;
    }

    std::int32_t startResult = 1;
    std::int32_t receiveResult = kNoStateChange;
    std::function<void()> onStart;
    std::function<void()> onStop;
    std::function<void()> onReceive;
    std::function<void()> onTimeout;
    std::vector<std::string> calls;

  private:
    static void run(const std::function<void()>& hook) {
        if (hook) {
            hook();
        }
    }
    SerialPort* port_ = nullptr;
    Timer* timer_ = nullptr;
};

}  // namespace velmora::test
