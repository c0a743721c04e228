// The main window as the server controller sees it: what is shown, and where.
#pragma once

#include <cstdint>
#include <string>

#include "server/message_lines.h"

namespace velmora {

/// The window's push buttons: pbStartStop, pbSetup, pbFolder, pbHide, pbShutDown.
enum class MainButton { StartStop, Setup, Folder, Hide, ShutDown };

/// The counters of the statistics grid: tlBytesRecv, tlBytesSent, tlFilesRecv, tlFilesSent.
enum class StatsLabel { BytesRecv, BytesSent, FilesRecv, FilesSent };

/// The headings of the statistics grid; the number is the index of tlStatLabel.
enum class StatsHeading { Files = 1, Bytes = 2, Received = 3, Sent = 4 };

/// Shows what it is told and decides nothing. The desktop's window implements it, the headless server prints
/// lines, tests record. Texts are Windows-1252 bytes. No member calls back into the controller before it
/// returns, except close().
class MainView {
  public:
    virtual ~MainView() = default;

    /// One line (1 or 2) of the display mirror, always 16 characters.
    virtual void setDisplayLine(int line, const std::string& text) = 0;
    /// The display as one readable line with its whole texts ("Downloading file: Memo.odb"): for a console,
    /// a tool-tip, a screen reader. Follows each change of the display, not its scrolling.
    virtual void showStatus(const std::string& text) = 0;
    /// A line for the log, where there is one; a window leaves it to the trace.
    virtual void showReport(const std::string& line) = 0;
    /// The server's state (ServerState) after each change.
    virtual void showState(std::int32_t state) = 0;
    /// The warning marker and the three message lines.
    virtual void showMessages(const MessageLines& messages) = 0;

    /// A counter's label. Its text is the only place where the count is kept.
    virtual std::string statsText(StatsLabel label) const = 0;
    virtual void setStatsText(StatsLabel label, const std::string& text) = 0;
    virtual void setHeading(StatsHeading heading, const std::string& text) = 0;
    /// Makes headings and counters visible.
    virtual void showStatistics() = 0;
    /// The text of the warning marker.
    virtual void setWarningCaption(const std::string& text) = 0;
    /// The two texts of the version label.
    virtual void setVersion(const std::string& version, const std::string& build) = 0;
    /// Shows or hides the label whose double-click opens the debug window.
    virtual void showDebugLabel(bool visible) = 0;

    virtual void setButtonEnabled(MainButton button, bool enabled) = 0;
    virtual void setButtonCaption(MainButton button, const std::string& caption) = 0;
    virtual void setFocus(MainButton button) = 0;

    /// The window's title.
    virtual void setCaption(const std::string& caption) = 0;
    virtual bool isVisible() const = 0;
    virtual bool isMinimised() const = 0;
    virtual void minimise() = 0;
    /// Back to the normal state, neither minimised nor maximised.
    virtual void restore() = 0;
    virtual void bringToFront() = 0;
    /// Closes the window as if the program had asked for it; the controller's queryUnload then decides, from
    /// inside this call or later.
    virtual void close() = 0;
};

}  // namespace velmora
