// The Organiser's display.
#pragma once

#include <QLabel>
#include <array>

namespace velmora {

class LcdLine;

/// Two lines of glass in a dark frame. It takes all the room that it gets: the cells grow as far as both
/// lines fit, a pixel at a time, and never become smaller than the font has them.
class LcdDisplay : public QLabel {
    Q_OBJECT

  public:
    static constexpr std::size_t kLines = 2;

    explicit LcdDisplay(QWidget* parent = nullptr);

    /// From above, from 0; owned by the display.
    LcdLine& line(std::size_t index) const { return *lines_[index]; }

    /// The least size.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    int frameWidth(int cellWidth) const;
    QSize sizeWithCells(int cellWidth) const;

    std::array<LcdLine*, kLines> lines_{};
};

}  // namespace velmora
