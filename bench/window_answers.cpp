// velmora-window-answers: the desktop server as velmora runs it, with the windows of transfers and of the
// protocol monitor open, asked again and again for a sign of life until it is told to stop. Then it prints
// how long the answers took. A sign of life is an event from another thread, which waits as a key press or a
// click would; the event loop handles it as soon as it runs.
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QWidget>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <fstream>
#include <semaphore>
#include <string>
#include <thread>
#include <vector>

#include "apps/desktop_server.h"
#include "eventloop/stop_signals.h"

namespace {

using namespace velmora;
using Duration = std::chrono::nanoseconds;

/// What a thread has done so far, as the kernel counts it.
struct ThreadTime {
    Duration busy{};    ///< on a processor
    Duration queued{};  ///< able to run while other threads had the processors
};

/// Of the thread whose number is given.
ThreadTime timeOf(pid_t thread) {
    long long busy = 0;
    long long queued = 0;
    std::ifstream("/proc/self/task/" + std::to_string(thread) + "/schedstat") >> busy >> queued;
    return {Duration{busy}, Duration{queued}};
}

/// One question: how long its answer took, and what the answering thread did meanwhile. What is missing, it
/// waited for the disk or the display.
struct Answer {
    Duration waited;
    ThreadTime spent;
};

/// Asks the thread that made it, a millisecond after each answer.
class SignsOfLife : public QObject {
  public:
    SignsOfLife() {
        asker_ = std::thread([this] { ask(); });
    }
    ~SignsOfLife() override {
        over_ = true;
        answered_.release();
        asker_.join();
    }
    SignsOfLife(const SignsOfLife&) = delete;
    SignsOfLife& operator=(const SignsOfLife&) = delete;

    bool event(QEvent* event) override {
        if (event->type() != QEvent::User) {
            return QObject::event(event);
        }
        const auto waited = std::chrono::steady_clock::now() - asked_;
        const ThreadTime now = timeOf(thread_);
        answers_.push_back({waited, {now.busy - before_.busy, now.queued - before_.queued}});
        answered_.release();
        return true;
    }

    void print() {
        if (answers_.empty()) {
            std::puts("no answers");
            return;
        }
        std::ranges::sort(answers_, {}, &Answer::waited);
        const Answer& longest = answers_.back();
        std::printf(
            "%zu answers: half within %.2f ms, 999 of 1000 within %.2f ms, the longest after %.2f ms, of "
            "which "
            "%.2f ms busy and %.2f ms without a processor\n",
            answers_.size(), milliseconds(answers_[answers_.size() / 2].waited),
            milliseconds(answers_[answers_.size() * 999 / 1000].waited), milliseconds(longest.waited),
            milliseconds(longest.spent.busy), milliseconds(longest.spent.queued));
    }

  private:
    void ask() {
        while (!over_) {
            std::this_thread::sleep_for(std::chrono::milliseconds{1});
            before_ = timeOf(thread_);
            asked_ = std::chrono::steady_clock::now();
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
            answered_.acquire();
        }
    }
    static double milliseconds(Duration duration) {
        return std::chrono::duration<double, std::milli>(duration).count();
    }

    const pid_t thread_ = ::gettid();
    std::atomic<bool> over_ = false;
    std::counting_semaphore<2> answered_{0};  // the answer, and the end
    // Of the question that is open: the one thread writes before it asks, the other reads when it answers.
    std::chrono::steady_clock::time_point asked_;
    ThreadTime before_;
    std::vector<Answer> answers_;
    std::thread asker_;
};

void openOtherWindows(QWidget& window) {
    window.findChild<QPushButton*>(QStringLiteral("pbTransfers"))->click();
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                            Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.findChild<QWidget*>(QStringLiteral("lblDebug")), &doubleClick);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const HeldStopSignals held;
        QApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        DesktopServer server;
        const StopSignals stopSignals(held, [&server] { server.stop(); });
        if (!server.start("")) {
            return 1;
        }
        openOtherWindows(server.window());
        QApplication::processEvents();
        SignsOfLife signs;
        std::puts("asking");
        std::fflush(stdout);
        const int status = server.run();
        signs.print();
        return status;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velmora-window-answers: %s\n", error.what());
        return 1;
    }
}
