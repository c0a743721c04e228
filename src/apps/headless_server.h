// The server of velmorad: everything that it is made of, from the port to the exit status.
#pragma once

#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "apps/console_trace.h"
#include "apps/line_output.h"
#include "apps/platform_parts.h"
#include "apps/server_arguments.h"
#include "apps/server_program.h"
#include "apps/transfer_program.h"
#include "capture/capture_file.h"
#include "eventloop/program_queue.h"
#include "server/reconnection.h"
#include "server/searched_ports.h"
#include "ui/console_view.h"
#include "ui/no_user_box.h"
#include "ui/server_log.h"

namespace velmora {

/// Serves until it is told to stop; needs a QCoreApplication. It prints the display and the transfers
/// on standard output, and on standard error warnings and the trace.
class HeadlessServer {
  public:
    explicit HeadlessServer(const ServerArguments& arguments);
    HeadlessServer(const HeadlessServer&) = delete;
    HeadlessServer& operator=(const HeadlessServer&) = delete;

    /// Starts up and serves; returns the exit status of the program.
    int run();
    /// Ends serving: closes the file and the port, saves nothing, asks nothing. For signals.
    void stop();

  private:
    std::function<void(const std::string& line)> traceOutput();
    void openCapture(const CaptureRequest& request);
    void printError(const std::string& line);
    void printWarning(const std::string& line);
    void printAnswer(const std::string& line);
    void portFailed();
    void stateChanged(std::int32_t state);
    void tellFoundPort();
    void quit(int status);

    struct FileCloser {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    LineOutput output_;
    LineOutput errors_;
    std::unique_ptr<std::FILE, FileCloser> traceFile_;
    std::optional<LineOutput> trace_;  // to the trace file; what stands below traces until its end
    bool quitting_ = false;
    bool failed_ = false;  // the port cannot be opened or failed
    bool warned_ = false;  // the server has told why it cannot go on, or something else
    int exitStatus_ = 0;

    ServerArguments arguments_;
    PlatformParts platform_;
    ServerLog log_;
    ConsoleTrace traceSink_;
    ConsoleView view_;
    NoUserBox box_;
    std::optional<CaptureFile> capture_;
    // They hear of transfers until the server's end.
    std::optional<ProgramQueue> programQueue_;
    std::optional<TransferProgram> transferProgram_;
    ServerProgram program_;
    // No port is configured, and none was free: waits for one more to be there.
    QtTimer searchTimer_;
    SearchedPorts searched_;
    Reconnection search_;
};

}  // namespace velmora
