// A main window that only remembers what it was told to show.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "server/main_view.h"

namespace velmora::test {

class RecordingView : public MainView {
  public:
    void setDisplayLine(int line, const std::string& text) override {
        (line == 1 ? line1 : line2) = text;
        ++displayChanges;
    }
    void showStatus(const std::string& text) override { statuses.push_back(text); }
    void showReport(const std::string& line) override { reports.push_back(line); }
    void showState(std::int32_t state) override { states.push_back(state); }
    void showMessages(const MessageLines& shown) override { messages = shown; }
    std::string statsText(StatsLabel label) const override { return stats.at(label); }
    void setStatsText(StatsLabel label, const std::string& text) override { stats[label] = text; }
    void setHeading(StatsHeading heading, const std::string& text) override { headings[heading] = text; }
    void showStatistics() override { statisticsVisible = true; }
    void setWarningCaption(const std::string& text) override { warningCaption = text; }
    void setVersion(const std::string& version, const std::string& build) override {
        versionText = version + " " + build;
    }
    void showDebugLabel(bool on) override { debugLabel = on; }
    void setButtonEnabled(MainButton button, bool on) override { enabled[button] = on; }
    void setButtonCaption(MainButton button, const std::string& text) override { captions[button] = text; }
    void setFocus(MainButton button) override { focus.push_back(button); }
    void setCaption(const std::string& text) override { caption = text; }
    bool isVisible() const override { return visible; }
    bool isMinimised() const override { return minimised; }
    void minimise() override {
        minimised = true;
        windowCalls.push_back("minimise");
    }
    void restore() override {
        minimised = false;
        windowCalls.push_back("restore");
    }
    void bringToFront() override { windowCalls.push_back("bringToFront"); }
    void close() override {
        windowCalls.push_back("close");
        if (onClose) {
            onClose();
        }
    }

    /// The text of the warning, or nothing when the marker is hidden.
    std::string warning() const { return messages.warning ? messages.lines[1].text : std::string(); }
    bool said(const std::string& call) const {
        for (const std::string& made : windowCalls) {
            if (made == call) {
                return true;
            }
        }
        return false;
    }

    std::string line1;
    std::string line2;
    int displayChanges = 0;
    std::vector<std::string> reports;
    std::vector<std::string> statuses;
    std::vector<std::int32_t> states;
    MessageLines messages;
    std::map<StatsLabel, std::string> stats{{StatsLabel::BytesRecv, "0"},
                                            {StatsLabel::BytesSent, "0"},
                                            {StatsLabel::FilesRecv, "0"},
                                            {StatsLabel::FilesSent, "0"}};
    std::map<StatsHeading, std::string> headings;
    bool statisticsVisible = false;
    std::string warningCaption;
    std::string versionText;
    bool debugLabel = false;
    std::map<MainButton, bool> enabled;
    std::map<MainButton, std::string> captions;
    std::vector<MainButton> focus;
    std::string caption = "Velmora";
    bool visible = true;
    bool minimised = false;
    std::vector<std::string> windowCalls;
    std::function<void()> onClose;
};

}  // namespace velmora::test
