// velmorad: the server without a window.
#include <QCoreApplication>
#include <iostream>

#include "apps/console.h"
#include "apps/headless_server.h"
#include "apps/listed_ports.h"
#include "apps/printed_configuration.h"
#include "apps/server_arguments.h"
#include "arguments/program.h"
#include "arguments/syntax.h"
#include "eventloop/stop_signals.h"
#include "platform/closed_pipe.h"
#include "platform/console_output.h"
#include "platform/file_size_limit.h"
#ifdef _WIN32
#include "apps/logon_task_win32.h"
#endif

namespace {

using namespace velmora;

int serve(const ServerArguments& arguments, int argc, char** argv) {
    outliveClosedPipes();
    HeldStopSignals held;
    QCoreApplication application(argc, argv);
    HeadlessServer server(arguments);
    const StopSignals stopSignals(held, [&server] { server.stop(); });
    const int status = server.run();
    held.keepToTheEnd();
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    outliveFileSizeLimit();
    const auto console = showOnConsole(PrintedText::System);
    return runProgram("velmorad", std::cout, std::cerr, [argc, argv] {
        const ServerArguments arguments = readServerArguments(systemArguments(argc, argv));
        if (arguments.listPorts) {
            throw RequestedText{listedPorts(arguments.json)};
        }
        if (arguments.printConfig) {
            return printConfiguration(arguments, std::cout, std::cerr);
        }
#ifdef _WIN32
        if (arguments.installTask) {
            throw RequestedText{installLogonTask(argumentsOfTask(utf8Arguments(argc, argv)))};
        }
        if (arguments.removeTask) {
            throw RequestedText{removeLogonTask()};
        }
#endif
        return serve(arguments, argc, argv);
    });
}
