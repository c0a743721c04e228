#include "apps/desktop_transfers.h"

#include <QDateTime>

#include "base/system_text.h"
#include "ui/qt/desktop_files.h"

namespace velmora {
namespace {

constexpr const char* kHistoryFile = "Transfers.jsonl";

DateTime localTime(const DateTime& universal) {
    const QDateTime moment(QDate(universal.year, universal.month, universal.day),
                           QTime(universal.hour, universal.minute, universal.second), Qt::UTC);
    const QDate date = moment.toLocalTime().date();
    const QTime time = moment.toLocalTime().time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

}  // namespace

DesktopTransfers::DesktopTransfers(PlatformParts& platform, TraceSink& trace)
    : history_(platform.files, platform.rules,
               platform.rules.join(platform.folders.programData(), kHistoryFile), timer_,
               [&trace](const std::string& why) {
                   trace.addline("The list of transfers cannot be kept: " + shownText(why));
               }),
      list_(localTime, history_.load()),
      window_(list_, {openOnDesktop, showInFolder}) {}

void DesktopTransfers::follow(ServerCore& server) {
    server.observe(list_);
    server.observe(history_);
}

}  // namespace velmora
