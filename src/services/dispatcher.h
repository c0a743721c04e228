// The single entry of the services: which one is open, and who gets the link's events.
#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <map>
#include <string>
#include <string_view>

#include "link/frame_sender.h"
#include "link/server_window.h"
#include "link/service_events.h"
#include "link/trace.h"
#include "services/service_handler.h"

namespace velmora {

/// Opens the service that the first data message names, gives it every later event, and closes it when its
/// handler sets the code to PLP_EV_RESET. An unknown name is answered with DISCON 190.
///
/// A failure that leaves a handler is answered with DISCON 188; the handler then gets PLP_EV_RESET to give
/// back what it holds, and the number and text go to the trace as "COM,ERROR".
///
/// Sending and state changes may run pending events of the user interface, and so a stop of the server, while
/// a handler works. An event that arrives then waits until the handler has returned, so no handler is ever
/// entered twice.
///
/// Holds references only; sender, window, trace and handlers must outlive it.
class ServiceDispatcher : public ServiceEvents {
  public:
    ServiceDispatcher(FrameSender& sender, ServerWindow& window, Trace& trace);

    /// Enters a service into the table. `name` in capitals; a second handler of a name replaces the first.
    void add(const std::string& name, ServiceHandler& handler);

    /// After a service closes, the window's state becomes WaitLink, unless it is Error, or the server was
    /// stopped meanwhile: setting it then would start the server again.
    void Services(std::int32_t& code, std::string& payload) override;

    /// The name of the open service, in capitals; empty when none is open.
    const std::string& currentService() const { return currentService_; }

  private:
    struct Event {
        std::int32_t code;
        std::string payload;
    };

    void deliver(std::int32_t& code, std::string& payload, bool deferred);
    void runHandler(std::int32_t& code, std::string& payload);
    /// Ends a service whose handler failed. `wasReset`: the link is down already, so nothing is sent.
    void answerFailure(ServiceHandler& handler, std::string_view description, bool wasReset);
    void closeService(bool linkWasStopped);

    FrameSender& sender_;
    ServerWindow& window_;
    Trace& trace_;
    std::map<std::string, ServiceHandler*> handlers_;
    std::string currentService_;
    bool running_ = false;
    std::deque<Event> deferred_;
};

}  // namespace velmora
