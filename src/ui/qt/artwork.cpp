#include "ui/qt/artwork.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyle>

/// Makes the pictures known that are linked in with this library. The macro wants the global namespace.
static void loadPictures() {
    Q_INIT_RESOURCE(velmora);
}

namespace velmora {
namespace {

constexpr QSize kNameSize(136, 28);
constexpr QColor kSignGround(0xF9, 0xC5, 0x2E);
constexpr QColor kSignEdge(0xC7, 0x8A, 0x0A);
constexpr QColor kSignMark(0x2A, 0x21, 0x05);

}  // namespace

QIcon programIcon() {
    loadPictures();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/velmora/velmora-%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

NameImage::NameImage(QWidget* parent) : QLabel(parent) {
    loadPictures();
    name_ = QIcon(QStringLiteral(":/velmora/name.png"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize NameImage::sizeHint() const {
    return kNameSize;
}

void NameImage::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    name_.paint(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter);
}

QSize WarningSign::sizeHint() const {
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    return {size, size};
}

void WarningSign::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setWindow(0, 0, 32, 32);
    painter.setPen(QPen(kSignEdge, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(kSignGround);
    painter.drawPolygon(QPolygonF({{16, 3}, {30, 28}, {2, 28}}));
    painter.setPen(QPen(kSignMark, 3.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(16, 12), QPointF(16, 18.5));
    painter.drawPoint(QPointF(16, 23.8));
}

}  // namespace velmora
