// The classes of the system that this program is built for, under one name each. Only programs and their
// parts name them; everything else sees the interfaces.
#pragma once

#ifdef _WIN32
#include "platform/profile/win32_profile_files.h"
#include "platform/win32/shell_folders.h"
#include "platform/win32/win32_clock.h"
#include "platform/win32/win32_files.h"
#include "platform/windows_paths.h"
#else
#include "platform/posix/posix_clock.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_paths.h"
#include "platform/posix/xdg_folders.h"
#include "platform/profile/text_profile_files.h"
#endif

namespace velmora {

#ifdef _WIN32
using NativeClock = Win32Clock;
using NativeFiles = Win32Files;
using NativeFolders = ShellFolders;
using NativePaths = WindowsPaths;
using NativeProfileFiles = Win32ProfileFiles;
#else
using NativeClock = PosixClock;
using NativeFiles = PosixFiles;
using NativeFolders = XdgFolders;
using NativePaths = PosixPaths;
using NativeProfileFiles = TextProfileFiles;
#endif

}  // namespace velmora
