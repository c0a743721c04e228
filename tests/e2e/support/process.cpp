#include "e2e/support/process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace velmora::e2e {
namespace {

using SteadyClock = std::chrono::steady_clock;

struct Pipe {
    Pipe() {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::system_error(errno, std::generic_category(), "pipe2");
        }
    }
    std::array<int, 2> ends{};
};

}  // namespace

Process::Process(const std::vector<std::string>& arguments,
                 const std::map<std::string, std::string>& environment) {
    Pipe in;
    Pipe out;
    Pipe err;
    std::vector<char*> argv;
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    id_ = ::fork();
    if (id_ < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    if (id_ == 0) {
        ::dup2(in.ends[0], STDIN_FILENO);
        ::dup2(out.ends[1], STDOUT_FILENO);
        ::dup2(err.ends[1], STDERR_FILENO);
        for (const auto& [name, value] : environment) {
            ::setenv(name.c_str(), value.c_str(), 1);
        }
        ::execvp(argv[0], argv.data());
        ::_exit(127);
    }
    ::close(in.ends[0]);
    ::close(out.ends[1]);
    ::close(err.ends[1]);
    input_ = in.ends[1];
    outputPipe_ = out.ends[0];
    errorPipe_ = err.ends[0];
    end_ = static_cast<int>(::syscall(SYS_pidfd_open, id_, 0));
    if (end_ < 0) {
        throw std::system_error(errno, std::generic_category(), "pidfd_open");
    }
}

Process::~Process() {
    if (!reaped_) {
        ::kill(id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
    }
    for (const int pipe : {input_, outputPipe_, errorPipe_, end_}) {
        if (pipe >= 0) {
            ::close(pipe);
        }
    }
}

/// Reads what comes next from either pipe; false at the deadline, and when the program has ended and all that
/// it wrote is read. The ends of the pipes tell nothing: a program that it started may hold them open.
bool Process::readSome(SteadyClock::time_point deadline) {
    std::array<pollfd, 3> watched = {pollfd{outputPipe_, POLLIN, 0}, pollfd{errorPipe_, POLLIN, 0},
                                     pollfd{end_, POLLIN, 0}};
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - SteadyClock::now());
    if (left.count() <= 0 || ::poll(watched.data(), watched.size(), static_cast<int>(left.count())) <= 0) {
        return false;
    }
    const auto take = [](const pollfd& polled, int& pipe, std::string& text) {
        if (polled.revents == 0) {
            return;
        }
        std::array<char, 65536> buffer{};
        const ssize_t count = ::read(pipe, buffer.data(), buffer.size());
        if (count > 0) {
            text.append(buffer.data(), static_cast<std::size_t>(count));
        } else {
            ::close(pipe);
            pipe = -1;
        }
    };
    take(watched[0], outputPipe_, output_);
    take(watched[1], errorPipe_, error_);
    return watched[0].revents != 0 || watched[1].revents != 0;
}

bool Process::waitFor(const std::string& text, const std::string& where, std::size_t from) {
    const auto deadline = SteadyClock::now() + kPatience;
    while (where.find(text, from) == std::string::npos) {
        if (!readSome(deadline)) {
            return false;
        }
    }
    return true;
}

bool Process::waitForOutput(const std::string& text) {
    return waitFor(text, output_, 0);
}

bool Process::waitForError(const std::string& text) {
    return waitFor(text, error_, 0);
}

bool Process::waitForNextOutput(const std::string& text) {
    if (!waitFor(text, output_, seen_)) {
        return false;
    }
    seen_ = output_.find(text, seen_) + text.size();
    return true;
}

int Process::wait() {
    const auto deadline = SteadyClock::now() + kPatience;
    while (readSome(deadline)) {
    }
    if (!reaped_) {
        if (SteadyClock::now() >= deadline) {
            ::kill(id_, SIGKILL);
        }
        int status = 0;
        ::waitpid(id_, &status, 0);
        reaped_ = true;
        status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    return status_;
}

void Process::say(const std::string& line) const {
    if (::write(input_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        throw std::runtime_error("the program takes no input");
    }
}

void Process::feed(const std::string& input) {
    say(input);
    ::close(input_);
    input_ = -1;
}

void Process::closeOutput() {
    for (int* pipe : {&outputPipe_, &errorPipe_}) {
        ::close(*pipe);
        *pipe = -1;
    }
}

void Process::signal(int number) const {
    ::kill(id_, number);
}

bool Process::endsUnread() const {
    return eitherEnds(*this);
}

bool Process::eitherEnds(const Process& other) const {
    std::array<pollfd, 2> watched = {pollfd{end_, POLLIN, 0}, pollfd{other.end_, POLLIN, 0}};
    constexpr std::chrono::milliseconds kMilliseconds = kPatience;
    return ::poll(watched.data(), watched.size(), static_cast<int>(kMilliseconds.count())) > 0;
}

bool Process::running() {
    if (!reaped_) {
        int status = 0;
        if (::waitpid(id_, &status, WNOHANG) == id_) {
            reaped_ = true;
            status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
    }
    return !reaped_;
}

Finished finished(Process& process) {
    Finished result;
    result.status = process.wait();
    result.output = process.output();
    result.error = process.error();
    return result;
}

Finished run(const std::vector<std::string>& arguments,
             const std::map<std::string, std::string>& environment) {
    Process process(arguments, environment);
    return finished(process);
}

}  // namespace velmora::e2e
