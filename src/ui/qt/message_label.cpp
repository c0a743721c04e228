#include "ui/qt/message_label.h"

#include <algorithm>

#include "ui/qt/core_texts.h"
#include "ui/qt/elided_label.h"
#include "ui/qt/qt_text.h"

namespace velmora {

MessageLabel::MessageLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // it takes the width that there is
    setWordWrap(true);
}

void MessageLabel::show(const MessageLine& line, int width) {
    lines_ = line.twoLines ? 2 : 1;
    const QString whole = coreText(qtText(line.text));
    setText(elideWords(whole, fontMetrics(), width));
    setToolTip(text() == whole ? QString() : whole);
    setAccessibleName(whole);
    setAlignment((line.centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignTop);
    const QFontMetrics metrics = fontMetrics();
    textHeight_ =
        metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap | Qt::AlignLeft, text()).height();
    // A line without a text takes no room, so that what follows stands close.
    setFixedHeight(line.text.empty() ? 0 : std::max(lines_ * metrics.lineSpacing(), textHeight_));
    setVisible(line.visible);
}

void MessageLabel::fitToText() {
    setFixedHeight(text().isEmpty() ? 0 : textHeight_);
}

}  // namespace velmora
