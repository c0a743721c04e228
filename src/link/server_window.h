// What the link layer and the services see of the server's window.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

/// Counters of SetStats.
enum StatsKind : std::int32_t {
    StatsReset = 0,
    StatsBytesReceived = 1,
    StatsBytesSent = 2,
    StatsFilesReceived = 3,
    StatsFilesSent = 4,
};

/// The server controller, seen from below. Texts are Windows-1252 bytes.
class ServerWindow {
  public:
    virtual ~ServerWindow() = default;

    /// The server's state (ServerState).
    virtual std::int32_t state() const = 0;
    /// Runs the state change. -1 is ignored. May start or stop the link and ask the user, so the caller's
    /// link may be down when it returns.
    virtual void setState(std::int32_t newState) = 0;

    /// The path of the file being transferred, in the system's encoding; its last component is displayed in
    /// the states 7 to 9. Empty when there is none.
    virtual void setCurrentFile(const std::string& path) = 0;
    virtual const std::string& CurrentFile() const = 0;

    /// Shows and stores an error text; an empty one is ignored.
    virtual void setErrorMsg(const std::string& text) = 0;
    /// Shows two lines on the mirror of the Organiser's display; an empty one leaves its line as it is.
    virtual void Display(const std::string& line1, const std::string& line2) = 0;
    /// Shows the warning marker and two message lines.
    virtual void ShowWarning(const std::string& text2, const std::string& text3) = 0;
    /// Tells that the Organiser left amid a save, in the message lines, until something else happens. A
    /// warning that stands there stays.
    virtual void ShowLineDown() = 0;
    /// Tells whoever keeps the server's log, in one line, what became of a file. Shows nothing on the mirror.
    virtual void Report(const std::string& line) = 0;
    /// Adds to a counter of the statistics (StatsKind), or resets all of them.
    virtual void SetStats(std::int32_t which, std::int16_t amount) = 0;
};

/// Adds an amount of any size to a counter in steps that fit SetStats.
inline void addToStats(ServerWindow& window, StatsKind which, std::size_t amount) {
    constexpr std::size_t kLargest = 32'767;
    while (amount > kLargest) {
        window.SetStats(which, static_cast<std::int16_t>(kLargest));
        amount -= kLargest;
    }
    window.SetStats(which, static_cast<std::int16_t>(amount));
}

}  // namespace velmora
