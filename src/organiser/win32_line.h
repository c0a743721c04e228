// A COM port of Windows as the virtual Organiser's line.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "organiser/organiser_line.h"

namespace velmora {

/// An open COM port: raw, eight data bits, no parity, one stop bit, no flow control, DTR and RTS on. No other
/// program can open it meanwhile; it is emptied on opening and gets its settings back on closing. A port
/// without modem lines works all the same.
class Win32Line : public OrganiserLine {
  public:
    /// Opens the port called `name` (UTF-8): "COM7", in any case, or a device path that begins with "\\".
    /// `baud` is one of knownLineSpeeds(). Throws LineError that says what is wrong: absent, in use, not a
    /// serial device, speed refused.
    Win32Line(const std::string& name, int baud);
    ~Win32Line() override;
    Win32Line(const Win32Line&) = delete;
    Win32Line& operator=(const Win32Line&) = delete;

    void write(std::string_view bytes) override;
    std::string read(Time deadline) override;
    Time now() const override;

  private:
    void open();
    void configure(int baud);
    void allowWaits(DWORD readMilliseconds);
    std::string takeWaiting();
    void close();
    [[noreturn]] void gone(DWORD error) const;

    std::string name_;
    HANDLE handle_ = INVALID_HANDLE_VALUE;
    DCB saved_{};
    COMMTIMEOUTS savedTimeouts_{};
    DWORD readWait_ = 0;       // milliseconds that the driver waits for a byte now; 0 before the first wait
    DWORD writeByteTime_ = 0;  // milliseconds that a byte takes on the wire, rounded up
    bool configured_ = false;
};

}  // namespace velmora
