// velmora-screenshots FOLDER: pictures of the main window in its states, as real calls of the controller
// bring them about. For the documents, and for a look at what a change does.
#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "serial/device_facts.h"
#include "serial/open_diagnosis.h"
#include "support/window_rig.h"

namespace {

using namespace velmora;
using test::WindowRig;

struct Scene {
    const char* name;
    bool dark;
    std::function<void(WindowRig&)> play;
};

QPalette darkPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2B, 0x2D, 0x30));
    palette.setColor(QPalette::WindowText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::Base, QColor(0x1F, 0x21, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x2B, 0x2D, 0x30));
    palette.setColor(QPalette::Text, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::Button, QColor(0x3A, 0x3D, 0x41));
    palette.setColor(QPalette::ButtonText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::Mid, QColor(0x55, 0x59, 0x5E));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x8E, 0xB9));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x80, 0x80, 0x80));
    return palette;
}

void download(WindowRig& rig) {
    rig.reach(WaitLink);
    rig.controller.setState(Connect);
    rig.controller.setState(Downld);
    rig.controller.setCurrentFile("/home/user/Psion Files/Contacts.odb");
    rig.controller.SetStats(1, 1843);
    rig.controller.SetStats(2, 312);
    rig.controller.SetStats(3, 2);
    rig.controller.SetStats(4, 1);
}

void portMissing(WindowRig& rig) {
    rig.controller.setState(Offline);
    rig.port.number = 5;
    rig.link.startResult = 5;
    rig.controller.pbStartStop_Click();
    DeviceFacts facts;
    rig.window.showAdvice(describeOpenFailure("/dev/ttyUSB0", 2, facts, ""));
}

const std::vector<Scene>& scenes() {
    static const std::vector<Scene> all = {
        {"welcome", false, [](WindowRig& rig) { rig.controller.setState(Offline); }},
        {"waiting", false, [](WindowRig& rig) { rig.reach(WaitLink); }},
        {"main-window", false, download},
        {"main-window-dark", true, download},
        {"port-missing", false, portMissing},
        {"port-missing-dark", true, portMissing},
        {"no-port", false,
         [](WindowRig& rig) {
             rig.controller.ShowWarning("No port selected!", "");
             rig.controller.setState(NoPort);
         }},
        {"stopped-by-organiser", false,
         [](WindowRig& rig) {
             rig.reach(WaitLink);
             rig.controller.setState(OnExit);
         }},
    };
    return all;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: velmora-screenshots FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette light = QApplication::palette();
    for (const Scene& scene : scenes()) {
        QApplication::setPalette(scene.dark ? darkPalette() : light);
        WindowRig rig;
        rig.window.setVersion("beta3", "build 1");
        rig.window.show();
        scene.play(rig);
        QApplication::processEvents();
        const QString path = folder.filePath(QLatin1String(scene.name) + QStringLiteral(".png"));
        if (!rig.window.grab().save(path)) {
            std::fprintf(stderr, "velmora-screenshots: %s cannot be written\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
