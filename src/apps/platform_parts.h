// What the machine gives a serving program: files, time, the serial port and its timers.
#pragma once

#include <functional>
#include <utility>

#include "apps/system_zone.h"
#include "eventloop/port_watcher.h"
#include "eventloop/qt_event_yield.h"
#include "eventloop/qt_timer.h"
#include "platform/known_folders.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_paths.h"
#include "platform/profile/text_profile_files.h"
#include "platform/system_clock.h"
#include "serial/comm_posix.h"
#include "serial/my_comm.h"
#include "serial/port_names.h"

namespace velmora {

/// One object of each kind, for a program with an event loop.
struct PlatformParts {
    /// `poll` reads what waits at the port; it runs on the event loop as soon as bytes come.
    explicit PlatformParts(std::function<void()> poll)
        : folders(processEnvironment()),
          files(folders.temporary()),
          rules(currentFolder()),
          profiles(files, rules),
          device(portNames),
          watcher(std::move(poll)),
          port(device, yield, &watcher),
          ComTimer(watcher) {}

    KnownFolders folders;
    PosixFiles files;
    PosixPaths rules;
    TextProfileFiles profiles;
    SystemClock clock;
    SystemZone zone;
    QtEventYield yield;
    PortNames portNames;
    PosixCommDevice device;
    PortWatcher watcher;
    myComm port;
    WatchedTimer<QtTimer> ComTimer;
    QtTimer PLPtimer;
    QtTimer DisplayTimer;
};

}  // namespace velmora
