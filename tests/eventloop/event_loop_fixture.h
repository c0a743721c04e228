// An event loop for tests.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <chrono>
#include <functional>

namespace velmora {

/// Tests that need an event loop. It ends by itself after ten seconds, which is a failure.
class EventLoopFixture : public testing::Test {
  protected:
    /// Does something as the first event of the loop, and runs the loop until QCoreApplication::exit.
    void run(std::function<void()> first) {
        bool late = false;
        QTimer deadline;
        QObject::connect(&deadline, &QTimer::timeout, &deadline, [&late] {
            late = true;
            QCoreApplication::exit();
        });
        deadline.start(std::chrono::seconds(10));
        QMetaObject::invokeMethod(&application_, std::move(first), Qt::QueuedConnection);
        QCoreApplication::exec();
        EXPECT_FALSE(late) << "the event loop did not end by itself";
    }

  private:
    char name_[6] = "tests";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    QCoreApplication application_{count_, arguments_};
};

}  // namespace velmora
