// velmorad: the server without a window.
#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <exception>

#include "apps/console.h"
#include "apps/headless_server.h"
#include "apps/server_arguments.h"
#include "eventloop/stop_signals.h"
#include "platform/console_output.h"

int main(int argc, char** argv) {
    using namespace velmora;
    const auto console = showOnConsole(PrintedText::System);
    ServerArguments arguments;
    try {
        arguments = parseServerArguments(systemArguments(argc, argv));
    } catch (const UsageError& error) {
        std::fprintf(stderr, "velmorad: %s\nTry --help.\n", error.what());
        return 2;
    } catch (const ArgumentError& error) {
        std::fprintf(stderr, "velmorad: %s\n", error.what());
        return 2;
    }
    if (arguments.help) {
        std::fputs(serverUsage().c_str(), stdout);
        return 0;
    }
    if (arguments.version) {
        std::puts("velmorad " VELMORA_VERSION);
        return 0;
    }
#ifdef SIGPIPE
    // Whoever reads the output may go away; the Organiser is served all the same.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    const HeldStopSignals held;
    QCoreApplication application(argc, argv);
    try {
        HeadlessServer server(arguments);
        const StopSignals stopSignals(held, [&server] { server.stop(); });
        return server.run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velmorad: %s\n", error.what());
        return 1;
    }
}
