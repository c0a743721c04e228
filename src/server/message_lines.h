// The warning marker and the message lines under the display.
#pragma once

#include <array>
#include <string>

namespace velmora {

/// One of the labels tlBottomText(1..3).
struct MessageLine {
    std::string text;
    bool visible = false;
    bool centred = true;    ///< otherwise left-aligned
    bool twoLines = false;  ///< laid out over two lines

    friend bool operator==(const MessageLine&, const MessageLine&) = default;
};

/// What tlWarning and tlBottomText show. A hidden line keeps its text.
struct MessageLines {
    MessageLines() { lines[2].twoLines = true; }

    /// Three centred lines and no marker. The second takes two lines when the third is empty.
    void ShowText(const std::string& text1, const std::string& text2, const std::string& text3);
    /// The marker and, left-aligned, the second and third line; the first is hidden.
    void ShowWarning(const std::string& text2, const std::string& text3);
    /// Hides the marker and all lines.
    void ShowClear();

    bool warning = false;  ///< the marker is visible
    std::array<MessageLine, 3> lines;

    friend bool operator==(const MessageLines&, const MessageLines&) = default;
};

}  // namespace velmora
