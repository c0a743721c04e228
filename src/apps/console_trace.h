// The protocol trace of a program without a window.
#pragma once

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/clock.h"
#include "link/debug.h"

namespace velmora {

/// Hands the wanted lines to an output, each behind the seconds since the trace began ("12.90", a tab).
class ConsoleTrace : public TraceSink {
  public:
    /// `categories` in capitals; none means all. Without an output nothing is logged. The clock must outlive
    /// it.
    ConsoleTrace(const Clock& clock, std::vector<std::string> categories,
                 std::function<void(const std::string& line)> output)
        : clock_(clock),
          start_(clock.monotonic()),
          categories_(std::move(categories)),
          output_(std::move(output)) {}

    bool logging() const override { return output_ != nullptr; }
    bool categoryEnabled(std::string_view category) override {
        return categories_.empty() ||
               std::find(categories_.begin(), categories_.end(), category) != categories_.end();
    }
    void addline(const std::string& text) override {
        std::array<char, 32> stamp{};
        const double seconds = std::chrono::duration<double>(clock_.monotonic() - start_).count();
        std::snprintf(stamp.data(), stamp.size(), "%.3f\t", seconds);
        output_(stamp.data() + text);
    }

  private:
    const Clock& clock_;
    std::chrono::microseconds start_;
    std::vector<std::string> categories_;
    std::function<void(const std::string& line)> output_;
};

}  // namespace velmora
