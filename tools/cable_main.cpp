// velmora-cable: joins two pseudo-terminals like a null-modem cable, so that the server and the virtual
// Organiser can talk on one machine.
//
// On exit it prints how many bytes went each way, and how soon the first device answered: the time from a
// last byte's arrival there to the first one from there.

#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "arguments/program.h"
#include "cable.h"
#include "cable_arguments.h"
#include "ill_cable.h"

namespace {

using velmora::tools::CableDirection;
using velmora::tools::CableEnd;
using velmora::tools::IllCable;
using Clock = std::chrono::steady_clock;

volatile sig_atomic_t stopRequested = 0;

void requestStop(int /*signal*/) {
    stopRequested = 1;
}

/// Time to wait for the next byte, in the form of ppoll; null waits for ever.
const timespec* waitTime(Clock::time_point next, timespec& storage) {
    if (next == Clock::time_point::max()) {
        return nullptr;
    }
    const auto left = std::max(next - Clock::now(), Clock::duration::zero());
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
    storage.tv_sec = seconds.count();
    storage.tv_nsec = std::chrono::nanoseconds(left - seconds).count();
    return &storage;
}

/// The middle one of some times, in microseconds; 0 when there are none.
double medianMicroseconds(std::vector<Clock::duration> times) {
    if (times.empty()) {
        return 0;
    }
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return std::chrono::duration<double, std::micro>(*middle).count();
}

/// Carries until the input closes; returns how long the first end took for each of its answers.
std::vector<Clock::duration> carry(CableDirection& forth, CableDirection& back, IllCable* ill) {
    std::vector<Clock::duration> answers;
    std::array<pollfd, 3> watched = {pollfd{forth.source(), POLLIN, 0}, pollfd{back.source(), POLLIN, 0},
                                     pollfd{STDIN_FILENO, POLLIN, 0}};
    while (stopRequested == 0) {
        timespec storage{};
        const Clock::time_point unasked = ill != nullptr ? ill->nextUnasked() : Clock::time_point::max();
        const timespec* wait =
            waitTime(std::min({forth.nextArrival(), back.nextArrival(), unasked}), storage);
        if (::ppoll(watched.data(), watched.size(), wait, nullptr) < 0 && errno != EINTR) {
            break;
        }
        const Clock::time_point now = Clock::now();
        if (watched[0].revents != 0) {
            if (const auto arrival = back.takeArrival()) {
                answers.push_back(now - *arrival);
            }
        }
        if ((watched[0].revents != 0 && !forth.receive(now)) ||
            (watched[1].revents != 0 && !back.receive(now))) {
            break;
        }
        if (ill != nullptr) {
            back.put(ill->takeForFirst(now), now);
        }
        forth.deliver(Clock::now());
        back.deliver(Clock::now());
        char ignored = 0;
        if (watched[2].revents != 0 && ::read(STDIN_FILENO, &ignored, 1) <= 0) {
            break;
        }
    }
    return answers;
}

/// Symbolic links to the two devices, for as long as the cable lasts.
class DeviceLinks {
  public:
    DeviceLinks(const std::vector<std::string>& paths, const CableEnd& first, const CableEnd& second) {
        const std::array<const std::string*, 2> devices = {&first.device(), &second.device()};
        for (std::size_t i = 0; i < paths.size(); ++i) {
            ::unlink(paths[i].c_str());
            if (::symlink(devices[i]->c_str(), paths[i].c_str()) != 0) {
                throw std::system_error(errno, std::generic_category(), paths[i]);
            }
            made_.push_back(paths[i]);
        }
    }
    ~DeviceLinks() {
        for (const std::string& path : made_) {
            ::unlink(path.c_str());
        }
    }
    DeviceLinks(const DeviceLinks&) = delete;
    DeviceLinks& operator=(const DeviceLinks&) = delete;

  private:
    std::vector<std::string> made_;
};

int join(const velmora::tools::CableArguments& arguments) {
    // Bytes are to arrive on time, not when the system finds it convenient to wake a sleeper (50 µs by
    // default).
    ::prctl(PR_SET_TIMERSLACK, 1UL);
    struct sigaction action = {};
    action.sa_handler = requestStop;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
    CableEnd first;
    CableEnd second;
    if (arguments.held) {
        first.hold();
        second.hold();
    }
    const DeviceLinks links(arguments.links, first, second);
    std::cout << first.device() << '\n' << second.device() << '\n' << std::flush;
    if (!std::cout) {
        return 0;  // told by runProgram
    }
    std::optional<IllCable> ill;
    if (arguments.illness) {
        ill.emplace(*arguments.illness, first);
    }
    CableDirection forth(first, second, arguments.baud, ill ? ill->fromFirst() : CableDirection::Change());
    CableDirection back(second, first, arguments.baud, ill ? ill->toFirst() : CableDirection::Change());
    const auto answers = carry(forth, back, ill ? &*ill : nullptr);
    std::cout << "carried " << forth.carried() << ' ' << back.carried() << '\n'
              << "answers " << answers.size() << ", median " << std::llround(medianMicroseconds(answers))
              << " us\n";
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    return velmora::runProgram("velmora-cable", std::cout, std::cerr, [argc, argv] {
        return join(velmora::tools::readCableArguments({argv + 1, argv + argc}));
    });
}
