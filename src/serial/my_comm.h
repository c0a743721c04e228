// The program's serial port, with the properties and methods of a communications control.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/event_yield.h"
#include "serial/comm_device.h"
#include "serial/comm_plain.h"
#include "serial/port_observer.h"
#include "serial/serial_port.h"

namespace velmora {

/// The public layer: keeps the properties and turns failures of the plain layer into CommErrors. A handler
/// that runs inside Send or GetInput may close the port; GetInput then raises 8018, while Send, whose bytes
/// are gone out already, succeeds.
class myComm : public SerialPort {
  public:
    /// `device` and `yield` must outlive this object; `device` is for it alone.
    myComm(CommDevice& device, EventYield& yield) : plain_(device, yield) {}
    ~myComm() override;
    myComm(const myComm&) = delete;
    myComm& operator=(const myComm&) = delete;

    /// Adds somebody who hears of the port, behind those who do already. It must outlive this object, or the
    /// port must be closed when it goes and never opened again.
    void observe(PortObserver& observer) { observers_.push_back(&observer); }

    bool OpenPort() override;
    bool ClosePort() override;
    bool Send(std::string_view data) override;
    bool GetInput(std::size_t maximum, std::string& text) override;

    std::int16_t CommPort() const override { return number_; }
    void setCommPort(std::int16_t number) override { number_ = number; }
    const std::string& Settings() const override { return settings_; }
    void setSettings(const std::string& settings) override;
    bool PortOpen() const override { return open_; }
    void setPortOpen(bool open) override;
    /// At most 32,767, even if more bytes wait.
    std::int16_t InBufferCount() override;
    /// The system's handle of the open port, CommDevice::kNoHandle otherwise.
    std::intptr_t CommID() const { return plain_.handle(); }

    bool DTREnable() const override { return dtrEnable_; }
    /// Takes effect at once when the port is open, else when it opens. A port without the line is no error:
    /// the failure is recorded (lastErrorNumber) and the value kept.
    void setDTREnable(bool enable) override;
    bool RTSEnable() const override { return rtsEnable_; }
    /// As DTR, but nothing is done when the port opens: systems raise RTS then.
    void setRTSEnable(bool enable) override;
    /// Whether the other side's line is on; false, and recorded, on a port without modem lines.
    bool DSRHolding();
    bool CTSHolding();

    /// The system's number of the last failure, 0 when there was none: what describeOpenFailure explains.
    std::int32_t lastErrorNumber() const { return plain_.lastErrorNumber(); }
    /// The full description of the last failure, "Error (2): CommOpen (CreateFile) - …".
    std::string lastErrorDescription() const { return plain_.fullErrorDescription(); }

  private:
    void requireOpen(const char* source) const;
    [[noreturn]] void raiseFailure(const char* source) const;

    PlainComm plain_;
    std::vector<PortObserver*> observers_;
    std::int16_t number_ = 1;
    std::string settings_ = "9600,N,8,1";
    bool open_ = false;
    bool dtrEnable_ = true;
    bool rtsEnable_ = false;
};

}  // namespace velmora
