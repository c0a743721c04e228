// The desktop server on a real terminal: a cable that is pulled out and comes back.
#include "apps/desktop_server.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <utility>

#include "capture/pcapng_reader.h"
#include "support/pty_pair.h"
#include "support/recording_tray.h"
#include "ui/qt/frm_about.h"
#include "ui/transfer_list.h"

namespace velmora {
namespace {

/// Remembers every text that a label was painted with.
class PaintedTexts : public QObject {
  public:
    explicit PaintedTexts(QLabel& label) : label_(label) { label.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && !texts.contains(label_.text().trimmed())) {
            texts.append(label_.text().trimmed());
        }
        return false;
    }

    QStringList texts;

  private:
    QLabel& label_;
};

class DesktopServerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void startsByItselfAndShowsIt();
    void withoutAPortItSaysWhatToDoNext();
    void isBroughtBackWhereverItsWindowIs();
    void hideGoesIntoTheTrayWhereThatIsWantedAndThereIsOne_data();
    void hideGoesIntoTheTrayWhereThatIsWantedAndThereIsOne();
    void aServerThatHidesByItselfGoesIntoTheTrayToo();
    void theTraysMenuStopsStartsAndQuitsBehindAHiddenWindow();
    void theTrayStartsNothingBehindADialog();
    void theTrayTellsOfAFileAndOfALostPort();
    void aFolderThatIsGoneIsToldInsteadOfOpened();
    void aProfileHasItsTitleAndItsPlace();
    void filesThatAreDroppedOnTheWindowAreServed();
    void helpOpensTheGuideAtTheWindowOrSaysWhereItIs();
    void pulledCableStopsTheServerUntilItIsBack();
    void whileItWaitsForItsCableItCanBeStopped();
    void missingDeviceTellsWhatToDo();
    void setupTakesReadyTextsOverAndSaysSo();
    void textsThatCannotBeTakenOverAreTold();
    void aCableThatIsCheckedFromSetupTellsOfAPortThatVanishes();
    void theEndOfTheProgramEndsACheckOfTheCable();
    void displayStatisticsAndFileAgree();
    void aTransferIsListedAndRememberedOverStarts();
    void noTimerOfAWindowTicksWhileNothingMoves();
    void theMonitorSavesWhatPassedOverTheLine();
    void theReportHasWhatPassedOverTheLineWithoutItsContents();
    void cablePulledAmidAFileLosesItWhateverTheUserAnswers_data();
    void cablePulledAmidAFileLosesItWhateverTheUserAnswers();
    void debugSwitchIsShownForTheWholeCommandLineOnly_data();
    void debugSwitchIsShownForTheWholeCommandLineOnly();

  private:
    void plug() {
        pty = std::make_unique<test::PtyPair>();
        std::filesystem::remove(port);
        std::filesystem::create_symlink(pty->slavePath(), port);
    }
    /// Makes the port one end of a cable; the other is the handheld's. The cable ends with its process.
    void layCable() {
        cable.start(QStringLiteral(VELMORA_TOOLS_DIR "/velmora-cable"), QStringList());
        QTRY_COMPARE(cable.bytesAvailable() > 0 ? cable.peek(4096).count('\n') : 0, qsizetype{2});
        const QByteArray device = cable.readLine().trimmed();
        handheld = QString::fromLocal8Bit(cable.readLine().trimmed());
        std::filesystem::remove(port);
        std::filesystem::create_symlink(device.toStdString(), port);
    }
    /// Another server, with a line more in [Settings], on a desktop with a tray.
    void withTray(const QByteArray& setting) {
        server.reset();
        QFile file(home->filePath(QStringLiteral("Velmora.ini")));
        const QByteArray ini = configuration().replace("AutoStart=True", "AutoStart=True\r\n" + setting);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(ini);
        file.close();
        tray.there = true;
        tray.notices.clear();
        server = std::make_unique<DesktopServer>(RunOverrides(), tray.desktop());
    }
    /// Starts an Organiser that saves a block file of so many bytes as NOTES.
    void startSaving(std::size_t size, const QStringList& faults = {}) {
        const std::filesystem::path local = home->filePath(QStringLiteral("local")).toStdString();
        std::ofstream(local, std::ios::binary) << std::string(size, 'Q');
        organiser.start(QStringLiteral(VELMORA_BIN_DIR "/velmora-organiser"),
                        QStringList{QStringLiteral("--device"), handheld} + faults +
                            QStringList{QStringLiteral("save"), QString::fromStdString(local.string()),
                                        QStringLiteral("--as"), QStringLiteral("NOTES"),
                                        QStringLiteral("--type"), QStringLiteral("block:2")});
    }
    QLabel* label(const char* name) const { return server->window().findChild<QLabel*>(QLatin1String(name)); }
    static QWidget* windowCalled(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String(name)) {
                return window;
            }
        }
        return nullptr;
    }
    /// What in the windows waits for a time.
    static QStringList waitingForATime() {
        QStringList names;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            for (QObject* part : window->findChildren<QObject*>()) {
                if (!QAbstractEventDispatcher::instance()->registeredTimers(part).isEmpty()) {
                    names.append(window->objectName() + QLatin1String(": ") +
                                 QLatin1String(part->parent()->metaObject()->className()));
                }
            }
        }
        return names;
    }
    static QWidget* transfers() { return windowCalled("frmTransfers"); }
    static void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        window.activateWindow();
        QTRY_VERIFY(window.isActiveWindow());
        QTest::keyClick(&window, key, modifiers);
    }
    /// Presses F1 in a window; the address that the desktop was given, or what a box said instead.
    QString helpOf(QWidget& window) {
        told.clear();
        QTimer reader;
        connect(&reader, &QTimer::timeout, this, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told = box->text();
                box->accept();
            }
        });
        reader.start();
        press(window, Qt::Key_F1);
        return told;
    }
    /// What stands in the first row of the transfers.
    static QString transferText(int column) {
        return transfers()->findChild<QTableView*>()->model()->index(0, column).data().toString();
    }
    /// Stops the server, checks the cable from the setup dialog and closes both; returns what the check came
    /// to. `amid` is called once some steps are done.
    QString checkCable(const std::function<void()>& amid) {
        QTest::mouseClick(startStop(), Qt::LeftButton);
        QString result;
        bool reached = false;
        // Each look asks for the next one first: the dialogs' own loops run within it.
        QObject ends;
        std::function<void()> look = [&] {
            QTimer::singleShot(10, &ends, [&look] { look(); });
            auto* top = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            auto* begin =
                top != nullptr ? top->findChild<QPushButton*>(QStringLiteral("pbCheckCable")) : nullptr;
            auto* steps = top != nullptr ? top->findChild<QTableWidget*>() : nullptr;
            if (begin != nullptr && !result.isEmpty()) {
                top->reject();
            } else if (begin != nullptr && begin->isEnabled()) {
                begin->click();
            } else if (steps != nullptr && steps->rowCount() >= 4 && !std::exchange(reached, true)) {
                amid();
            } else if (steps != nullptr) {
                result = top->findChild<QLabel*>(QStringLiteral("lblResult"))->text();
                if (!result.isEmpty()) {
                    top->reject();
                }
            }
        };
        look();
        QTest::mouseClick(server->window().findChild<QPushButton*>(QStringLiteral("pbSetup")),
                          Qt::LeftButton);
        return result;
    }

    /// Chooses texts in the setup dialog; returns what is said then.
    QString takeTexts(const QString& language) {
        QTest::mouseClick(startStop(), Qt::LeftButton);
        QString said;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            QWidget* top = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(top)) {
                said = box->text();
                box->accept();
            } else if (auto* ok = top ? top->findChild<QPushButton*>("pbOK") : nullptr;
                       ok && ok->isEnabled()) {
                top->findChild<QComboBox*>("cboTexts")->setCurrentText(language);
                ok->click();
            }
        });
        look.start();
        QTest::mouseClick(server->window().findChild<QPushButton*>(QStringLiteral("pbSetup")),
                          Qt::LeftButton);
        return said;
    }
    QByteArray configuration(const char* ending = "") const {
        QFile file(home->filePath(QStringLiteral("Velmora.ini") + QLatin1String(ending)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

  public Q_SLOTS:
    void takeAddress(const QUrl& url) { told = url.fileName() + QLatin1Char('#') + url.fragment(); }

  private:
    QPushButton* button(const char* name) const {
        return server->window().findChild<QPushButton*>(QLatin1String(name));
    }
    QPushButton* startStop() const { return button("pbStartStop"); }

    std::unique_ptr<QTemporaryDir> home;
    std::filesystem::path port;
    std::unique_ptr<test::PtyPair> pty;
    QProcess cable;
    QString handheld;
    QString told;
    QProcess organiser;
    test::RecordingTray tray;
    std::unique_ptr<DesktopServer> server;
};

void DesktopServerTest::init() {
    home = std::make_unique<QTemporaryDir>();
    const std::filesystem::path folder = home->path().toStdString();
    port = folder / "port";
    qputenv("HOME", home->path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home->path().toLocal8Bit());
    std::filesystem::create_directory(folder / "psion");
    std::ofstream(folder / "Velmora.ini", std::ios::binary)
        << "[Settings]\r\nPort=40\r\nBaud=9600\r\nAutoStart=True\r\nDownloadPath="
        << (folder / "psion").string() << "\r\n[Ports]\r\nCOM40=" << port.string() << "\r\n; "
        << std::string(5000, '-') << "\r\n";
    plug();
    server = std::make_unique<DesktopServer>();
}

void DesktopServerTest::cleanup() {
    server->controller().queryUnload(CloseReason::Terminated);
    server.reset();
    pty.reset();
    home.reset();
}

void DesktopServerTest::startsByItselfAndShowsIt() {
    QVERIFY(server->start(""));
    QVERIFY(server->window().isVisible());
    QCOMPARE(server->controller().state(), int{WaitLink});
    QCOMPARE(label("tlDisplay_1")->text(), QStringLiteral("Waiting for link"));
    QCOMPARE(label("tlProgVers")->text(), QStringLiteral("beta3 build 1"));
    QVERIFY(label("tlProgVers")->toolTip().startsWith(QStringLiteral("Velmora 0.")));
    QCOMPARE(label("lblFolder")->accessibleDescription(), home->filePath(QStringLiteral("psion")));
    QCOMPARE(startStop()->text(), QStringLiteral("&Stop"));
    QVERIFY(!label("lblDebug")->isVisible());
}

void DesktopServerTest::isBroughtBackWhereverItsWindowIs() {
    QVERIFY(server->start(""));
    server->window().showMinimized();
    server->present();
    QVERIFY(!server->window().isMinimized());
    server->window().hide();
    server->present();
    QVERIFY(server->window().isVisible());
}

void DesktopServerTest::withoutAPortItSaysWhatToDoNext() {
    server.reset();
    const std::filesystem::path folder = home->path().toStdString();
    // None of the devices behind the numbers that are searched exists.
    std::ofstream ini(folder / "Velmora.ini", std::ios::binary);
    ini << "[Settings]\r\nPort=0\r\nDownloadPath=" << (folder / "psion").string() << "\r\n[Ports]\r\n";
    for (int number = 1; number <= 64; ++number) {
        ini << "COM" << number << "=" << (folder / "none").string() << "\r\n";
    }
    ini.close();
    server = std::make_unique<DesktopServer>();
    QVERIFY(server->start(""));
    QCOMPARE(server->controller().state(), int{NoPort});
    QVERIFY(label("lblAdvice")->isVisible());
    QCOMPARE(label("lblAdvice")->text(), QStringLiteral("Plug in the adapter, then click Setup."));
}

void DesktopServerTest::hideGoesIntoTheTrayWhereThatIsWantedAndThereIsOne_data() {
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<bool>("there");
    QTest::addColumn<bool>("goes");
    QTest::newRow("wanted") << QByteArray("HideToTray=True") << true << true;
    QTest::newRow("no tray") << QByteArray("HideToTray=True") << false << false;
    QTest::newRow("not wanted") << QByteArray() << true << false;
}

void DesktopServerTest::hideGoesIntoTheTrayWhereThatIsWantedAndThereIsOne() {
    QFETCH(QByteArray, setting);
    QFETCH(bool, there);
    QFETCH(bool, goes);
    withTray(setting);
    tray.there = there;
    QVERIFY(server->start(""));
    const auto hide = [this] { QTest::mouseClick(button("pbHide"), Qt::LeftButton); };
    hide();
    QCOMPARE(server->window().isVisible(), !goes);
    QCOMPARE(server->window().isMinimized(), !goes);
    QCOMPARE(server->controller().state(), int{WaitLink});
    server->present();
    QVERIFY(server->window().isVisible() && !server->window().isMinimized());
    QVERIFY(!server->window().windowTitle().contains(QStringLiteral("Waiting")));
    // A transfer with AutoPopup, and an EXIT of the Organiser, bring it back like that.
    hide();
    server->window().restore();
    QVERIFY(server->window().isVisible() && !server->window().isMinimized());
}

void DesktopServerTest::aServerThatHidesByItselfGoesIntoTheTrayToo() {
    withTray("HideToTray=True\r\nAutoHide=True");
    QVERIFY(server->start(""));
    QCOMPARE(server->controller().state(), int{WaitLink});
    QVERIFY(!server->window().isVisible());
    Q_EMIT tray.icon->activated(QSystemTrayIcon::Trigger);
    QVERIFY(server->window().isVisible());
    QCOMPARE(tray.icon->toolTip(), QStringLiteral("Velmora: Waiting for link"));
}

void DesktopServerTest::theTraysMenuStopsStartsAndQuitsBehindAHiddenWindow() {
    withTray("HideToTray=True");
    QVERIFY(server->start(""));
    QTest::mouseClick(button("pbHide"), Qt::LeftButton);
    const QList<QAction*> entries = tray.icon->contextMenu()->actions();
    QAction* startOrStop = entries.at(1);
    QCOMPARE(startOrStop->text(), QStringLiteral("&Stop"));
    startOrStop->trigger();
    QCOMPARE(server->controller().state(), int{Offline});
    QCOMPARE(startOrStop->text(), QStringLiteral("&Start"));
    startOrStop->trigger();
    QCOMPARE(server->controller().state(), int{WaitLink});
    QVERIFY(!server->window().isVisible());
    QTimer::singleShot(0, entries.last(), &QAction::trigger);
    QCOMPARE(server->run(), 0);
    QVERIFY(server->controller().closed());
}

void DesktopServerTest::theTrayStartsNothingBehindADialog() {
    withTray("HideToTray=True");
    QVERIFY(server->start(""));
    QTest::mouseClick(startStop(), Qt::LeftButton);
    bool asked = false;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [this, &asked] {
        auto* setup = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (setup == nullptr) {
            return;
        }
        asked = true;
        tray.icon->contextMenu()->actions().at(1)->trigger();
        tray.icon->contextMenu()->actions().last()->trigger();
        QCOMPARE(server->controller().state(), int{Offline});
        QVERIFY(!server->controller().closed());
        server->window().minimise();
        QVERIFY(server->window().isVisible());  // a dialog is not left behind
        setup->reject();
    });
    user.start(1);
    // The setup dialog starts the server anew when it closes, as AutoStart says.
    QTest::mouseClick(button("pbSetup"), Qt::LeftButton);
    QVERIFY(asked);
    QVERIFY(!server->controller().closed());
}

void DesktopServerTest::theTrayTellsOfAFileAndOfALostPort() {
    layCable();
    withTray("HideToTray=True");
    QVERIFY(server->start(""));
    QTest::mouseClick(button("pbHide"), Qt::LeftButton);
    QTRY_VERIFY(QApplication::activeWindow() == nullptr);
    startSaving(100);
    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);
    QTRY_COMPARE(tray.notices, QStringList({"Save of Notes.ob2: complete"}));
    cable.kill();
    QTRY_COMPARE(server->controller().state(), int{Offline});
    QCOMPARE(tray.notices.last(), QStringLiteral("! The port COM40 is lost."));
    QTRY_COMPARE(cable.state(), QProcess::NotRunning);
    // One that is missing from the start is none that was lost.
    const qsizetype before = tray.notices.size();
    server->controller().pbStartStop_Click();
    server->controller().pbStartStop_Click();
    QCOMPARE(server->controller().state(), int{Offline});
    QCOMPARE(tray.notices.size(), before);
}

void DesktopServerTest::aFolderThatIsGoneIsToldInsteadOfOpened() {
    QVERIFY(server->start(""));
    std::filesystem::remove(std::filesystem::path(home->path().toStdString()) / "psion");
    QTest::mouseClick(server->window().findChild<QPushButton*>(QStringLiteral("pbOpenFolder")),
                      Qt::LeftButton);
    QVERIFY(label("lblAdvice")->isVisible());
    QVERIFY(label("lblAdvice")->text().endsWith(QStringLiteral("psion is not there any more.")));
}

void DesktopServerTest::aProfileHasItsTitleAndItsPlace() {
    server.reset();
    std::filesystem::copy_file(home->filePath(QStringLiteral("Velmora.ini")).toStdString(),
                               home->filePath(QStringLiteral("Velmora-attic.ini")).toStdString());
    RunOverrides overrides;
    overrides.profile = "attic";
    server = std::make_unique<DesktopServer>(overrides);
    QCOMPARE(server->window().windowTitle(), QStringLiteral("Velmora (attic)"));
    QVERIFY(server->start(""));
    QCOMPARE(server->controller().state(), int{WaitLink});
    const QSize size = server->window().size() + QSize(60, 40);
    server->window().resize(size);
    QVERIFY(server->controller().queryUnload(CloseReason::User));
    QSettings place(QStringLiteral("Quillbrook"), QStringLiteral("Velmora-attic"));
    QVERIFY(place.contains(QStringLiteral("XPos")));
    server = std::make_unique<DesktopServer>(overrides);
    QVERIFY(server->start(""));
    QCOMPARE(server->window().size(), size);
    server = std::make_unique<DesktopServer>();
    QVERIFY(server->start(""));
    QVERIFY(server->window().width() < size.width());
    place.sync();
    place.clear();
}

void DesktopServerTest::filesThatAreDroppedOnTheWindowAreServed() {
    QVERIFY(server->start(""));
    const QString dropped = home->filePath(QStringLiteral("Memo.odb"));
    std::ofstream(dropped.toStdString(), std::ios::binary) << "text";
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(dropped)});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&server->window(), &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&server->window(), &drop);
    QTRY_COMPARE(label("lblAdvice")->text(), QStringLiteral("Memo.odb is in the download folder now."));
    QFile copied(home->filePath(QStringLiteral("psion/Memo.odb")));
    QVERIFY(copied.open(QIODevice::ReadOnly));
    QCOMPARE(copied.readAll(), QByteArray("text"));
    // A file that is replaced by another one is kept as a save keeps it.
    std::ofstream(dropped.toStdString(), std::ios::binary) << "newer";
    QCoreApplication::sendEvent(&server->window(), &enter);
    QCoreApplication::sendEvent(&server->window(), &drop);
    bool asked = false;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&asked] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        asked = true;
        for (QAbstractButton* button : box->buttons()) {
            if (button->text().contains(QStringLiteral("Replace"))) {
                button->click();
                return;
            }
        }
    });
    user.start(1);
    QTRY_VERIFY(asked);
    const QDir earlier(home->filePath(QStringLiteral(".local/share/Velmora/Earlier copies")));
    QTRY_COMPARE(earlier.entryList({QStringLiteral("Memo (*).odb")}).size(), qsizetype{1});
}

void DesktopServerTest::helpOpensTheGuideAtTheWindowOrSaysWhereItIs() {
    QVERIFY(server->start(""));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeAddress");
    // The pages are made with the whole project; a build of the tests alone has none.
    const bool made = QFile::exists(QCoreApplication::applicationDirPath() +
                                    QStringLiteral("/../documents/user-guide.html"));
    const auto expected = [made](const char* anchor) {
        return made ? QStringLiteral("user-guide.html#") + QLatin1String(anchor)
                    : QStringLiteral("The guide is not installed");
    };
    QVERIFY(helpOf(server->window()).startsWith(expected("the-window")));
    press(server->window(), Qt::Key_T, Qt::ControlModifier);
    QVERIFY(helpOf(*transfers()).startsWith(expected("what-was-transferred")));
    press(server->window(), Qt::Key_D, Qt::ControlModifier);
    QVERIFY(helpOf(*windowCalled("frmDebug")).startsWith(expected("the-protocol-monitor")));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void DesktopServerTest::pulledCableStopsTheServerUntilItIsBack() {
    QVERIFY(server->start(""));
    pty.reset();
    QTRY_COMPARE(server->controller().state(), int{Offline});
    QVERIFY(label("tlWarning")->isVisible());
    QVERIFY(label("tlBottomText_2")->text().startsWith(QStringLiteral("COM40: ")));
    QVERIFY(label("lblAdvice")->isVisible());
    QVERIFY(
        label("lblAdvice")->text().endsWith(QStringLiteral("Velmora goes on when it is plugged in again.")));
    QCOMPARE(label("tlDisplay_2")->text(), QStringLiteral("Waiting for port"));

    plug();
    QTRY_COMPARE(server->controller().state(), int{WaitLink});
    QVERIFY(!label("tlWarning")->isVisible());
    QVERIFY(!label("lblAdvice")->isVisible());
    QCOMPARE(startStop()->text(), QStringLiteral("&Stop"));
}

void DesktopServerTest::whileItWaitsForItsCableItCanBeStopped() {
    QVERIFY(server->start(""));
    pty.reset();
    QTRY_COMPARE(server->controller().state(), int{Offline});
    QCOMPARE(startStop()->text(), QStringLiteral("&Stop"));
    QVERIFY(startStop()->isEnabled());
    QTest::mouseClick(startStop(), Qt::LeftButton);
    QCOMPARE(server->controller().state(), int{Offline});
    QCOMPARE(startStop()->text(), QStringLiteral("&Start"));
    QVERIFY(!label("tlWarning")->isVisible());
    QVERIFY(label("tlDisplay_2")->text().contains(QStringLiteral("Click Start!")));

    plug();
    QTest::mouseClick(startStop(), Qt::LeftButton);
    QCOMPARE(server->controller().state(), int{WaitLink});
}

void DesktopServerTest::missingDeviceTellsWhatToDo() {
    pty.reset();
    std::filesystem::remove(port);
    QVERIFY(server->start(""));
    QCOMPARE(server->controller().state(), int{Offline});
    QCOMPARE(label("tlBottomText_2")->text(), QStringLiteral("Port COM40 is not accessible!"));
    QVERIFY(label("lblAdvice")->text().contains(QString::fromStdString(port.string())));
    plug();
    QTest::mouseClick(startStop(), Qt::LeftButton);
    QCOMPARE(server->controller().state(), int{WaitLink});
}

void DesktopServerTest::setupTakesReadyTextsOverAndSaysSo() {
    QVERIFY(server->start(""));
    const QByteArray before = configuration();
    const QString said = takeTexts(QStringLiteral("Deutsch"));
    QVERIFY2(said.contains(QStringLiteral("Deutsch. The file as it was is kept as\n")), qPrintable(said));
    QVERIFY(said.endsWith(QStringLiteral("Velmora.ini.old")));
    QVERIFY(configuration().contains("Received=\"Empfangen\""));
    QVERIFY(configuration().contains("COM40="));
    QCOMPARE(configuration(".old"), before);
}

void DesktopServerTest::textsThatCannotBeTakenOverAreTold() {
    QVERIFY(server->start(""));
    const QString path = home->filePath(QStringLiteral("Velmora.ini"));
    QVERIFY(QFile::remove(path));
    QVERIFY(QDir().mkdir(path));
    const QString said = takeTexts(QStringLiteral("Deutsch"));
    QVERIFY2(said.startsWith(QStringLiteral("The texts could not be taken over: ")), qPrintable(said));
    QVERIFY(QDir().rmdir(path));
}

void DesktopServerTest::aCableThatIsCheckedFromSetupTellsOfAPortThatVanishes() {
    QVERIFY(server->start(""));
    const QString result = checkCable([this] { pty.reset(); });
    QVERIFY2(result.startsWith(QStringLiteral("The device fails")), qPrintable(result));
    plug();
    QTest::mouseClick(startStop(), Qt::LeftButton);
    QCOMPARE(server->controller().state(), int{WaitLink});
}

void DesktopServerTest::theEndOfTheProgramEndsACheckOfTheCable() {
    QVERIFY(server->start(""));
    const QString result = checkCable([this] { server->controller().queryUnload(CloseReason::Terminated); });
    QCOMPARE(result, QStringLiteral("The check was stopped."));
}

void DesktopServerTest::displayStatisticsAndFileAgree() {
    const std::filesystem::path folder = home->path().toStdString();
    layCable();
    QVERIFY(server->start(""));
    PaintedTexts line1(*label("tlDisplay_1"));
    PaintedTexts line2(*label("tlDisplay_2"));

    // Long enough for the display to be painted with the name, also where the machine does much else.
    constexpr std::size_t kSize = 20'000;
    startSaving(kSize, {QStringLiteral("--delay"), QStringLiteral("5")});
    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);
    QCOMPARE(organiser.exitCode(), 0);

    QCOMPARE(std::filesystem::file_size(folder / "psion" / "Notes.ob2"), std::uintmax_t{kSize + 6});
    QCOMPARE(label("tlFilesRecv")->text(), QStringLiteral("1"));
    QCOMPARE(label("tlFilesSent")->text(), QStringLiteral("0"));
    QVERIFY(QLocale::c().toInt(label("tlBytesRecv")->text()) >= int{kSize});
    QVERIFY2(line1.texts.contains(QStringLiteral("Downloading file")), qPrintable(line1.texts.join('|')));
    QVERIFY2(line2.texts.contains(QStringLiteral("Notes.ob2")), qPrintable(line2.texts.join('|')));
    cable.closeWriteChannel();
    QTRY_COMPARE(cable.state(), QProcess::NotRunning);
}

void DesktopServerTest::aTransferIsListedAndRememberedOverStarts() {
    layCable();
    QVERIFY(server->start(""));
    QTest::mouseClick(server->window().findChild<QPushButton*>(QStringLiteral("pbTransfers")),
                      Qt::LeftButton);
    QVERIFY(transfers()->isVisible());
    startSaving(3000);
    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);
    QTRY_COMPARE(transferText(TransferList::Result), QStringLiteral("complete"));
    QCOMPARE(transferText(TransferList::Name), QStringLiteral("Notes.ob2"));
    QCOMPARE(transferText(TransferList::Direction), QStringLiteral("save"));
    const QString began = transferText(TransferList::Time);
    QVERIFY2(qAbs(QDateTime::fromString(began, QStringLiteral("yyyy-MM-dd hh:mm:ss"))
                      .secsTo(QDateTime::currentDateTime())) < 60,
             qPrintable(began));
    server->controller().queryUnload(CloseReason::Program);
    QVERIFY(!transfers()->isVisible());
    server.reset();

    server = std::make_unique<DesktopServer>();
    QCOMPARE(transferText(TransferList::Name), QStringLiteral("Notes.ob2"));
    QCOMPARE(transferText(TransferList::Time), began);
    cable.closeWriteChannel();
    QTRY_COMPARE(cable.state(), QProcess::NotRunning);
}

void DesktopServerTest::noTimerOfAWindowTicksWhileNothingMoves() {
    layCable();
    QVERIFY(server->start(""));
    press(server->window(), Qt::Key_T, Qt::ControlModifier);
    press(server->window(), Qt::Key_D, Qt::ControlModifier);
    startSaving(3000);
    QTRY_VERIFY(!waitingForATime().isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);
    QTRY_COMPARE(transferText(TransferList::Result), QStringLiteral("complete"));
    server->controller().pbStartStop_Click();
    QTRY_COMPARE(waitingForATime(), QStringList());
    cable.closeWriteChannel();
    QTRY_COMPARE(cable.state(), QProcess::NotRunning);
}

void DesktopServerTest::theMonitorSavesWhatPassedOverTheLine() {
    layCable();
    QVERIFY(server->start(""));
    startSaving(100);
    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);
    QCOMPARE(organiser.exitCode(), 0);

    frmDebug* monitor = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        monitor = monitor != nullptr ? monitor : qobject_cast<frmDebug*>(window);
    }
    QVERIFY(monitor);
    const QString path = home->filePath(QStringLiteral("line.pcapng"));
    QVERIFY(monitor->saveCaptureTo(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const ReadCapture read = readPcapng(file.readAll().toStdString());
    QVERIFY(!read.damage);
    QVERIFY(!read.capture.ports.empty());
    QCOMPARE(QString::fromStdString(read.capture.ports.back().settings), QStringLiteral("9600,N,8,1"));
    bool contents = false;
    for (const CapturedPacket& packet : read.capture.packets) {
        contents = contents || (packet.direction == CaptureDirection::Received &&
                                packet.bytes.find(std::string(100, 'Q')) != std::string::npos);
    }
    QVERIFY(contents);
    cable.closeWriteChannel();
    QTRY_COMPARE(cable.state(), QProcess::NotRunning);
}

void DesktopServerTest::theReportHasWhatPassedOverTheLineWithoutItsContents() {
    layCable();
    QVERIFY(server->start(""));
    startSaving(100);
    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);

    const QString path = home->filePath(QStringLiteral("line.pcapng"));
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&path] {
        if (auto* about = qobject_cast<frmAbout*>(QApplication::activeModalWidget())) {
            about->saveCaptureTo(path);
            QTest::mouseClick(about->findChild<QPushButton*>("pbCopyDetails"), Qt::LeftButton);
            about->accept();
        }
    });
    user.start();
    QTest::mouseClick(server->window().findChild<QPushButton*>(QStringLiteral("pbAbout")), Qt::LeftButton);

    const QString report = QApplication::clipboard()->text();
    QVERIFY(report.startsWith(QStringLiteral("Velmora 0.")));
    QVERIFY(report.contains(QStringLiteral("\nServer: state 5 Waiting for link\n")));
    QVERIFY(report.contains(QStringLiteral("\nCapture: ~/line.pcapng\n")));
    QVERIFY(report.contains(QStringLiteral("[Settings] Port=40\n")));
    QVERIFY(report.contains(QStringLiteral("PLP-->FTRAN")));
    QVERIFY(report.contains(QStringLiteral("xxxxxxxx")));
    QVERIFY(!report.contains(QStringLiteral("QQ")));
    QVERIFY(!report.contains(home->path()));

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Capture capture = readPcapng(file.readAll().toStdString()).capture;
    QVERIFY(capture.masked);
    QVERIFY(!capture.packets.empty());
    for (const CapturedPacket& packet : capture.packets) {
        QVERIFY(packet.bytes.find("QQ") == std::string::npos);
    }
    cable.closeWriteChannel();
    QTRY_COMPARE(cable.state(), QProcess::NotRunning);
}

void DesktopServerTest::cablePulledAmidAFileLosesItWhateverTheUserAnswers_data() {
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("goes on") << QMessageBox::No;
    QTest::newRow("stops") << QMessageBox::Yes;
}

void DesktopServerTest::cablePulledAmidAFileLosesItWhateverTheUserAnswers() {
    QFETCH(QMessageBox::StandardButton, answer);
    layCable();
    QVERIFY(server->start(""));
    startSaving(60'000, {QStringLiteral("--delay"), QStringLiteral("5")});
    QTRY_COMPARE(label("tlDisplay_1")->text(), QStringLiteral("Downloading file"));
    // The question runs an event loop of its own, inside which it is answered.
    int questions = 0;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++questions;
            QTest::mouseClick(box->button(answer), Qt::LeftButton);
        }
    });
    user.start(1);
    cable.kill();

    QTRY_COMPARE(server->controller().state(), int{Offline});
    // None where the link itself meets the end of the line, at a read.
    QVERIFY(questions <= 1);
    QCOMPARE(label("tlDisplay_1")->text().trimmed(), QStringLiteral("Server Offline"));
    QVERIFY(label("tlWarning")->isVisible());
    const QString reason = label("tlBottomText_2")->text();
    const QString more = label("tlBottomText_3")->text();
    if (reason.startsWith(QStringLiteral("Send error"))) {  // it met the end at a write
        QVERIFY(!more.isEmpty());
    } else {
        QVERIFY2(reason.startsWith(QStringLiteral("COM40: ")), qPrintable(reason));
        QVERIFY2(more.contains(QStringLiteral("The transfer is lost.")), qPrintable(more));
    }

    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);
    layCable();
    QTRY_COMPARE(server->controller().state(), int{WaitLink});
    startSaving(3000);
    QTRY_COMPARE_WITH_TIMEOUT(organiser.state(), QProcess::NotRunning, 30'000);
    QCOMPARE(organiser.exitCode(), 0);
    cable.closeWriteChannel();
    QTRY_COMPARE(cable.state(), QProcess::NotRunning);
}

void DesktopServerTest::debugSwitchIsShownForTheWholeCommandLineOnly_data() {
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<bool>("shown");
    QTest::newRow("small") << "-debug" << true;
    QTest::newRow("capitals") << "-DEBUG" << true;
    QTest::newRow("more") << "-debug x" << false;
    QTest::newRow("two hyphens") << "--debug" << false;
}

void DesktopServerTest::debugSwitchIsShownForTheWholeCommandLineOnly() {
    QFETCH(QString, commandLine);
    QFETCH(bool, shown);
    QVERIFY(server->start(commandLine.toStdString()));
    QCOMPARE(label("lblDebug")->isVisible(), shown);
}

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::DesktopServerTest)
#include "desktop_server_test.moc"
