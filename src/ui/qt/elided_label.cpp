#include "ui/qt/elided_label.h"

#include <QEvent>
#include <QResizeEvent>
#include <QStringList>

namespace velmora {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::setWhole(const QString& text) {
    whole_ = text;
    setToolTip(text);
    setAccessibleDescription(text);
    elide();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        elide();
    }
}

QString elideWords(const QString& text, const QFontMetrics& metrics, int width) {
    QStringList words = text.split(QLatin1Char(' '));
    for (QString& word : words) {
        word = metrics.elidedText(word, Qt::ElideMiddle, width);
    }
    return words.join(QLatin1Char(' '));
}

void ElidedLabel::elide() {
    setText(fontMetrics().elidedText(whole_, Qt::ElideMiddle, contentsRect().width()));
}

}  // namespace velmora
