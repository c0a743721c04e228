// A display of a test's own.
#pragma once

#include <memory>
#include <string>

#include "e2e/support/process.h"

namespace velmora::e2e {

/// An X server without a screen anybody sees (Xvfb); it ends with this object. Throws std::runtime_error when
/// it does not come up.
class XServer {
  public:
    /// Whether this machine has one.
    static bool installed();

    XServer();
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// What programs find in the variable DISPLAY.
    const std::string& name() const { return name_; }

  private:
    std::unique_ptr<Process> server_;
    std::string name_;
};

}  // namespace velmora::e2e
