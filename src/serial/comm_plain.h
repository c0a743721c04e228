// The plain layer of the serial port: operations that answer with an error number and never throw.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/event_yield.h"
#include "serial/comm_device.h"

namespace velmora {

/// The steps of opening, setting, reading and writing in their order, above the system's own calls.
///
/// Every operation returns 0 on success and otherwise an error number; number, source ("CommOpen
/// (SetupComm)") and the system's text of the last failure are kept until the next one. The sources name the
/// Win32 function of the step on every system, so that a report reads the same everywhere.
class PlainComm {
  public:
    static constexpr std::int32_t kFailed = -1;
    /// Most bytes that one read gives back.
    static constexpr std::size_t kReadBufferSize = 1024;

    /// `device` and `yield` must outlive this object. `timeouts` apply from the next opening on.
    PlainComm(CommDevice& device, EventYield& yield, const CommTimeouts& timeouts = {})
        : device_(device), yield_(yield), timeouts_(timeouts) {}
    PlainComm(const PlainComm&) = delete;
    PlainComm& operator=(const PlainComm&) = delete;

    /// Opens and sets up the port, with DTR raised when `dtrEnable`. A failure leaves the device closed.
    ///
    /// On purpose: when a step after the opening of the device fails, the in-use mark stays set, and every
    /// later CommOpen of this object answers "Port in use".
    std::int32_t CommOpen(const std::string& name, const std::string& settings, bool dtrEnable);
    /// Gives an open port other settings.
    std::int32_t CommSet(const std::string& settings);
    /// Closes the port if it is marked in use.
    std::int32_t CommClose();
    /// Drops what waits in both directions.
    std::int32_t CommFlush();

    /// Lets pending events run, then reads what waits, at most `maximum` and kReadBufferSize bytes. Returns
    /// the count, or -1. With an empty queue `text` is empty and nothing is read. An event that closes the
    /// port makes it a failure.
    std::int32_t CommRead(std::string& text, std::size_t maximum);
    /// Writes all bytes, then lets pending events run. Returns the number of bytes written, or -1.
    std::int32_t CommWrite(std::string_view data);

    /// Whether any modem line of `mask` is on; false on failure.
    std::int32_t CommReadCD(std::uint32_t mask, bool& state);
    /// Sets or clears line 1 (break), 2 (DTR) or 3 (RTS); any other is refused by the system.
    std::int32_t CommSetLine(int line, bool state);
    /// Bytes that wait in the driver's input queue.
    std::int32_t InputQueueCount(std::size_t& count);

    bool handleInUse() const { return inUse_; }
    std::intptr_t handle() const { return device_.handle(); }

    std::int32_t lastErrorNumber() const { return lastNumber_; }
    const std::string& lastErrorSource() const { return lastSource_; }
    const std::string& lastErrorText() const { return lastText_; }
    /// "Error (5): CommRead (ReadFile) - text" for the last failure.
    std::string fullErrorDescription() const;

  private:
    std::int32_t prepare(const std::string& settings, bool dtrEnable);
    std::int32_t finishPending(SystemError error, const char* source, std::size_t& transferred);
    std::int32_t fail(SystemError number, const char* source);
    std::int32_t failTransfer(SystemError number, const char* source);
    void record(std::int32_t number, const char* source, std::string text);

    CommDevice& device_;
    EventYield& yield_;
    CommTimeouts timeouts_;
    bool inUse_ = false;
    std::int32_t lastNumber_ = 0;
    std::string lastSource_;
    std::string lastText_;
};

}  // namespace velmora
