// One line of a liquid-crystal display.
#pragma once

#include <QLabel>

namespace velmora {

/// Shows a text of 16 characters, each in a cell of its own, as the Organiser's display does. The cells grow
/// with the font; drawn as outlines, they are sharp at any scale. The colours are the display's own on a
/// light and a dark desktop alike.
class LcdLine : public QLabel {
    Q_OBJECT

  public:
    static constexpr int kColumns = 16;

    explicit LcdLine(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QSizeF cellSize() const;
};

}  // namespace velmora
