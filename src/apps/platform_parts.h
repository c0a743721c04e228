// What the machine gives a serving program: files, time, the serial port and its timers.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "apps/system_zone.h"
#include "eventloop/adapter_monitor.h"
#include "eventloop/lazy_timer.h"
#include "eventloop/paced_yield.h"
#include "eventloop/port_watcher.h"
#include "eventloop/qt_event_yield.h"
#include "eventloop/qt_timer.h"
#include "eventloop/system_sleep.h"
#include "platform/native.h"
#include "serial/comm_device.h"
#include "serial/my_comm.h"
#include "serial/port_names.h"

namespace velmora {

/// One object of each kind, for a program with an event loop.
struct PlatformParts {
    /// `poll` reads what waits at the port; it runs on the event loop as soon as bytes come. `soonestFrame`
    /// is the link's.
    PlatformParts(std::function<void()> poll, const std::function<std::chrono::nanoseconds()>& soonestFrame)
        : files(folders.temporary()),
          rules(currentFolder()),
          profiles(files, rules),
          device(makeCommDevice(portNames)),
          watcher(
              [this, poll = std::move(poll)] {
                  readYield.loopRuns();
                  poll();
              },
              soonestFrame, clock),
          port(*device, readYield),
          ComTimer(watcher, comTicks, clock),
          PLPtimer(plpTicks, clock) {
        port.observe(watcher);
    }

    NativeFolders folders;
    NativeFiles files;
    NativePaths rules;
    NativeProfileFiles profiles;
    NativeClock clock;
    SystemZone zone;
    QtEventYield yield;
    PacedYield readYield{yield, clock};  // for each byte of a conversation
    PortNames portNames;
    std::unique_ptr<CommDevice> device;
    PortWatcher watcher;
    myComm port;
    QtTimer comTicks;  // what the next two are made of
    QtTimer plpTicks;
    WatchedTimer<LazyTimer> ComTimer;
    LazyTimer PLPtimer;
    QtTimer DisplayTimer;
    QtTimer KeeperTimer;
    QtTimer SleepTimer;
    AdapterMonitor adapters;
    SystemSleep sleep;
};

}  // namespace velmora
