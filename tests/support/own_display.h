// Tests of windows on an X display of their own, as on a desktop.
#pragma once

#include <QApplication>
#include <QTest>

#include "e2e/support/x_server.h"

namespace velmora::test {

/// Runs the tests of a class; a main program of ctest, which takes the result for "skipped" where this
/// machine has no display to offer.
template <typename Tests>
int runOnOwnDisplay(int argc, char* argv[]) {
    constexpr int kSkipped = 77;
    if (!e2e::XServer::installed()) {
        return kSkipped;
    }
    const e2e::XServer display;
    qputenv("DISPLAY", display.name().c_str());
    qputenv("QT_QPA_PLATFORM", "xcb");
    // A display, and nothing else of anybody's session.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    const QApplication program(argc, argv);
    Tests tests;
    return QTest::qExec(&tests, argc, argv);
}

}  // namespace velmora::test
