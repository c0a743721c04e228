// A hold on the computer's sleep that the login manager grants.
#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>

namespace velmora {

/// What the login manager (org.freedesktop.login1, its method Inhibit) gives to whoever has a reason against
/// sleep: a file descriptor, which counts for as long as it is open. It is asked without waiting for its
/// answer, and a refusal leaves everything as it is.
class Inhibitor {
  public:
    /// `wishes`: what is to be held, as lists such as "sleep:idle"; the first that is granted counts. `why`
    /// is shown to users who want their computer to sleep. `mode`: "block", or "delay" for a few seconds.
    Inhibitor(QDBusConnection bus, QStringList wishes, QString why, QString mode);

    /// Holds from the answer on.
    void take();
    /// Holds no longer, also when the answer is still to come.
    void release();

  private:
    void ask(qsizetype wish);
    void answered(qsizetype wish);

    QDBusConnection bus_;
    QStringList wishes_;
    QString why_;
    QString mode_;
    std::unique_ptr<QDBusPendingCallWatcher> call_;  // while there is no answer
    std::uint64_t asked_ = 0;                        // so often: an answer may be to an earlier question
    QDBusUnixFileDescriptor held_;
    QObject context_;  // what the answers are for
};

}  // namespace velmora
