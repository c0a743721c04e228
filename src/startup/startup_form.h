// The main window as start-up sees it.
#pragma once

#include <cstdint>
#include <string>

#include "serial/serial_port.h"
#include "server/server_options.h"
#include "startup/settings.h"

namespace velmora {

/// What start-up asks of the window and the server controller behind it; a program without a window answers
/// with a controller alone. Texts are Windows-1252 bytes. Any member may throw RunTimeError or CommError,
/// which ends start-up with the step that was running.
class StartupForm {
  public:
    virtual ~StartupForm() = default;

    /// Makes the window without showing it.
    virtual void load() = 0;
    /// Takes down the main, debug and setup windows; also when load() has failed.
    virtual void unload() = 0;
    virtual void show() = 0;
    /// The window has been shown: a server that is to start with the program does so now, when it has a
    /// configured port and is stopped.
    virtual void applyAutoStart() = 0;

    /// The version label: "beta3" and "build 1".
    virtual void setVersionTexts(const std::string& version, const std::string& build) = 0;
    /// Shows or hides the switch of the debug window.
    virtual void setDebugMode(bool on) = 0;
    /// Puts the window where the last run left it.
    virtual void loadWindowPos() = 0;

    /// The settings that the controller acts on; start-up fills them.
    virtual ServerOptions& options() = 0;
    /// The server's port object.
    virtual SerialPort& port() = 0;
    /// The devices that [Ports] gives to port numbers.
    virtual void setPortDevices(const PortDevices& devices) = 0;
    /// The number for "COM<n>" or a device path; below 1 when there is none.
    virtual int portNumber(const std::string& nameOrDevice) = 0;
    /// Tests one port. `status` becomes 1 (free) to 6. Sets the number of the server's port object.
    virtual void checkPort(std::int16_t port, std::int16_t flags, std::int32_t& status) = 0;

    virtual void ShowClear() = 0;
    virtual void ShowWarning(const std::string& text2, const std::string& text3) = 0;

    /// Whether the program was told to end; checkPort lets it be told.
    virtual bool ended() const = 0;

    virtual std::int32_t state() const = 0;
    virtual void setState(std::int32_t newState) = 0;
};

}  // namespace velmora
