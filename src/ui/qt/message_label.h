// A message line under the display.
#pragma once

#include <QLabel>

#include "server/message_lines.h"

namespace velmora {

/// Shows a MessageLine as high as it is laid out for, and higher when its text needs more lines. Without a
/// text it takes no room. A word that is wider than the line has dots, and the whole text as its tip.
class MessageLabel : public QLabel {
    Q_OBJECT

  public:
    explicit MessageLabel(QWidget* parent = nullptr);

    /// `width`: the room for its text, in device-independent pixels.
    void show(const MessageLine& line, int width);
    /// Is no higher than its text from now on, until the next line is shown.
    void fitToText();
    /// The number of text lines that it is laid out for.
    int laidOutLines() const { return lines_; }

  private:
    int lines_ = 1;
    int textHeight_ = 0;
};

}  // namespace velmora
