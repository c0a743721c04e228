// The frame that the desktop puts around a window when it shows it first.
#pragma once

#include <QWidget>
#include <functional>

namespace velmora {

/// Calls `place` once, as soon as the frame of a window that was not shown yet is known: on some desktops
/// before it can be seen, on others at once after. Not when the window stands elsewhere by then than it
/// stands now: its user or the desktop has placed it. Nothing is called for a window without a frame.
void whenFramed(QWidget& window, std::function<void()> place);

}  // namespace velmora
