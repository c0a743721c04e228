// Files that are dropped on a window.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

namespace velmora {

/// Takes files and folders of this computer that are dropped on a window, to be copied. What else is dragged
/// over it is refused.
class FileDrop : public QObject {
    Q_OBJECT

  public:
    /// Gets the paths, in the system's encoding.
    using Dropped = std::function<void(const std::vector<std::string>& paths)>;

    /// Belongs to the window. `dropped` runs on the event loop once the drop is over, so that the program
    /// which the files come from does not wait for it.
    FileDrop(QWidget& window, Dropped dropped);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Dropped dropped_;
};

}  // namespace velmora
