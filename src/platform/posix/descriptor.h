// A file descriptor with an owner, and calls that signals interrupt.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace velmora {

/// A descriptor that is closed unless it is handed on; -1 for none.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ != -1) {
            ::close(number_);
        }
    }
    int number() const { return number_; }
    int handOn() { return std::exchange(number_, -1); }

  private:
    int number_;
};

/// Calls a system function, which answers -1 and errno on failure, again while a signal interrupts it.
template <typename Call>
int withoutInterruption(const Call& call) {
    int result = 0;
    do {
        result = call();
    } while (result == -1 && errno == EINTR);
    return result;
}

}  // namespace velmora
