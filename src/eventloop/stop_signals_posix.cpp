#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <ctime>
#include <system_error>
#include <utility>

#include "eventloop/stop_signals.h"

namespace velmora {
namespace {

bool isIgnored(int signal) {
    struct sigaction action {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

/// A signal that is blocked is read from the descriptor also when it is ignored, so nohup's is left out.
sigset_t stopSet() {
    sigset_t set;
    ::sigemptyset(&set);
    ::sigaddset(&set, SIGINT);
    ::sigaddset(&set, SIGTERM);
    if (!isIgnored(SIGHUP)) {
        ::sigaddset(&set, SIGHUP);
    }
    return set;
}

}  // namespace

/// The signals, blocked for this thread and those that it makes.
class HeldStopSignals::Set {
  public:
    Set() { ::pthread_sigmask(SIG_BLOCK, &set_, &earlier_); }
    ~Set() {
        if (toTheEnd_) {
            return;
        }
        // The program has stopped; a second request must not end it with another status now.
        constexpr timespec kNoWait{};
        while (::sigtimedwait(&set_, nullptr, &kNoWait) > 0) {
        }
        ::pthread_sigmask(SIG_SETMASK, &earlier_, nullptr);
    }
    Set(const Set&) = delete;
    Set& operator=(const Set&) = delete;

    const sigset_t& set() const { return set_; }
    void keepToTheEnd() { toTheEnd_ = true; }

  private:
    sigset_t set_ = stopSet();
    sigset_t earlier_{};
    bool toTheEnd_ = false;
};

HeldStopSignals::HeldStopSignals() : set_(std::make_unique<Set>()) {}
HeldStopSignals::~HeldStopSignals() = default;
void HeldStopSignals::keepToTheEnd() {
    set_->keepToTheEnd();
}

/// The held signals, read from a descriptor.
class StopSignals::Watch {
  public:
    Watch(const sigset_t& set, std::function<void()> handler);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

  private:
    void read();

    std::function<void()> handler_;
    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

// A signal that is read from a descriptor needs no handler, and so no variable outside this object.
StopSignals::Watch::Watch(const sigset_t& set, std::function<void()> handler) : handler_(std::move(handler)) {
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

StopSignals::StopSignals(const HeldStopSignals& held, std::function<void()> handler)
    : watch_(std::make_unique<Watch>(held.set_->set(), std::move(handler))) {}
StopSignals::~StopSignals() = default;

}  // namespace velmora
