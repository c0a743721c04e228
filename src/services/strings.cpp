#include "services/strings.h"

namespace velmora {

Strings::Strings() {
    // The blanks at the ends are part of the texts: they prevent centring.
    DisplayStrings[0] = {"Please set PROTOCOL to PSION in organiser menu COMMS-SETUP...  ",
                         "and click Start!"};
    DisplayStrings[1] = {"No port selected", "The server could not find a free serial port!"};
    DisplayStrings[3] = {"Server was stopped by Organiser!", "Click Start!"};
    DisplayStrings[4] = {"Server Offline", "Click Start!"};
    DisplayStrings[5] = {"Waiting for link", " "};
    DisplayStrings[6] = {"", "Connecting..."};
    DisplayStrings[7] = {"Accessing file", ""};
    DisplayStrings[8] = {" Uploading file", ""};
    DisplayStrings[9] = {"Downloading file", ""};
    DisplayStrings[10] = {"Sending", "directory"};
    DisplayStrings[11] = {"Sending", "menu"};
    DisplayStrings[12] = {"Sending code", ""};
    DisplayStrings[14] = {"", "Waiting for link"};

    PortStatus[2] = "is used by a modem!";
    PortStatus[3] = "is used by a device!";
    PortStatus[4] = "is in use by another application!";
    PortStatus[5] = "is not accessible!";
    PortStatus[6] = "open error!";
}

}  // namespace velmora
