#include "ui/qt/lcd_line.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

namespace velmora {
namespace {

constexpr QColor kGlass(0xB9, 0xC8, 0x9A);
constexpr QColor kCell(0xAD, 0xBD, 0x8D);
constexpr QColor kInk(0x1B, 0x26, 0x1C);
constexpr qreal kGap = 1.5;  // between cells, in device-independent pixels
constexpr qreal kMargin = 5;

}  // namespace

LcdLine::LcdLine(QWidget* parent) : QLabel(parent) {
    QFont lcdFont(QStringList{QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                              QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace")});
    lcdFont.setStyleHint(QFont::TypeWriter);
    lcdFont.setFixedPitch(true);
    lcdFont.setPointSizeF(font().pointSizeF() * 2.6);
    lcdFont.setBold(true);
    setFont(lcdFont);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSizeF LcdLine::cellSize() const {
    const QFontMetricsF metrics(font());
    return {std::ceil(metrics.horizontalAdvance(QLatin1Char('W')) * 1.12),
            std::ceil(metrics.height() * 1.06)};
}

QSize LcdLine::sizeHint() const {
    const QSizeF cell = cellSize();
    return QSizeF(kColumns * (cell.width() + kGap) - kGap + 2 * kMargin, cell.height() + 2).toSize();
}

void LcdLine::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), kGlass);
    painter.setFont(font());
    const QSizeF size = cellSize();
    const QString shown = text();
    QRectF cell(QPointF(kMargin, 1), size);
    for (int column = 0; column < kColumns; ++column) {
        painter.fillRect(cell, kCell);
        if (column < shown.size() && !shown[column].isSpace()) {
            painter.setPen(kInk);
            painter.drawText(cell, Qt::AlignCenter, shown.mid(column, 1));
        }
        cell.translate(size.width() + kGap, 0);
    }
}

}  // namespace velmora
