// Message boxes on the desktop.
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

#include "base/message_box.h"

namespace velmora {

/// Shows each box over its window. The event loop runs while a box waits, so timers tick.
class QtMessageBox : public MessageBox {
  public:
    /// `window` is what boxes belong to; it may be hidden, minimised or gone.
    explicit QtMessageBox(QWidget* window) : window_(window) {}

    void inform(BoxIcon icon, const std::string& title, const std::string& text) override;
    bool askYesNo(BoxIcon icon, const std::string& title, const std::string& text, bool defaultYes,
                  bool foreground) override;
    void withdraw(const std::string& text) override;

  private:
    QWidget* parentOf() const;

    /// A question that waits for its answer, and its box.
    struct Waiting {
        std::string text;
        QMessageBox* box;
    };

    QPointer<QWidget> window_;
    std::vector<Waiting> waiting_;
};

}  // namespace velmora
