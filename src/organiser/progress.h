// What a long transfer tells the user meanwhile.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

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
/// "Saving MEMO  [##########----------]  50 %  100 of 200 records".
class ProgressBar : public Progress {
  public:
    /// `out` must outlive the bar. Without `redraw` (the output is no terminal) only its end is written.
    ProgressBar(std::ostream& out, bool redraw) : out_(out), redraw_(redraw) {}

    void begin(std::string_view what, std::size_t total, std::string_view unit) override;
    void advance(std::size_t done) override;
    void finish() override;

  private:
    void draw();
    void write();

    std::ostream& out_;
    bool redraw_;
    std::string what_;
    std::string unit_;
    std::size_t total_ = 0;
    std::size_t done_ = 0;
    std::size_t drawn_ = 0;  // of a hundred, or the amount when the total is not known
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
