// A serial device of a POSIX system as the virtual Organiser's line.
#pragma once

#include <termios.h>

#include <string>
#include <string_view>

#include "organiser/organiser_line.h"

namespace velmora {

/// An open terminal device: raw, eight data bits, no parity, one stop bit, no flow control. The device is
/// locked against other programs (flock and TIOCEXCL), emptied on opening, and gets its settings back on
/// closing. A pseudo-terminal works all the same.
class PosixLine : public OrganiserLine {
  public:
    /// Opens the device at `path`. `baud` is one of knownLineSpeeds(). Throws LineError that says what is
    /// wrong: absent, no permission (with the owning group), in use, not a serial device, speed refused.
    PosixLine(const std::string& path, int baud);
    ~PosixLine() override;
    PosixLine(const PosixLine&) = delete;
    PosixLine& operator=(const PosixLine&) = delete;

    void write(std::string_view bytes) override;
    std::string read(Time deadline) override;
    Time now() const override;

  private:
    void configure(int baud);
    [[noreturn]] void fail(const std::string& problem);
    short waitFor(short events, Time deadline) const;

    std::string path_;
    int descriptor_ = -1;
    termios saved_{};
    bool configured_ = false;
};

}  // namespace velmora
