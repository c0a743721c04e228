// A window that its user may make larger.
#pragma once

#include <QSize>
#include <QWidget>

namespace velmora {

/// Is as small as its contents ask for, and larger where its user made it so. Contents that need more room
/// for a while get it, and the window goes back to its size afterwards.
class GrowingWindow : public QWidget {
    Q_OBJECT

  public:
    explicit GrowingWindow(QWidget* parent = nullptr) : QWidget(parent) {}

    /// The inner size that the user gave it, in device-independent pixels; 0 on an axis on which the window
    /// is as small as it can be. Neither minimising nor maximising changes it.
    QSize grownSize() const { return grown_; }
    /// Makes it so large; what is too small for the contents gives way.
    void setGrownSize(const QSize& size);

    /// Gives the window the size that it is to have now, and what is in it its places, also before it is
    /// shown.
    void fit();

  Q_SIGNALS:
    /// The user has changed the size.
    void resizedByUser();

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    bool hasItsOwnSize() const;

    QSize grown_{0, 0};
    QSize before_{0, 0};  // the grown size before the last change
    bool fitting_ = false;
};

}  // namespace velmora
