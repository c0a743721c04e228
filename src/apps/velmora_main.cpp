// velmora: the server with a window.
#include <QApplication>
#include <cstdio>
#include <exception>
#include <string>

#include "apps/desktop_server.h"
#include "eventloop/stop_signals.h"

int main(int argc, char** argv) {
    using namespace velmora;
    const HeldStopSignals held;
    std::string commandLine;
    for (int i = 1; i < argc; ++i) {
        commandLine += (i > 1 ? " " : "") + std::string(argv[i]);
    }
    try {
        QApplication application(argc, argv);
        QApplication::setDesktopFileName(QStringLiteral("velmora"));
        // The main window ends the program, also when it is minimised while another window closes.
        QApplication::setQuitOnLastWindowClosed(false);
        DesktopServer server;
        const StopSignals stopSignals(held, [&server] { server.stop(); });
        return server.start(commandLine) ? server.run() : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velmora: %s\n", error.what());
        return 1;
    }
}
