// One line of a liquid-crystal display.
#pragma once

#include <QLabel>

namespace velmora {

/// Shows a text of 16 characters, each in a cell of its own, as the Organiser's display does. The least cells
/// come from the font. Larger ones are whole pixels wide, with whole pixels between them, and the letters are
/// drawn as outlines: both are sharp at any size. The colours are the display's own on a light and a dark
/// desktop alike.
class LcdLine : public QLabel {
    Q_OBJECT

  public:
    static constexpr int kColumns = 16;

    explicit LcdLine(QWidget* parent = nullptr);

    /// The width of a cell in device-independent pixels, when the line is as small as it can be.
    int leastCellWidth() const { return qRound(leastCell_.width()); }
    int cellWidth() const { return cellWidth_; }
    /// Makes cells, letters and gaps larger alike; `width` is leastCellWidth() or more.
    void setCellWidth(int width);
    /// How large a line with such cells is.
    QSize sizeWithCells(int width) const;

    QSize sizeHint() const override { return sizeWithCells(cellWidth_); }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Measures;
    Measures measures(int cellWidth) const;

    qreal leastPointSize_;
    QSizeF leastCell_;
    int cellWidth_;
};

}  // namespace velmora
