#include "apps/server_core.h"

#include "services/plan_menu.h"

namespace velmora {
ServerCore::ServerCore(const ServerCoreParts& parts)
    : copies{parts.rules.join(parts.programData, "Earlier copies")},
      tools_(parts.files, parts.rules, transfer),
      controller_({parts.view, parts.box, strings, options, transfer, parts.port, parts.ComTimer,
                   parts.PLPtimer, parts.DisplayTimer, parts.clock, parts.yield,
                   [this](const std::string& path) { return tools_.displayName(path); }, parts.portName,
                   parts.portWatched, parts.started}),
      link_(crc, controller_, parts.ComTimer, parts.trace, parts.readYield, parts.clock),
      linkControl_(link_),
      dispatcher_(link_, controller_, parts.trace),
      transferLog_(controller_, parts.trace, parts.rules),
      transfers_(parts.clock),
      earlierCopies_(parts.files, parts.rules, parts.clock, transferLog_, copies),
      openFile_(parts.files, parts.rules, controller_, earlierCopies_, transferLog_),
      spreadsheet_(parts.files, parts.rules, transfer.sheets),
      timeServices_(parts.clock, parts.zone),
      ftran_(link_, controller_, openFile_, transfers_, tools_, transfer),
      file_(link_, controller_, openFile_, transfers_, tools_),
      boot_(link_, controller_, parts.files, transfers_, tools_),
      exit_(link_, link_.stopRequests().exit),
      shutdown_(link_, link_.stopRequests().shutdown),
      plan_(link_, controller_, tools_, spreadsheet_, earlierCopies_, transferLog_, transfers_),
      planm_(link_, offeredFormats()),
      time_(link_, controller_, transfers_, timeServices_, TimeReply::Local),
      gmt_(link_, controller_, transfers_, timeServices_, TimeReply::Universal),
      timeInfo_(link_, controller_, transfers_, timeServices_, TimeReply::LocalWithZone) {
    controller_.attachLink(linkControl_);
    if (parts.portKeeping) {
        const ServerCoreParts::PortKeeping& keeping = *parts.portKeeping;
        keeper_.emplace(
            WantedPortParts{parts.port, keeping.names, options, keeping.list, keeping.facts, keeping.tell},
            keeping.timer, keeping.waitFor, [this] { return controller_.restart(); });
        controller_.attachPortKeeper(*keeper_);
    }
    if (parts.sleepWatching) {
        sleepWatch_.emplace(
            parts.sleepWatching->sleep, parts.sleepWatching->timer,
            SleepActions{[this] { controller_.computerSleeps(); }, [this] { controller_.computerWakes(); }});
        controller_.attachSleepWatch(*sleepWatch_);
    }
    link_.setServices(dispatcher_);
    dispatcher_.add("FTRAN", ftran_);
    dispatcher_.add("FILE", file_);
    dispatcher_.add("BOOT", boot_);
    dispatcher_.add("EXIT", exit_);
    dispatcher_.add("SHUTDOWN", shutdown_);
    dispatcher_.add("PLAN", plan_);
    dispatcher_.add("PLANM", planm_);
    dispatcher_.add("TIME", time_);
    dispatcher_.add("GMT", gmt_);
    dispatcher_.add("TIMEINFO", timeInfo_);
}

void ServerCore::applySettings(const Settings& settings) {
    transfer.sheets.locale = namedNumberLocale("").value_or(NumberLocale{});
    transfer.sheets.wksDialect = settings.WksDialect == 1 ? WksDialect::Common : WksDialect::Own;
    copies.days = settings.EarlierCopies;
    earlierCopies_.removeExpired();
}

void ServerCore::adaptersChanged() {
    if (keeper_) {
        keeper_->adaptersChanged();
    }
}

ServerCore::~ServerCore() {
    // The link may still be up when a program ends early; the services must be there for its last event.
    stopLink();
}

void ServerCore::stopLink() {
    link_.PLP_Stop();
}

}  // namespace velmora
