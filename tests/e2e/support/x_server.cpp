#include "e2e/support/x_server.h"

#include <signal.h>
#include <unistd.h>

#include <stdexcept>

namespace velmora::e2e {
namespace {

constexpr const char* kProgram = "/usr/bin/Xvfb";

}  // namespace

bool XServer::installed() {
    return ::access(kProgram, X_OK) == 0;
}

// It looks for a free number itself, and prints it once programs may connect.
XServer::XServer()
    : server_(std::make_unique<Process>(std::vector<std::string>{
          kProgram, "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"})) {
    if (!server_->waitForOutput("\n")) {
        throw std::runtime_error("no display: " + server_->error());
    }
    name_ = ":" + server_->output().substr(0, server_->output().find('\n'));
}

XServer::~XServer() {
    // Asked to end, it removes the files of its display.
    server_->signal(SIGTERM);
    server_->wait();
}

}  // namespace velmora::e2e
