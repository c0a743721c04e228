// Knowing what is on the stack.
#pragma once

#include "server/server_controller.h"

namespace velmora {

class ServerController::Scope {
  public:
    explicit Scope(int& depth) : depth_(depth) { ++depth_; }
    ~Scope() { --depth_; }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

  private:
    int& depth_;
};

}  // namespace velmora
