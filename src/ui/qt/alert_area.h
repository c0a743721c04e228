// What screen readers take windows and warnings for.
#pragma once

#include <QWidget>

namespace velmora {

/// Holds words that a screen reader speaks when they begin to show: its accessible name. It keeps its room
/// while it is hidden.
class AlertArea : public QWidget {
    Q_OBJECT

  public:
    explicit AlertArea(QWidget* parent = nullptr);

    /// Begins to show, also when it is shown already: what it holds is new. It does so once for all that is
    /// put into it before the event loop runs again, when readers ask for the words: they speak all of them
    /// each time.
    void announce();

  private:
    bool announced_ = false;  // since the event loop ran last
};

/// Gives our windows the role of a window, in place of a mere part, and alert areas that of a notification:
/// it is what Orca speaks when it begins to show, by its name, while an alert is passed over. For all that is
/// asked for later; calling it again does nothing.
void installAccessibleRoles();

}  // namespace velmora
