// Where the desktop program keeps the place of its window: the registry, or the toolkit's settings on systems
// without one.
#pragma once

#include <optional>
#include <string>

#ifdef _WIN32
#include "ui/registry_win32.h"
#else
#include "base/profile_name.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/window_position.h"
#endif

namespace velmora {

#ifdef _WIN32
using NativePositionStore = RegistryStore;
#else
using NativePositionStore = QtPositionStore;
#endif

/// The usual place, or that of a profile, whose name is in the system's encoding.
inline NativePositionStore positionStore(const std::optional<std::string>& profile) {
#ifdef _WIN32
    return NativePositionStore(settingsKeyOf(profile));
#else
    return {QStringLiteral("Quillbrook"),
            qtSystemText(profile ? profiledName("Velmora", *profile) : std::string("Velmora"))};
#endif
}

}  // namespace velmora
