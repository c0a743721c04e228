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
constexpr qreal kLeastGap = 1.5;  // between cells, in device-independent pixels
constexpr qreal kLeastSide = 5;   // left and right of the cells
constexpr qreal kLeastEdge = 1;   // above and below

QSizeF cellOf(const QFont& font) {
    const QFontMetricsF metrics(font);
    return {std::ceil(metrics.horizontalAdvance(QLatin1Char('W')) * 1.12),
            std::ceil(metrics.height() * 1.06)};
}

}  // namespace

/// What a line consists of, in device-independent pixels.
struct LcdLine::Measures {
    QSizeF cell;
    qreal gap;
    qreal side;
    qreal edge;
};

LcdLine::LcdLine(QWidget* parent) : QLabel(parent), leastPointSize_(font().pointSizeF() * 2.6) {
    QFont lcdFont(QStringList{QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                              QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace")});
    lcdFont.setStyleHint(QFont::TypeWriter);
    lcdFont.setFixedPitch(true);
    lcdFont.setPointSizeF(leastPointSize_);
    lcdFont.setBold(true);
    setFont(lcdFont);
    leastCell_ = cellOf(lcdFont);
    cellWidth_ = leastCellWidth();
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void LcdLine::setCellWidth(int width) {
    if (width == cellWidth_) {
        return;
    }
    cellWidth_ = width;
    QFont lcdFont = font();
    lcdFont.setPointSizeF(leastPointSize_ * width / leastCell_.width());
    setFont(lcdFont);
    updateGeometry();
    update();
}

LcdLine::Measures LcdLine::measures(int cellWidth) const {
    if (cellWidth == leastCellWidth()) {
        return {leastCell_, kLeastGap, kLeastSide, kLeastEdge};
    }
    const qreal scale = cellWidth / leastCell_.width();
    return {QSizeF(cellWidth, std::round(leastCell_.height() * scale)), std::round(kLeastGap * scale),
            std::round(kLeastSide * scale), std::round(kLeastEdge * scale)};
}

QSize LcdLine::sizeWithCells(int width) const {
    const Measures line = measures(width);
    return QSizeF(kColumns * (line.cell.width() + line.gap) - line.gap + 2 * line.side,
                  line.cell.height() + 2 * line.edge)
        .toSize();
}

void LcdLine::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), kGlass);
    painter.setFont(font());
    const Measures line = measures(cellWidth_);
    const QString shown = text();
    QRectF cell(QPointF(line.side, line.edge), line.cell);
    for (int column = 0; column < kColumns; ++column) {
        painter.fillRect(cell, kCell);
        if (column < shown.size() && !shown[column].isSpace()) {
            painter.setPen(kInk);
            painter.drawText(cell, Qt::AlignCenter, shown.mid(column, 1));
        }
        cell.translate(line.cell.width() + line.gap, 0);
    }
}

}  // namespace velmora
