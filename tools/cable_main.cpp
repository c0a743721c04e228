// velmora-cable: joins two pseudo-terminals like a null-modem cable, so that the server and the virtual
// Organiser can talk on one machine.
//
// Prints the two devices, one a line, and carries bytes until its standard input closes or it is told to
// stop. With --baud the bytes take the time that they take on a real line. With --link LINK1 LINK2 symbolic
// links are made to the devices. With --held the devices are in use by the cable itself, as far as other
// programs can tell, so that opening them fails. On exit it prints how many bytes went each way.

#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>
#include <system_error>

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

void carry(CableDirection& forth, CableDirection& back) {
    std::array<pollfd, 3> watched = {pollfd{forth.source(), POLLIN, 0}, pollfd{back.source(), POLLIN, 0},
                                     pollfd{STDIN_FILENO, POLLIN, 0}};
    while (stopRequested == 0) {
        timespec storage{};
        const timespec* wait = waitTime(std::min(forth.nextArrival(), back.nextArrival()), storage);
        if (::ppoll(watched.data(), watched.size(), wait, nullptr) < 0 && errno != EINTR) {
            return;
        }
        const Clock::time_point now = Clock::now();
        if ((watched[0].revents != 0 && !forth.receive(now)) ||
            (watched[1].revents != 0 && !back.receive(now))) {
            return;
        }
        forth.deliver(Clock::now());
        back.deliver(Clock::now());
        char ignored = 0;
        if (watched[2].revents != 0 && ::read(STDIN_FILENO, &ignored, 1) <= 0) {
            return;
        }
    }
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
        carry(forth, back);
        std::printf("carried %zu %zu\n", forth.carried(), back.carried());
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
