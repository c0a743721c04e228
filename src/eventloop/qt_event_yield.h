// Letting the event loop run inside a long call.
#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include "base/event_yield.h"

namespace velmora {

/// Runs the events that wait on the application's event loop.
class QtEventYield : public EventYield {
  public:
    void processEvents() override {
        QCoreApplication::processEvents();
        // Where the loop was told to end before, this look has used up what wakes it; on Windows it would
        // then wait for the next event, which may never come.
        if (QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance()) {
            dispatcher->wakeUp();
        }
    }
};

}  // namespace velmora
