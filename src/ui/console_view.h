// The main window of a server without a window: lines on a console.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "server/main_view.h"

namespace velmora {

/// Prints one line for each change of the display, for each report and for each warning. Never visible, so
/// nothing asks it for the focus.
class ConsoleView : public MainView {
  public:
    /// Takes one line in the system's encoding without its line end.
    using PrintLine = std::function<void(const std::string& line)>;

    /// What the program does on its side; each may be missing.
    struct ProgramCalls {
        std::function<void()> close;                     ///< the controller wants the program to end
        std::function<void(std::int32_t)> stateChanged;  ///< the server has a new state
        std::function<bool()> statusWanted;              ///< whether the display is of interest now
    };

    ConsoleView(PrintLine output, PrintLine errors, ProgramCalls program);

    void setDisplayLine(int, const std::string&) override {}
    void showStatus(const std::string& text) override;
    /// A report may hold what came over the line: its control bytes are shown, not obeyed.
    void showReport(const std::string& line) override;
    void showState(std::int32_t state) override;
    void showMessages(const MessageLines& messages) override;
    std::string statsText(StatsLabel label) const override;
    void setStatsText(StatsLabel label, const std::string& text) override;
    void setHeading(StatsHeading, const std::string&) override {}
    void showStatistics() override {}
    void setWarningCaption(const std::string&) override {}
    void setVersion(const std::string&, const std::string&) override {}
    void showDebugLabel(bool) override {}
    void setButtonEnabled(MainButton, bool) override {}
    void setButtonCaption(MainButton, const std::string&) override {}
    void setFocus(MainButton) override {}
    void setCaption(const std::string&) override {}
    bool isVisible() const override { return false; }
    bool isMinimised() const override { return false; }
    void minimise() override {}
    void restore() override {}
    void bringToFront() override {}
    void close() override;

  private:
    PrintLine output_;
    PrintLine errors_;
    ProgramCalls program_;
    std::string message_;  // the message that stands; empty when there is none
    std::array<std::string, 4> stats_{"0", "0", "0", "0"};
};

}  // namespace velmora
