// The key that asks for help.
#pragma once

#include <QWidget>
#include <functional>

namespace velmora {

/// F1 asks for help, whatever in the window has the focus.
void onHelpKey(QWidget& window, std::function<void()> help);

}  // namespace velmora
