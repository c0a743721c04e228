// The Organiser's end of the line.
#pragma once

#include <string>

#include "organiser/organiser_line.h"
#include "world.h"

namespace velmora::simulation {

/// While the Organiser waits, the world goes on. The world must outlive it.
class OrganiserEnd : public OrganiserLine {
  public:
    explicit OrganiserEnd(World& world) : world_(world) {}

    void write(std::string_view bytes) override { world_.line().send(Direction::ToServer, bytes); }
    std::string read(Time deadline) override {
        constexpr std::size_t kMost = 4096;
        while (true) {
            std::string bytes = world_.line().take(Direction::ToOrganiser, kMost);
            if (!bytes.empty() || now() >= deadline) {
                return bytes;
            }
            world_.advance(deadline);
        }
    }
    Time now() const override { return world_.time().now(); }

  private:
    World& world_;
};

}  // namespace velmora::simulation
