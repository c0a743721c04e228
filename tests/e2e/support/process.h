// A child process that a test starts, reads and waits for.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace velmora::e2e {

/// How long a test waits for something that must happen; only a failing test ever waits so long.
constexpr std::chrono::seconds kPatience{60};

/// Starts a program with its output and error output on pipes and its standard input on a pipe that stays
/// open. Destroying it kills the program.
class Process {
  public:
    /// `arguments[0]` is the program, which is looked for in PATH when it is no path. `environment` entries
    /// are added to the test's own.
    explicit Process(const std::vector<std::string>& arguments,
                     const std::map<std::string, std::string>& environment = {});
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Reads until the output (or error output) contains `text`; false when the program ended without it.
    bool waitForOutput(const std::string& text);
    bool waitForError(const std::string& text);
    /// As waitForOutput, but only looks at what came after the last match of this call.
    bool waitForNextOutput(const std::string& text);

    /// Reads everything, waits for the end and returns the exit status (128 + signal when it was killed).
    int wait();
    /// Waits for the end and reads nothing, so that full pipes stay full; false when the program goes on.
    bool endsUnread() const;
    /// Writes all of the standard input that the program gets, and ends it. Only for texts that fit a pipe.
    void feed(const std::string& input);
    /// Writes a line of standard input, which goes on.
    void say(const std::string& line) const;
    /// Closes our end of the program's output and error output.
    void closeOutput();
    void signal(int number) const;
    bool running();
    /// Waits, and reads nothing, until this program or another one ends; false when both go on.
    bool eitherEnds(const Process& other) const;
    pid_t id() const { return id_; }

    const std::string& output() const { return output_; }
    const std::string& error() const { return error_; }

  private:
    bool readSome(std::chrono::steady_clock::time_point deadline);
    bool waitFor(const std::string& text, const std::string& where, std::size_t from);

    pid_t id_ = -1;
    int input_ = -1;
    int outputPipe_ = -1;
    int errorPipe_ = -1;
    int end_ = -1;  // readable when the program has ended
    std::string output_;
    std::string error_;
    std::size_t seen_ = 0;
    bool reaped_ = false;
    int status_ = 0;
};

/// What a finished program left.
struct Finished {
    int status = 0;
    std::string output;
    std::string error;
};

/// Waits for a program's end.
Finished finished(Process& process);

/// Runs a program to its end.
Finished run(const std::vector<std::string>& arguments,
             const std::map<std::string, std::string>& environment = {});

}  // namespace velmora::e2e
