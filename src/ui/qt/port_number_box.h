// The text box for the number of a port.
#pragma once

#include <QLineEdit>

namespace velmora {

/// Takes what portKeyPasses() lets through, typed or pasted, and the keys that edit.
class PortNumberBox : public QLineEdit {
    Q_OBJECT

  public:
    explicit PortNumberBox(QWidget* parent = nullptr);

  Q_SIGNALS:
    /// A key was pressed that the box does not take.
    void keyRefused();
    /// The left button of the mouse was pressed in the box, which may be read-only and has not seen it yet.
    void pressed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace velmora
