// One program at a time for one purpose.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace velmora {

/// Lets a second start of a program find the first, within one login session: by a name on the session bus
/// (org.freedesktop.Application), on Windows by a named event. Where no bus runs each start is the first.
/// Needs a QCoreApplication.
class OnlyInstance {
  public:
    /// `purpose`: what two programs would be in each other's way of; programs with other purposes are not
    /// looked at. Tells the first one when there is one already; std::runtime_error when that does not
    /// answer.
    explicit OnlyInstance(const std::string& purpose);
    ~OnlyInstance();
    OnlyInstance(const OnlyInstance&) = delete;
    OnlyInstance& operator=(const OnlyInstance&) = delete;

    /// Whether this is the first one; another has nothing left to do.
    bool first() const;

    /// What the first one does, on the event loop, when another was started.
    void onAnother(std::function<void()> handler) { handler_ = std::move(handler); }

  private:
    class Watch;

    std::function<void()> handler_ = [] {};
    std::unique_ptr<Watch> watch_;
};

}  // namespace velmora
