#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <system_error>
#include <utility>

#include "eventloop/stop_signals.h"

namespace velmora {
namespace {

sigset_t stopSet() {
    sigset_t set;
    ::sigemptyset(&set);
    ::sigaddset(&set, SIGINT);
    ::sigaddset(&set, SIGTERM);
    return set;
}

}  // namespace

/// The signals, blocked for the program and read from a descriptor.
class StopSignals::Watch {
  public:
    explicit Watch(std::function<void()> handler);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

  private:
    void read();

    std::function<void()> handler_;
    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

StopSignals::Watch::Watch(std::function<void()> handler) : handler_(std::move(handler)) {
    const sigset_t set = stopSet();
    // A signal that is read from a descriptor needs no handler, and so no variable outside this object.
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    descriptor_ = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    if (descriptor_ < 0) {
        throw std::system_error(errno, std::generic_category(), "signalfd");
    }
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { read(); });
}

StopSignals::Watch::~Watch() {
    notifier_.reset();
    ::close(descriptor_);
    const sigset_t set = stopSet();
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

void StopSignals::Watch::read() {
    signalfd_siginfo info{};
    bool any = false;
    while (::read(descriptor_, &info, sizeof info) == static_cast<ssize_t>(sizeof info)) {
        any = true;
    }
    if (any) {
        handler_();
    }
}

StopSignals::StopSignals(std::function<void()> handler)
    : watch_(std::make_unique<Watch>(std::move(handler))) {}
StopSignals::~StopSignals() = default;

}  // namespace velmora
