// The debug window without its controls: the log's lines and the filter.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "link/debug.h"

namespace velmora {

/// Where the debug window's log and check boxes are shown. Texts are Windows-1252 bytes.
class DebugLogView {
  public:
    virtual ~DebugLogView() = default;

    /// Adds a line at the end, without its line end; `polling`: it tells of the polling of an idle link.
    /// Called for each trace entry, so it must be cheap.
    virtual void appendLine(const std::string& line, bool polling) = 0;
    virtual void clearLog() = 0;
    /// A check box changed: see DebugLogModel::category.
    virtual void categoryChanged(std::size_t index) = 0;
};

/// Stamps lines, knows what is to be logged and how the filter's controls look. It keeps no lines: the log is
/// never shortened, and how much it holds is the view's affair.
class DebugLogModel : public TraceSink {
  public:
    /// The option buttons obShowWhat; the number is their index.
    enum class ShowWhat { Everything = 1, Data = 2, Custom = 3 };
    enum class WindowState { Normal, Minimised, Maximised };
    /// Values of a check box: on but inactive is shown greyed.
    enum Value : std::int32_t { kOff = 0, kOn = 1, kInactive = 2 };

    /// One of the check boxes chkShowWhat.
    struct Category {
        std::string caption;
        Value value = kOff;
        bool visible = false;
    };
    /// Boxes that there are. The second and third belong to DATA and ERROR, so that these can be switched as
    /// a whole; the others are taken in the order in which categories are met.
    static constexpr std::size_t kCategories = 8;
    static constexpr std::size_t kDataBox = 1;
    static constexpr std::size_t kErrorBox = 2;

    static constexpr const char* kStartBanner = "=================== start logging ===================";
    static constexpr const char* kStopBanner = "================== logging stopped ==================";
    static constexpr const char* kStopBannerDisk = "==== logging stopped (disk log is still active) =====";

    /// Both must outlive the model. Loads the window: takes the start time, switches the boxes off.
    DebugLogModel(const Clock& clock, DebugLogView& view);

    /// The start time becomes now, rounded to a whole second.
    void startlog();
    /// Appends a line: seconds since the start time ("######0.00"), a tab, the text. After midnight the
    /// seconds are negative.
    void addline(const std::string& text) override { stamp(text, false); }
    void addPollingLine(const std::string& text) override { stamp(text, true); }

    /// Whether anybody sees the log: lines are to be produced only then. A minimised window shows nothing.
    bool logging() const override { return shown_ && windowState_ != WindowState::Minimised; }
    /// Whether entries of this category (in capitals) are wanted. One that was never met gets a check box, as
    /// long as there is one. "Everything" wants all, "Data" the category DATA, "Custom" those whose box is
    /// on.
    bool categoryEnabled(std::string_view category) override;

    bool shown() const { return shown_; }
    void setShown(bool shown) { shown_ = shown; }
    /// The double-click on lblDebug: shows a hidden window, hides a shown one. The new state is returned.
    bool toggleShown();
    /// The window was minimised, maximised or became normal. Any state but normal writes the stop banner,
    /// maximised too although the log goes on; back to normal writes the start banner.
    void setWindowState(WindowState state);

    void cbClear_Click();
    /// chkLogToDisk writes no file: it only chooses the stop banner.
    void setLogToDisk(bool on) { logToDisk_ = on; }

    void obShowWhat_Click(ShowWhat what);
    /// The user switched a box, which then reads `on`.
    void chkShowWhat_Click(std::size_t index, bool on);
    ShowWhat showWhat() const { return showWhat_; }
    const Category& category(std::size_t index) const { return categories_[index]; }

  private:
    void stamp(const std::string& text, bool polling);
    std::size_t boxOf(std::string_view category);
    void applyMode(std::size_t index);

    const Clock& clock_;
    DebugLogView& view_;
    std::int32_t startTime_ = 0;
    std::array<Category, kCategories> categories_;
    ShowWhat showWhat_ = ShowWhat::Everything;
    WindowState windowState_ = WindowState::Normal;
    bool shown_ = false;
    bool logToDisk_ = false;
};

}  // namespace velmora
