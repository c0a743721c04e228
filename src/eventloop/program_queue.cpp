#include "eventloop/program_queue.h"

#include <QProcess>
#include <QProcessEnvironment>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

namespace velmora {
namespace {

QString toQt(const std::string& text) {
    return QString::fromLocal8Bit(text.data(), static_cast<qsizetype>(text.size()));
}

/// The last line of what is left may have no end.
std::string lineOf(QByteArray bytes) {
    while (bytes.endsWith('\n') || bytes.endsWith('\r')) {
        bytes.chop(1);
    }
    return bytes.toStdString();
}

}  // namespace

/// A process that is not killed with its object.
class ProgramQueue::Process : public QProcess {
  public:
    ~Process() override {
        disconnect();
        setProcessState(QProcess::NotRunning);
    }
};

ProgramQueue::ProgramQueue(std::string program, TakeLine output, TakeLine failure)
    : program_(std::move(program)), output_(std::move(output)), failure_(std::move(failure)) {}

ProgramQueue::~ProgramQueue() = default;

void ProgramQueue::call(ProgramCall call) {
    if (waiting_.size() >= kMostWaiting) {
        failure_(program_ + " is still busy; a call of it is left out");
        return;
    }
    waiting_.push_back(std::move(call));
    if (!running()) {
        start();
    }
}

void ProgramQueue::start() {
    const ProgramCall call = std::move(waiting_.front());
    waiting_.pop_front();
    process_ = std::make_unique<Process>();
    QProcess& process = *process_;
    process.setProgram(toQt(program_));
    QStringList arguments;
    for (const std::string& argument : call.arguments) {
        arguments.append(toQt(argument));
    }
    process.setArguments(arguments);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : call.variables) {
        environment.insert(toQt(name), toQt(value));
    }
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
    // The server holds signals back and ignores some; its child shall not.
    process.setChildProcessModifier([] {
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        std::signal(SIGPIPE, SIG_DFL);
    });
#endif
    QObject::connect(&process, &QProcess::readyRead, &process, [this] { takeOutput(); });
    QObject::connect(&process, &QProcess::finished, &process, [this](int status, QProcess::ExitStatus how) {
        takeOutput();
        if (!process_->atEnd()) {
            output_(lineOf(process_->readAll()));
        }
        if (how == QProcess::CrashExit) {
            ended("was ended by a signal");
        } else {
            ended(status == 0 ? std::string() : "ended with status " + std::to_string(status));
        }
    });
    QObject::connect(&process, &QProcess::errorOccurred, &process, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            ended("cannot be started: " + process_->errorString().toLocal8Bit().toStdString());
        }
    });
    process.start();
}

void ProgramQueue::takeOutput() {
    while (process_->canReadLine()) {
        output_(lineOf(process_->readLine()));
    }
}

/// Runs inside a signal of the process, which must outlive that.
void ProgramQueue::ended(const std::string& failure) {
    process_.release()->deleteLater();
    if (!failure.empty()) {
        failure_(program_ + ' ' + failure);
    }
    if (!waiting_.empty()) {
        start();
    }
}

}  // namespace velmora
