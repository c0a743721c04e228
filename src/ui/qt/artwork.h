// The window's pictures.
#pragma once

#include <QIcon>
#include <QLabel>

namespace velmora {

/// The program's icon in all its sizes.
QIcon programIcon();

/// The program's name as artwork, sharp at each scale that the artwork was drawn for.
class NameImage : public QLabel {
    Q_OBJECT

  public:
    explicit NameImage(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QIcon name_;
};

/// The sign of a warning, as large as the desktop's large icons and sharp at each scale: the toolkit has a
/// picture of one size.
class WarningSign : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace velmora
