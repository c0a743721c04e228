#include <windows.h>

#include <QCryptographicHash>
#include <QWinEventNotifier>

#include "eventloop/only_instance.h"

namespace velmora {
namespace {

/// Names of objects of a session have no backslash behind this one.
std::string eventName(const std::string& purpose) {
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(purpose), QCryptographicHash::Sha1);
    return "Local\\Velmora-" + hash.toHex().toStdString();
}

}  // namespace

/// An event that the first one waits for, and all others set.
class OnlyInstance::Watch {
  public:
    Watch(const std::string& name, const std::function<void()>& handler)
        : event_(CreateEventA(nullptr, FALSE, FALSE, name.c_str())),
          first_(GetLastError() != ERROR_ALREADY_EXISTS) {
        if (event_ == nullptr) {
            return;
        }
        if (!first_) {
            // Only the program that the user has just started may bring a window to the front, or let others.
            AllowSetForegroundWindow(ASFW_ANY);
            SetEvent(event_);
            return;
        }
        notifier_.setHandle(event_);
        QObject::connect(&notifier_, &QWinEventNotifier::activated, &notifier_, [&handler] { handler(); });
        notifier_.setEnabled(true);
    }
    ~Watch() {
        notifier_.setEnabled(false);
        if (event_ != nullptr) {
            CloseHandle(event_);
        }
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    bool first() const { return first_; }

  private:
    HANDLE event_;
    bool first_;
    QWinEventNotifier notifier_;
};

OnlyInstance::OnlyInstance(const std::string& purpose)
    : watch_(std::make_unique<Watch>(eventName(purpose), handler_)) {}

OnlyInstance::~OnlyInstance() = default;

bool OnlyInstance::first() const {
    return watch_->first();
}

}  // namespace velmora
