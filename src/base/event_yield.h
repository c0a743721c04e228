// Letting the user interface breathe inside a long call.
#pragma once

namespace velmora {

/// Runs the events that wait on the event loop (timer ticks, clicks, repaints) and returns at once.
/// Any handler of the program may run inside the call, so callers guard their own state.
class EventYield {
  public:
    virtual ~EventYield() = default;
    virtual void processEvents() = 0;
};

/// For a program without a user interface that would want its turn.
class NoEvents : public EventYield {
  public:
    void processEvents() override {}
};

}  // namespace velmora
