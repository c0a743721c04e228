// The label that opens the debug window.
#pragma once

#include <QLabel>

namespace velmora {

/// A label that is switched by a double-click or, once it has the focus, by Space or Enter.
class DebugSwitch : public QLabel {
    Q_OBJECT

  public:
    explicit DebugSwitch(const QString& text, QWidget* parent = nullptr);

  Q_SIGNALS:
    void switched();

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace velmora
