#include "apps/desktop_help.h"

#include <QCoreApplication>

#include "base/system_text.h"
#include "server/caption.h"
#include "ui/qt/desktop_files.h"
#include "ui/qt/qt_message_box.h"
#include "ui/qt/qt_text.h"

namespace velmora {

DesktopHelp::DesktopHelp(const PlatformParts& platform)
    : help_(platform.files, platform.rules,
            platform.rules.absolute(systemPath(QCoreApplication::applicationDirPath())),
            [](const std::string& path, std::string_view anchor) {
                return systemPath(openPage(path, anchor));
            }) {}

std::function<void()> DesktopHelp::about(QWidget& window, HelpTopic topic) const {
    return [this, &window, topic] {
        if (const std::string why = help_.show(topic); !why.empty()) {
            QtMessageBox(&window).inform(BoxIcon::Information, kProgramName, shownText(why));
        }
    };
}

}  // namespace velmora
