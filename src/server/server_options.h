// The settings that the server controller acts on.
#pragma once

#include <string>

namespace velmora {

/// Read by start-up from [Settings] and [OnExit], changed by the setup dialog, held by the controller.
struct ServerOptions {
    bool AutoSelectPort =
        false;                ///< no port is configured: start-up and the setup dialog look for a free one
    bool AutoSave = true;     ///< save port and baud rate when the program ends
    bool AutoStart = false;   ///< start the server at program start and after the setup dialog
    bool AutoHide = false;    ///< minimise when the server starts or waits for a link
    bool HideToTray = false;  ///< what minimises the window puts it into the desktop's tray, if there is one
    bool AutoPopup = false;   ///< raise the window when a transfer begins
    bool DontTestModem = false;  ///< leave out the modem probe of the port test
    bool Reconnect = true;       ///< start again by itself when a lost adapter is back
    /// The adapter that the port's number stands for (AdapterKey's text); empty: whatever has the number.
    std::string PortIdentity;

    // Reaction to EXIT and SHUTDOWN.
    bool RestoreWin = true;
    bool HideWin = false;
    bool AskUser = false;
    bool StopServer = true;
    bool AllowShutdown = true;
};

}  // namespace velmora
