// Letting the event loop run inside a long call.
#pragma once

#include <QCoreApplication>

#include "base/event_yield.h"

namespace velmora {

/// Runs the events that wait on the application's event loop.
class QtEventYield : public EventYield {
  public:
    void processEvents() override { QCoreApplication::processEvents(); }
};

}  // namespace velmora
