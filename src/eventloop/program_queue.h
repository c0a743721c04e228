// A program of the user's, run again and again, one at a time.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QProcess;

namespace velmora {

/// How a program is called. Texts are in the system's encoding.
struct ProgramCall {
    std::vector<std::string> arguments;
    /// Added to the environment of this program.
    std::vector<std::pair<std::string, std::string>> variables;
};

/// Runs a program without a shell, with nothing to read, and waits for it in the event loop only. Calls that
/// come while it runs wait in their order.
class ProgramQueue {
  public:
    /// Takes a line in the system's encoding.
    using TakeLine = std::function<void(const std::string& line)>;

    /// `output` gets what the program prints on either stream, `failure` why a call was not carried out or
    /// ended badly.
    ProgramQueue(std::string program, TakeLine output, TakeLine failure);
    /// A program that still runs goes on by itself; nobody takes its output then. Calls that wait are
    /// dropped.
    ~ProgramQueue();
    ProgramQueue(const ProgramQueue&) = delete;
    ProgramQueue& operator=(const ProgramQueue&) = delete;

    /// Runs the program, at once or after those before. When kMostWaiting wait it is a failure.
    void call(ProgramCall call);

    bool running() const { return process_ != nullptr; }

    /// A program that never ends must not fill the memory.
    static constexpr std::size_t kMostWaiting = 1'000;

  private:
    class Process;

    void start();
    void takeOutput();
    void ended(const std::string& failure);

    std::string program_;
    TakeLine output_;
    TakeLine failure_;
    std::deque<ProgramCall> waiting_;
    std::unique_ptr<Process> process_;
};

}  // namespace velmora
