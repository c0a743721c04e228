// Words for screen readers alone.
#pragma once

#include <QObject>
#include <array>
#include <cstddef>

#include "ui/qt/alert_area.h"

namespace velmora {

/// Has a screen reader speak what happens elsewhere on a window, where a reader would not look by itself.
/// Nobody sees it: it takes one pixel of the window's corner, and draws nothing.
class Announcer : public QObject {
    Q_OBJECT

  public:
    /// `window` owns it.
    explicit Announcer(QWidget* window);

    /// Speaks the words, also when they are the same as the last ones. None are not spoken.
    void say(const QString& words);

  private:
    /// A reader asks for the words some time after they began to show: those said meanwhile stand elsewhere.
    std::array<AlertArea*, 4> areas_{};
    std::size_t next_ = 0;
};

}  // namespace velmora
