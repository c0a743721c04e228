// A serial port as the virtual Organiser's line.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "organiser/organiser_line.h"
#include "serial/comm_device.h"
#include "serial/comm_plain.h"
#include "serial/port_names.h"
#include "serial/waiting_reader.h"

namespace velmora {

/// An open port, set up and locked as the server does it: eight data bits, no parity, one stop bit, DTR
/// raised.
class SerialLine : public OrganiserLine {
  public:
    /// Opens `device`: a path, or a name such as "COM7" or "usb:0403:6001:A50285BI". `baud` in bits a second.
    /// Throws LineError that says what is wrong and what helps.
    SerialLine(const std::string& device, int baud);

    void write(std::string_view bytes) override;
    std::string read(Time deadline) override;
    Time now() const override;

  private:
    void check(SystemError error) const;

    std::string name_;
    PortNames names_;
    std::unique_ptr<CommDevice> device_;
    WaitingReader reader_;
};

}  // namespace velmora
