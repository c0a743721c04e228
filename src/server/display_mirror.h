// The mirror of the Organiser's display: two lines of 16 columns, one of which may scroll.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "base/timer.h"

namespace velmora {

constexpr std::size_t kDisplayColumns = 16;
constexpr std::chrono::milliseconds kScrollDelay{2500};  ///< before the first step, so that the start is read
constexpr std::chrono::milliseconds kScrollStep{200};

/// Pads with `fill` to the width, or cuts to it.
std::string padRight(std::string_view text, std::size_t width, char fill = ' ');
/// Puts Int((width - length) / 2) fill characters before a text shorter than the width; a longer one stays.
std::string centre(std::string_view text, std::size_t width, char fill = ' ');

/// Lays texts out on the display and scrolls. The timer and the callback must outlive it.
class DisplayMirror {
  public:
    /// Called with the line (1 or 2) and its 16 characters.
    using ShowLine = std::function<void(int line, const std::string& text)>;

    /// `timer` is the DisplayTimer: its interval and enabling are set here, its tick must run
    /// DisplayTimer_Tick.
    DisplayMirror(Timer& timer, ShowLine showLine);

    /// Shows two lines; an empty one leaves its line unchanged, one of blanks clears it. A text without
    /// blanks at its ends is centred; one that is too long scrolls, line 1 if both are; a long line 1 with a
    /// blank line 2 is wrapped into it. Texts that joined equal the last ones given change nothing: false.
    bool Display(std::string line1, std::string line2);

    /// One step of the scrolling line.
    void DisplayTimer_Tick();

    /// The line that scrolls, 1 or 2; 0 when none does.
    int scrollingLine() const { return scrollLine_; }

  private:
    void chooseScrolling(const std::string& line1, const std::string& line2, int mask);
    void scroll(int line, const std::string& text);

    Timer& timer_;
    ShowLine showLine_;
    std::string lastGiven_;  // line 1 followed by line 2
    int scrollLine_ = 0;
    std::string scrollText_;
    std::size_t scrollPosition_ = 1;  // counted from 1
};

}  // namespace velmora
