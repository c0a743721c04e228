// velmora: the server with a window.
#include <QApplication>
#include <iostream>
#include <string>
#include <vector>

#include "apps/console.h"
#include "apps/desktop_arguments.h"
#include "apps/desktop_server.h"
#include "arguments/program.h"
#include "eventloop/only_instance.h"
#include "eventloop/stop_signals.h"
#include "platform/closed_pipe.h"
#include "platform/file_size_limit.h"
#include "platform/native.h"
#include "startup/start_paths.h"
#include "ui/languages.h"
#include "ui/qt/artwork.h"
#include "ui/qt/translation.h"

namespace {

using namespace velmora;

int serve(int argc, char** argv) {
    outliveClosedPipes();
    HeldStopSignals held;
    answerWithoutDisplay(systemArguments(argc, argv));
    // It takes its own arguments out of argc and argv.
    QApplication application(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("velmora"));
    QApplication::setWindowIcon(programIcon());
    // The main window ends the program, also when it is minimised while another window closes.
    QApplication::setQuitOnLastWindowClosed(false);
    const DesktopArguments arguments = readDesktopArguments({argv + 1, argv + argc});
    const Translation translation(arguments.language ? *arguments.language
                                                     : bestLanguage(desktopLanguages()));
    RunOverrides overrides;
    overrides.configPath = arguments.config;
    overrides.profile = arguments.profile;
    // Two with one configuration would want one port.
    OnlyInstance instance(
        configurationPath(NativePaths(currentFolder()), NativeFolders().applicationData(), overrides));
    if (!instance.first()) {
        return 0;
    }
    DesktopServer server(overrides);
    instance.onAnother([&server] { server.present(); });
    const StopSignals stopSignals(held, [&server] { server.stop(); });
    const int status = server.start(arguments.commandLine) ? server.run() : 1;
    held.keepToTheEnd();
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    outliveFileSizeLimit();
    return runProgram("velmora", std::cout, std::cerr, [argc, argv] {
        try {
            return serve(argc, argv);
        } catch (...) {
            // What is told now has no window.
            useStartersConsole();
            throw;
        }
    });
}
