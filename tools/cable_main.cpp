// velmora-cable: joins two pseudo-terminals like a null-modem cable, so that the server and the virtual
// Organiser can talk on one machine.
//
// Prints the two devices, one a line, and carries bytes until its standard input closes or it is told to
// stop. With --baud the bytes take the time that they take on a real line. With --link LINK1 LINK2 symbolic
// links are made to the devices. With --held the devices are in use by the cable itself, as far as other
// programs can tell, so that opening them fails. On exit it prints how many bytes went each way, and how soon
// the first device answered: the time from a last byte's arrival there to the first one from there.

#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>
#include <system_error>
#include <vector>

#include "cable.h"

namespace {

using velmora::tools::CableDirection;
using velmora::tools::CableEnd;
using Clock = std::chrono::steady_clock;

volatile sig_atomic_t stopRequested = 0;

void requestStop(int /*signal*/) {
    stopRequested = 1;
}

int usage() {
    std::fputs("usage: velmora-cable [--baud N] [--held] [--link PATH1 PATH2]\n", stderr);
    return 2;
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
std::vector<Clock::duration> carry(CableDirection& forth, CableDirection& back) {
    std::vector<Clock::duration> answers;
    std::array<pollfd, 3> watched = {pollfd{forth.source(), POLLIN, 0}, pollfd{back.source(), POLLIN, 0},
                                     pollfd{STDIN_FILENO, POLLIN, 0}};
    while (stopRequested == 0) {
        timespec storage{};
        const timespec* wait = waitTime(std::min(forth.nextArrival(), back.nextArrival()), storage);
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
        forth.deliver(Clock::now());
        back.deliver(Clock::now());
        char ignored = 0;
        if (watched[2].revents != 0 && ::read(STDIN_FILENO, &ignored, 1) <= 0) {
            break;
        }
    }
    return answers;
}

}  // namespace

int main(int argc, char** argv) {
    unsigned baud = 0;
    bool held = false;
    const char* links[2] = {nullptr, nullptr};
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--baud") == 0 && i + 1 < argc) {
            baud = static_cast<unsigned>(std::strtoul(argv[++i], nullptr, 10));
        } else if (std::strcmp(argv[i], "--held") == 0) {
            held = true;
        } else if (std::strcmp(argv[i], "--link") == 0 && i + 2 < argc) {
            links[0] = argv[++i];
            links[1] = argv[++i];
        } else {
            return usage();
        }
    }
    // Bytes are to arrive on time, not when the system finds it convenient to wake a sleeper (50 µs by
    // default).
    ::prctl(PR_SET_TIMERSLACK, 1UL);
    struct sigaction action = {};
    action.sa_handler = requestStop;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
    try {
        CableEnd first;
        CableEnd second;
        if (held) {
            first.hold();
            second.hold();
        }
        const CableEnd* ends[2] = {&first, &second};
        for (int i = 0; i < 2; ++i) {
            if (links[i] != nullptr) {
                ::unlink(links[i]);
                if (::symlink(ends[i]->device().c_str(), links[i]) != 0) {
                    std::perror(links[i]);
                    return 1;
                }
            }
        }
        if (std::printf("%s\n%s\n", first.device().c_str(), second.device().c_str()) < 0 ||
            std::fflush(stdout) != 0) {
            throw std::system_error(errno, std::generic_category(), "standard output");
        }
        CableDirection forth(first, second, baud);
        CableDirection back(second, first, baud);
        const auto answers = carry(forth, back);
        std::printf("carried %zu %zu\n", forth.carried(), back.carried());
        std::printf("answers %zu, median %.0f us\n", answers.size(), medianMicroseconds(answers));
        for (const char* link : links) {
            if (link != nullptr) {
                ::unlink(link);
            }
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velmora-cable: %s\n", error.what());
        return 1;
    }
    return 0;
}
