// The icon in the tray without a desktop: what its menu does, what its tip and its notices say.
#include "ui/qt/tray_icon.h"

#include <QAction>
#include <QPushButton>
#include <QTest>

#include "support/recording_tray.h"
#include "ui/qt/artwork.h"

namespace velmora {
namespace {

/// An icon, and what the user did with it.
struct Rig {
    Rig() { icon.appear(); }
    QList<QAction*> entries() const { return tray.icon->contextMenu()->actions(); }

    test::RecordingTray tray;
    QStringList done;
    TrayIcon icon{QStringLiteral("Velmora (attic)"),
                  {[this] { done.append(QStringLiteral("show")); },
                   [this] { done.append(QStringLiteral("start or stop")); },
                   [this] { done.append(QStringLiteral("quit")); }},
                  tray.desktop()};
};

}  // namespace

class TrayIconTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theMenuShowsStartsOrStopsAndQuits() {
        Rig rig;
        QStringList captions;
        for (QAction* entry : rig.entries()) {
            captions.append(entry->text());
            entry->trigger();
        }
        QCOMPARE(captions, QStringList({"S&how", "", "", "&Quit"}));
        QCOMPARE(rig.done, QStringList({"show", "start or stop", "quit"}));
    }

    void startAndStopAreThoseOfTheWindow() {
        Rig rig;
        QAction* entry = rig.entries().at(1);
        QPushButton button(QStringLiteral("&Stop"));
        rig.icon.mirrorStartStop(button);
        QCOMPARE(entry->text(), QStringLiteral("&Stop"));
        QVERIFY(entry->isEnabled());
        button.setEnabled(false);
        rig.icon.mirrorStartStop(button);
        QVERIFY(!entry->isEnabled());
        entry->trigger();
        QCOMPARE(rig.done, QStringList());
    }

    void aClickOrANoticeThatIsClickedShowsTheWindow() {
        Rig rig;
        Q_EMIT rig.tray.icon->activated(QSystemTrayIcon::Trigger);
        QCOMPARE(rig.done, QStringList({"show"}));
        Q_EMIT rig.tray.icon->activated(QSystemTrayIcon::Context);
        QCOMPARE(rig.done, QStringList({"show"}));
        Q_EMIT rig.tray.icon->messageClicked();
        QCOMPARE(rig.done, QStringList({"show", "show"}));
    }

    void theTipSaysWhoServesAndWhatItDoes() {
        Rig rig;
        QCOMPARE(rig.tray.icon->toolTip(), QStringLiteral("Velmora (attic)"));
        rig.icon.showStatus(QStringLiteral("Waiting for link"));
        QCOMPARE(rig.tray.icon->toolTip(), QStringLiteral("Velmora (attic): Waiting for link"));
        QVERIFY(!rig.tray.icon->icon().isNull());
    }

    void faultsHaveTheSignOfAWarning() {
        Rig rig;
        rig.icon.notify({"Caf\xE9", false});
        rig.icon.notify({"The port COM7 is lost.", true});
        QCOMPARE(rig.tray.notices, QStringList({QStringLiteral("Café"), "! The port COM7 is lost."}));
        QCOMPARE(rig.tray.titles, QStringList({"Velmora (attic)", "Velmora (attic)"}));
    }

    void withoutATrayNothingIsNotified() {
        Rig rig;
        rig.tray.there = false;
        rig.icon.notify({"Nobody would see this."});
        QVERIFY(!rig.icon.inTray());
        QCOMPARE(rig.tray.notices, QStringList());
        rig.tray.there = true;
        QVERIFY(rig.icon.inTray());
    }

    /// What stands behind the real desktop can be asked here too, where there is no tray.
    void aDesktopOfItsOwnHasTheToolkitsTray() {
        const TrayIcon::Desktop desktop;
        QCOMPARE(desktop.hasTray(), QSystemTrayIcon::isSystemTrayAvailable());
        QSystemTrayIcon icon(programIcon());
        desktop.appear(icon);
        QVERIFY(icon.isVisible());
        desktop.notify(icon, QStringLiteral("Velmora"), QStringLiteral("text"), QSystemTrayIcon::Warning);
    }
};

}  // namespace velmora

QTEST_MAIN(velmora::TrayIconTest)
#include "tray_icon_test.moc"
