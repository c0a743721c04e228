// The guide of the desktop program, opened from its windows.
#pragma once

#include <QWidget>
#include <functional>

#include "apps/platform_parts.h"
#include "ui/help.h"

namespace velmora {

/// Opens the guide in the user's browser. Needs a QApplication; the platform must outlive it.
class DesktopHelp {
  public:
    explicit DesktopHelp(const PlatformParts& platform);

    /// What asks for help with a topic; a box over the window tells why there is none. Both the window and
    /// this object must outlive it.
    std::function<void()> about(QWidget& window, HelpTopic topic) const;

  private:
    Help help_;
};

}  // namespace velmora
