// An adapter as the system tells of it, for tests and pictures.
#pragma once

#include "serial/port_identity.h"

namespace velmora::test {

/// A USB adapter that is plugged in as COM5, that nobody holds and that may be opened.
inline PortIdentity exampleAdapter() {
    PortIdentity adapter;
    adapter.number = 5;
    adapter.device = "/dev/ttyUSB0";
    adapter.vendorId = "0403";
    adapter.productId = "6001";
    adapter.serial = "A50285BI";
    adapter.maker = "FTDI";
    adapter.product = "FT232R USB UART";
    adapter.mayOpen = true;
    return adapter;
}

}  // namespace velmora::test
