// What a long transfer tells the user meanwhile.
#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

#include "base/clock.h"

namespace velmora {

/// Follows one transfer at a time. This one says nothing.
class Progress {
  public:
    virtual ~Progress() = default;

    /// A transfer begins. `total` in `unit` ("records", "bytes"); 0 when it is not known beforehand.
    virtual void begin(std::string_view what, std::size_t total, std::string_view unit);
    /// So much of it is through.
    virtual void advance(std::size_t done);
    /// It is over, one way or the other; without a begin nothing happens.
    virtual void finish();
};

/// One line that is drawn over itself:
/// "Saving MEMO  [######------]  50 %  100 of 200 records, 12/s, 0:08 left".
class ProgressBar : public Progress {
  public:
    /// Both must outlive the bar. Without `redraw` (the output is no terminal) only its end is written, and
    /// without times, so that two runs print the same.
    ProgressBar(std::ostream& out, bool redraw, const Clock& clock)
        : out_(out), redraw_(redraw), clock_(clock) {}

    void begin(std::string_view what, std::size_t total, std::string_view unit) override;
    void advance(std::size_t done) override;
    void finish() override;

  private:
    void draw();
    std::string line() const;
    /// How fast it goes, and for how long still; nothing in the first second.
    std::string pace() const;

    std::ostream& out_;
    bool redraw_;
    const Clock& clock_;
    std::string what_;
    std::string unit_;
    std::size_t total_ = 0;
    std::size_t done_ = 0;
    std::size_t drawn_ = 0;  // of a hundred, or the amount when the total is not known
    std::size_t width_ = 0;  // of the line that is on the screen
    std::chrono::microseconds began_{0};
    bool active_ = false;
};

/// Ends a progress also when an exception leaves the scope.
class ProgressScope {
  public:
    ProgressScope(Progress& progress, std::string_view what, std::size_t total, std::string_view unit)
        : progress_(progress) {
        progress_.begin(what, total, unit);
    }
    ~ProgressScope() { progress_.finish(); }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;

  private:
    Progress& progress_;
};

}  // namespace velmora
