// Where the desktop program keeps the place of its window: the registry, or the toolkit's settings on systems
// without one.
#pragma once

#ifdef _WIN32
#include "ui/registry_win32.h"
#else
#include "ui/qt/window_position.h"
#endif

namespace velmora {

#ifdef _WIN32
using NativePositionStore = RegistryStore;
#else
using NativePositionStore = QtPositionStore;
#endif

}  // namespace velmora
