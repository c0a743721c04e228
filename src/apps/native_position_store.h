// Where the desktop program keeps the place of its window: the registry, or the toolkit's settings on systems
// without one.
#pragma once

#include <optional>
#include <string>

#include "base/profile_name.h"

#ifdef _WIN32
#include "platform/win32/registry_functions.h"
#include "ui/registry_win32.h"
#else
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
    const auto named = [&profile](const char* usual) {
        return profile ? profiledName(usual, *profile) : std::string(usual);
    };
#ifdef _WIN32
    return NativePositionStore(named(kSettingsKey));
#else
    return {QStringLiteral("Quillbrook"), qtSystemText(named("Velmora"))};
#endif
}

}  // namespace velmora
