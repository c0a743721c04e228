// velmora-demo-window PICTURE: the desktop server as velmora runs it, which also leaves a picture of its
// window while a file comes in and the statistics count. With --time it prints how long the start took
// instead.
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>
#include <exception>
#include <string_view>

#include "apps/desktop_server.h"
#include "eventloop/stop_signals.h"

namespace {

using namespace velmora;

/// Whether the window shows a transfer that has got somewhere.
bool transferShows(DesktopServer& server) {
    return server.controller().state() == Downld && !server.controller().CurrentFile().empty() &&
           server.window().statsText(StatsLabel::BytesRecv) != "0" &&
           server.window().statsText(StatsLabel::FilesRecv) != "0";
}

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    if (argc != 2) {
        std::fputs("usage: velmora-demo-window PICTURE | --time\n", stderr);
        return 2;
    }
    try {
        const HeldStopSignals held;
        QApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        DesktopServer server;
        const StopSignals stopSignals(held, [&server] { server.stop(); });
        if (!server.start("")) {
            return 1;
        }
        if (std::string_view(argv[1]) == "--time") {
            QApplication::processEvents();
            std::printf("%lld ms until the window is shown\n", static_cast<long long>(sinceStart.elapsed()));
            server.stop();
            return server.run();
        }
        const QString picture = QString::fromLocal8Bit(argv[1]);
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            if (transferShows(server) && server.window().grab().save(picture)) {
                look.stop();
            }
        });
        look.start(20);
        return server.run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velmora-demo-window: %s\n", error.what());
        return 1;
    }
}
