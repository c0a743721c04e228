// Lines to an output that may stop taking them.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace velmora {

/// Prints lines without ever waiting for whoever reads them. Lines that find no room are dropped and counted;
/// once there is room again, "12 lines lost" stands in their place.
class LineOutput {
  public:
    /// Takes bytes as far as there is room now, and returns how many it took.
    using Write = std::function<std::size_t(std::string_view bytes)>;

    /// `lineEnd` is what the system ends lines with.
    explicit LineOutput(Write write, std::string lineEnd = "\n");
    /// Prints the count that is due, if there is room.
    ~LineOutput();
    LineOutput(const LineOutput&) = delete;
    LineOutput& operator=(const LineOutput&) = delete;

    /// Prints a line, which has no line end.
    void print(const std::string& line);

  private:
    bool catchUp();
    bool put(const std::string& line);

    Write write_;
    std::string lineEnd_;
    std::string rest_;      // of a line that was taken in part
    std::size_t lost_ = 0;  // lines that were dropped since the last that was taken
};

}  // namespace velmora
