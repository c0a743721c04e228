#include "ui/qt/lcd_display.h"

#include <QLinearGradient>
#include <QPainter>
#include <QResizeEvent>

#include "ui/qt/lcd_line.h"

namespace velmora {
namespace {

constexpr QColor kFrameTop(0x3A, 0x3E, 0x42);
constexpr QColor kFrameBottom(0x24, 0x27, 0x2A);
constexpr QColor kFrameEdge(0x5B, 0x61, 0x66);
constexpr qreal kFrameRadius = 8;
constexpr int kLeastFrameWidth = 14;

}  // namespace

LcdDisplay::LcdDisplay(QWidget* parent) : QLabel(parent) {
    for (LcdLine*& line : lines_) {
        line = new LcdLine(this);
    }
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

/// The frame grows with the glass.
int LcdDisplay::frameWidth(int cellWidth) const {
    return kLeastFrameWidth * cellWidth / lines_[0]->leastCellWidth();
}

QSize LcdDisplay::sizeWithCells(int cellWidth) const {
    const QSize line = lines_[0]->sizeWithCells(cellWidth);
    const int frame = 2 * frameWidth(cellWidth);
    return {line.width() + frame, static_cast<int>(kLines) * line.height() + frame};
}

QSize LcdDisplay::sizeHint() const {
    return sizeWithCells(lines_[0]->leastCellWidth());
}

void LcdDisplay::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    int cellWidth = lines_[0]->leastCellWidth();
    for (QSize larger = sizeWithCells(cellWidth + 1);
         larger.width() <= width() && larger.height() <= height(); larger = sizeWithCells(cellWidth + 1)) {
        ++cellWidth;
    }
    const QSize size = lines_[0]->sizeWithCells(cellWidth);
    QPoint place((width() - size.width()) / 2, (height() - static_cast<int>(kLines) * size.height()) / 2);
    for (LcdLine* line : lines_) {
        line->setCellWidth(cellWidth);
        line->setGeometry(QRect(place, size));
        place.ry() += size.height();
    }
}

void LcdDisplay::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient shade(rect().topLeft(), rect().bottomLeft());
    shade.setColorAt(0, kFrameTop);
    shade.setColorAt(1, kFrameBottom);
    painter.setBrush(shade);
    painter.setPen(kFrameEdge);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kFrameRadius, kFrameRadius);
}

}  // namespace velmora
