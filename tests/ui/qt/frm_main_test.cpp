// The main window: what it shows, and what the user's actions do.
#include "ui/qt/frm_main.h"

#include <QAccessible>
#include <QDir>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QStyle>
#include <QTest>
#include <QWindow>

#include "server/caption.h"
#include "support/window_rig.h"
#include "ui/qt/translation.h"

namespace velmora {
namespace {

using test::WindowRig;
using namespace std::chrono_literals;

class FrmMainTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        rig = std::make_unique<WindowRig>();
        rig->window.show();
        QTRY_VERIFY(rig->window.windowHandle()->isExposed());
        rig->controller.setState(Offline);
    }
    void cleanup() { rig.reset(); }

    void everyControlIsThereUnderItsName();
    void displayLinesHoldSixteenCharacters();
    void longLineScrolls();
    void lettersOfWindows1252AreShown();
    void everyStateIsShown_data();
    void everyStateIsShown();
    void countersAreKeptInTheirLabels();
    void headingsComeFromTheCatalogue();
    void threeCentredMessages();
    void warningIsLeftAlignedAndTellsMoreThanAColour();
    void longWarningIsReadWhole();
    void warningBeforeTheWindowIsShownIsLaidOutAlike();
    void clearedMessagesAreHidden();
    void welcomeComesFirstAndOfflineAfterAStop();
    void failedLinkStopsTheServerWithTheNextPoll();
    void adviceGoesWithTheMessages();
    void adviceStandsCloseToTheWarning();
    void noPathMakesTheWindowWide_data();
    void noPathMakesTheWindowWide();
    void theWarningSignIsSharpAtEachScale();
    void screenReadersAreToldOfAWindowAndOfEachWarning();
    void screenReadersAreToldOfEachState();
    void whatScreenReadersSpeakIsInTheUsersLanguage();
    void wordsSaidOneAfterTheOtherAllStayForAWhile();
    void theDebugSwitchStandsOnTheLineOfTheVersion();
    void startAndStopByClickAndKey();
    void setupIsClosedToTheUserWhileTheServerRuns();
    void noPortLeavesOnlySetup();
    void folderButtonAsksForTheFolder();
    void transfersAreShownByTheButtonAndByItsKeys();
    void aboutIsShownByItsButton();
    void theFolderIsShownAndOpened();
    void aLongFolderMakesNoWideWindow();
    void theVersionHasTheWholeOneAsItsTip();
    void hideButtonMinimises();
    void hideButtonHidesWhereSomethingBringsTheWindowBack();
    void captionCarriesTheStateWhileMinimised();
    void captionNamesTheProfile();
    void shutDownButtonEndsTheProgram();
    void requestedShutdownEndsTheProgramAfterHalfASecond();
    void portThatFailsStopsTheServerUntilStartIsPressedAgain();
    void eachButtonIsTakenAndGivenByItsOwnName();
    void hiddenLinesAreNoMessage();
    void debugSwitchAppearsAndWorksByMouseAndKey();
    void theMonitorIsSwitchedByItsKeysWithoutTheDebugSwitch();
    void debugSwitchShowsThatItHasTheFocus();
    void captionsOfOtherLanguagesMayHaveNoMnemonic();
    void windowThatBelongsToNoProgramCloses();
    void popupRaisesAMinimisedWindow();
    void autoHideMinimises();
    void windowHiddenBeforeItIsShownAppearsMinimised();
    void theRoomOfALargerWindowGoesToTheDisplay();
    void aLargerWindowBreaksItsMessagesAnew();
    void aWindowThatGrewForALongMessageGoesBack();
    void resizingTheWindowFocusesStartStop();
    void everyControlIsNamedAndInTheKeyboardsOrder();
    void mnemonicsAreUnique();

  private:
    template <typename Widget>
    Widget* find(const char* name) const {
        auto* found = rig->window.findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("%s is missing", name);
        }
        return found;
    }
    QLabel* label(const char* name) const { return find<QLabel>(name); }
    QPushButton* button(const char* name) const { return find<QPushButton>(name); }
    void click(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    QString line1() const { return label("tlDisplay_1")->text(); }
    QString line2() const { return label("tlDisplay_2")->text(); }

    std::unique_ptr<WindowRig> rig;
};

void FrmMainTest::everyControlIsThereUnderItsName() {
    for (const char* name :
         {"tlDisplay_1", "tlDisplay_2", "tlStatLabel_1", "tlStatLabel_2", "tlStatLabel_3", "tlStatLabel_4",
          "tlBytesRecv", "tlBytesSent", "tlFilesRecv", "tlFilesSent", "tlWarning", "tlBottomText_1",
          "tlBottomText_2", "tlBottomText_3", "tlProgVers", "imgProgName", "imgBGround", "lblDebug"}) {
        QVERIFY2(rig->window.findChild<QLabel*>(QLatin1String(name)) != nullptr, name);
    }
    for (const char* name : {"pbStartStop", "pbSetup", "pbFolder", "pbHide", "pbShutDown", "pbTransfers",
                             "pbAbout", "pbOpenFolder"}) {
        QVERIFY2(rig->window.findChild<QPushButton*>(QLatin1String(name)) != nullptr, name);
    }
}

void FrmMainTest::displayLinesHoldSixteenCharacters() {
    rig->controller.Display("Sending", "menu");
    QCOMPARE(line1(), QStringLiteral("    Sending     "));
    QCOMPARE(line2(), QStringLiteral("      menu      "));
    QCOMPARE(label("tlDisplay_1")->accessibleDescription(), QStringLiteral("Sending"));
}

void FrmMainTest::longLineScrolls() {
    rig->controller.Display("Server was stopped by Organiser!", "  Click Start!");
    QCOMPARE(line1(), QStringLiteral("Server was stopp"));
    rig->time.advance(2500ms);
    rig->time.advance(200ms);
    QCOMPARE(line1(), QStringLiteral("erver was stoppe"));
}

void FrmMainTest::lettersOfWindows1252AreShown() {
    rig->controller.Display(
        "Gr\xF6\xDF"
        "e \x80",
        "");
    QCOMPARE(line1().trimmed(), QString::fromUtf8("Größe €"));
}

void FrmMainTest::everyStateIsShown_data() {
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("button");
    QTest::newRow("NoPort") << int{NoPort} << "No port selected"
                            << "The server could"
                            << "Start";
    QTest::newRow("OnExit") << int{OnExit} << "Server was stopp"
                            << "Click Start!"
                            << "Start";
    QTest::newRow("WaitLink") << int{WaitLink} << "Waiting for link"
                              << ""
                              << "Stop";
    QTest::newRow("Connect") << int{Connect} << "Waiting for link"
                             << "Connecting..."
                             << "Stop";
    QTest::newRow("FileAccess") << int{FileAccess} << "Accessing file"
                                << ""
                                << "Stop";
    QTest::newRow("Upload") << int{Upload} << "Uploading file"
                            << ""
                            << "Stop";
    QTest::newRow("Downld") << int{Downld} << "Downloading file"
                            << ""
                            << "Stop";
    QTest::newRow("SendDir") << int{SendDir} << "Sending"
                             << "directory"
                             << "Stop";
    QTest::newRow("SendMenu") << int{SendMenu} << "Sending"
                              << "menu"
                              << "Stop";
    QTest::newRow("ServiceBusy") << int{ServiceBusy} << "Sending code"
                                 << ""
                                 << "Stop";
    QTest::newRow("Error") << int{Error} << "Waiting for link"
                           << "Waiting for link"
                           << "Stop";
}

void FrmMainTest::everyStateIsShown() {
    QFETCH(int, state);
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, button);
    rig->reach(state);
    QCOMPARE(rig->controller.state(), state);
    QCOMPARE(line1().trimmed(), first);
    QCOMPARE(line2().trimmed(), second);
    QCOMPARE(this->button("pbStartStop")->accessibleName(), button);
    QCOMPARE(this->button("pbSetup")->isEnabled(), state < WaitLink);
    QCOMPARE(this->button("pbStartStop")->isEnabled(), state != NoPort);
}

void FrmMainTest::countersAreKeptInTheirLabels() {
    rig->controller.SetStats(1, 1234);
    rig->controller.SetStats(2, 99);
    rig->controller.SetStats(3, 2);
    rig->controller.SetStats(4, 1);
    QCOMPARE(label("tlBytesRecv")->text(), QStringLiteral("1,234"));
    QCOMPARE(label("tlBytesSent")->text(), QStringLiteral("99"));
    QCOMPARE(label("tlFilesRecv")->text(), QStringLiteral("2"));
    QCOMPARE(label("tlFilesSent")->text(), QStringLiteral("1"));
    QCOMPARE(label("tlBytesRecv")->accessibleName(), QStringLiteral("Bytes Received: 1,234"));
    label("tlBytesRecv")->setText(QStringLiteral("999,000"));
    rig->controller.SetStats(1, 2000);
    QCOMPARE(label("tlBytesRecv")->text(), QStringLiteral("1.00Mb"));
}

void FrmMainTest::headingsComeFromTheCatalogue() {
    rig->strings.Files = "Dateien";
    rig->strings.Sent = "Gesendet";
    rig->strings.Error = "Fehler";
    rig->controller.showLabelTexts();
    QCOMPARE(label("tlStatLabel_1")->text(), QStringLiteral("Dateien"));
    QCOMPARE(label("tlStatLabel_4")->text(), QStringLiteral("Gesendet"));
    QCOMPARE(label("tlWarning")->text(), QStringLiteral("Fehler"));
    QVERIFY(label("tlStatLabel_1")->isVisible());
}

void FrmMainTest::threeCentredMessages() {
    rig->controller.ShowText("one", "two", "three");
    for (const char* name : {"tlBottomText_1", "tlBottomText_2", "tlBottomText_3"}) {
        QVERIFY(label(name)->isVisible());
        QVERIFY(label(name)->alignment().testFlag(Qt::AlignHCenter));
    }
    QVERIFY(!label("tlWarning")->isVisible());
    const int oneLine = label("tlBottomText_2")->height();
    rig->controller.ShowText("one", "two", "");
    QVERIFY(label("tlBottomText_2")->height() > oneLine);
}

void FrmMainTest::warningIsLeftAlignedAndTellsMoreThanAColour() {
    rig->controller.ShowWarning("Port COM5 is not accessible!", "again");
    QVERIFY(label("tlWarning")->isVisible());
    QCOMPARE(label("tlWarning")->text(), QStringLiteral("Error"));
    QVERIFY(!label("tlBottomText_1")->isVisible());
    QVERIFY(label("tlBottomText_2")->alignment().testFlag(Qt::AlignLeft));
    QVERIFY(label("tlBottomText_3")->alignment().testFlag(Qt::AlignLeft));
    QCOMPARE(label("tlBottomText_2")->text(), QStringLiteral("Port COM5 is not accessible!"));
    QCOMPARE(label("tlBottomText_2")->accessibleName(), QStringLiteral("Port COM5 is not accessible!"));
}

void FrmMainTest::longWarningIsReadWhole() {
    std::string words;
    for (int i = 0; i < 40; ++i) {
        words += "several words ";
    }
    rig->controller.ShowWarning(words, "");
    QTRY_VERIFY(label("tlBottomText_2")->height() >=
                label("tlBottomText_2")->heightForWidth(label("tlBottomText_2")->width()));
    QVERIFY(rig->window.rect().contains(
        label("tlBottomText_2")->mapTo(&rig->window, QPoint(0, label("tlBottomText_2")->height()))));
}

void FrmMainTest::warningBeforeTheWindowIsShownIsLaidOutAlike() {
    MessageLines messages;
    messages.ShowWarning(
        "No port selected! Plug the adapter in, and tell the program by Setup which one it is.", "");
    frmMain early;
    early.showMessages(messages);
    early.show();
    rig->window.showMessages(messages);
    QCOMPARE(early.findChild<QLabel*>(QStringLiteral("tlBottomText_2"))->height(),
             label("tlBottomText_2")->height());
}

void FrmMainTest::welcomeComesFirstAndOfflineAfterAStop() {
    QCOMPARE(line1(), QStringLiteral("Please set PROTO"));
    QCOMPARE(line2(), QStringLiteral("and click Start!"));
    rig->reach(WaitLink);
    rig->controller.setState(Offline);
    QCOMPARE(line1().trimmed(), QStringLiteral("Server Offline"));
}

void FrmMainTest::failedLinkStopsTheServerWithTheNextPoll() {
    rig->reach(LinkFailed);
    QVERIFY(!button("pbSetup")->isEnabled());
    rig->time.advance(20ms);
    QCOMPARE(rig->controller.state(), int{Offline});
    QVERIFY(button("pbSetup")->isEnabled());
    QCOMPARE(button("pbStartStop")->accessibleName(), QStringLiteral("Start"));
}

void FrmMainTest::clearedMessagesAreHidden() {
    rig->controller.ShowWarning("a", "b");
    rig->controller.ShowClear();
    for (const char* name :
         {"tlWarning", "tlBottomText_1", "tlBottomText_2", "tlBottomText_3", "lblAdvice"}) {
        QVERIFY2(!label(name)->isVisible(), name);
    }
}

void FrmMainTest::adviceGoesWithTheMessages() {
    rig->controller.ShowWarning("Port COM5 is not accessible!", "");
    rig->window.showAdvice("Plug the adapter in.");
    QVERIFY(label("lblAdvice")->isVisible());
    QCOMPARE(label("lblAdvice")->text(), QStringLiteral("Plug the adapter in."));
    rig->controller.ShowClear();
    QVERIFY(!label("lblAdvice")->isVisible());
}

void FrmMainTest::adviceStandsCloseToTheWarning() {
    rig->controller.ShowWarning("Port COM5 is not accessible!", "");
    rig->window.showAdvice("Plug the adapter in.");
    QCoreApplication::processEvents();
    const QLabel* warning = label("tlBottomText_2");
    QVERIFY(label("lblAdvice")->y() <= warning->y() + warning->fontMetrics().lineSpacing());
    // Without advice the line has the room of two again.
    rig->controller.ShowWarning("Port COM5 is not accessible!", "");
    QVERIFY(warning->height() >= 2 * warning->fontMetrics().lineSpacing());
}

void FrmMainTest::noPathMakesTheWindowWide_data() {
    QTest::addColumn<bool>("asAdvice");
    QTest::newRow("warning") << false;
    QTest::newRow("advice") << true;
}

void FrmMainTest::noPathMakesTheWindowWide() {
    QFETCH(bool, asAdvice);
    const int width = rig->window.width();
    const std::string path = "/home/" + std::string(170, 'x') + " is not there any more.";
    rig->controller.ShowWarning(asAdvice ? "Port COM5 is not accessible!" : path, "");
    rig->window.showAdvice(asAdvice ? path : "");
    QCoreApplication::processEvents();
    QCOMPARE(rig->window.width(), width);
    const QLabel* shown = label(asAdvice ? "lblAdvice" : "tlBottomText_2");
    QVERIFY2(shown->text().startsWith(QStringLiteral("/home/x")) && shown->text().contains(QChar(0x2026)) &&
                 shown->text().endsWith(QStringLiteral("x is not there any more.")),
             qPrintable(shown->text()));
    QCOMPARE(shown->toolTip(), QString::fromStdString(path));
    QCOMPARE(shown->accessibleName(), QString::fromStdString(path));
}

/// Counts how often a widget begins to show.
class Shows : public QObject {
  public:
    explicit Shows(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }

    int count = 0;
};

void FrmMainTest::screenReadersAreToldOfAWindowAndOfEachWarning() {
    QCOMPARE(QAccessible::queryAccessibleInterface(&rig->window)->role(), QAccessible::Window);
    QWidget* area = label("tlBottomText_2")->parentWidget();
    QCOMPARE(QAccessible::queryAccessibleInterface(area)->role(), QAccessible::Notification);
    QVERIFY(!area->isVisible());
    const Shows shows(*area);
    rig->controller.ShowWarning("Port COM5 is not accessible!", "");
    QCOMPARE(shows.count, 1);
    QCoreApplication::processEvents();
    rig->controller.ShowWarning("Port COM6 is not accessible!", "");
    QCOMPARE(shows.count, 2);
    // What is added to it is read with it: a reader asks when all of it stands.
    rig->window.showAdvice("Plug in the adapter.");
    QCOMPARE(shows.count, 2);
    QCOMPARE(area->accessibleName(),
             QStringLiteral("Error Port COM6 is not accessible! Plug in the adapter."));
    QCoreApplication::processEvents();
    rig->window.showAdvice("Plug in the adapter.");
    QCOMPARE(shows.count, 3);
    rig->controller.ShowClear();
    QCOMPARE(shows.count, 3);
    QVERIFY(!area->isVisible());
}

/// What a widget's announcements say, each as it begins to show.
class Announcements : public QObject {
  public:
    explicit Announcements(QWidget& window) {
        for (QWidget* area : window.findChildren<QWidget*>(QStringLiteral("announcement"))) {
            area->installEventFilter(this);
        }
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* area = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show) {
            said << area->accessibleName();
        }
        return false;
    }

    QStringList said;
};

void FrmMainTest::screenReadersAreToldOfEachState() {
    const Announcements announcements(rig->window);
    auto* area = rig->window.findChild<QWidget*>(QStringLiteral("announcement"));
    QCOMPARE(QAccessible::queryAccessibleInterface(area)->role(), QAccessible::Notification);
    rig->controller.setState(WaitLink);
    rig->controller.setState(WaitLink);
    rig->window.say("saved Journal.odb");
    rig->window.say("saved Journal.odb");
    rig->window.say("");
    QCOMPARE(announcements.said,
             QStringList({QStringLiteral("Waiting for link"), QStringLiteral("saved Journal.odb"),
                          QStringLiteral("saved Journal.odb")}));
}

void FrmMainTest::whatScreenReadersSpeakIsInTheUsersLanguage() {
    const Translation german("de");
    const Announcements announcements(rig->window);
    rig->window.say("Save of Journal.odb: complete");
    QCOMPARE(announcements.said, QStringList(QStringLiteral("Speichern von Journal.odb: vollständig")));
}

void FrmMainTest::wordsSaidOneAfterTheOtherAllStayForAWhile() {
    rig->window.say("saved Journal.odb");
    rig->window.say("Waiting for link");
    QStringList standing;
    for (const QWidget* area : rig->window.findChildren<QWidget*>(QStringLiteral("announcement"))) {
        standing << area->accessibleName();
    }
    QVERIFY(standing.contains(QStringLiteral("saved Journal.odb")));
    QVERIFY(standing.contains(QStringLiteral("Waiting for link")));
}

void FrmMainTest::theWarningSignIsSharpAtEachScale() {
    rig->controller.ShowWarning("a", "b");
    QCoreApplication::processEvents();
    QLabel* sign = label("imgWarning");
    QVERIFY(sign->isVisible());
    const QImage picture = sign->grab().toImage();
    QVERIFY(picture.pixelColor(picture.rect().center()) != picture.pixelColor(0, 0));
    const int scale = qRound(rig->window.devicePixelRatioF());
    QCOMPARE(picture.width(), scale * sign->width());
    if (scale > 1) {
        // It is more than a small one with each dot drawn several times.
        const QImage small = picture.scaled(sign->size());
        QVERIFY(small.scaled(picture.size()) != picture);
    }
}

void FrmMainTest::theDebugSwitchStandsOnTheLineOfTheVersion() {
    rig->window.setVersion("beta3", "build 1");
    rig->controller.setDebugMode(true);
    QCoreApplication::processEvents();
    const auto bottomOfText = [](const QLabel* shown) {
        return shown->geometry().bottom() - shown->margin();
    };
    QCOMPARE(bottomOfText(label("lblDebug")), bottomOfText(label("tlProgVers")));
}

void FrmMainTest::startAndStopByClickAndKey() {
    click("pbStartStop");
    QCOMPARE(rig->controller.state(), int{WaitLink});
    QCOMPARE(button("pbStartStop")->text(), QStringLiteral("&Stop"));
    button("pbStartStop")->setFocus();
    QTest::keyClick(button("pbStartStop"), Qt::Key_Return);
    QCOMPARE(rig->controller.state(), int{Offline});
    QCOMPARE(button("pbStartStop")->text(), QStringLiteral("&Start"));
    QTest::keyClick(button("pbStartStop"), Qt::Key_Space);
    QCOMPARE(rig->controller.state(), int{WaitLink});
}

void FrmMainTest::setupIsClosedToTheUserWhileTheServerRuns() {
    click("pbSetup");
    QCOMPARE(rig->setups, 1);
    click("pbStartStop");
    QVERIFY(!button("pbSetup")->isEnabled());
    click("pbSetup");
    QCOMPARE(rig->setups, 1);
}

void FrmMainTest::noPortLeavesOnlySetup() {
    rig->window.activateWindow();
    rig->controller.setState(NoPort);
    QVERIFY(!button("pbStartStop")->isEnabled());
    QVERIFY(button("pbSetup")->isEnabled());
    QCOMPARE(rig->window.focusWidget(), button("pbSetup"));
}

void FrmMainTest::folderButtonAsksForTheFolder() {
    click("pbFolder");
    QCOMPARE(rig->folders, 1);
}

void FrmMainTest::transfersAreShownByTheButtonAndByItsKeys() {
    click("pbTransfers");
    QCOMPARE(rig->transferWindows, 1);
    QTest::keyClick(button("pbStartStop"), Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(rig->transferWindows, 2);
}

void FrmMainTest::eachButtonIsTakenAndGivenByItsOwnName() {
    const std::initializer_list<std::pair<MainButton, const char*>> buttons = {
        {MainButton::StartStop, "pbStartStop"},
        {MainButton::Setup, "pbSetup"},
        {MainButton::Folder, "pbFolder"},
        {MainButton::Hide, "pbHide"},
        {MainButton::ShutDown, "pbShutDown"}};
    for (const auto& [which, name] : buttons) {
        rig->window.setButtonEnabled(which, false);
        QVERIFY2(!button(name)->isEnabled(), name);
        rig->window.setButtonEnabled(which, true);
        QVERIFY2(button(name)->isEnabled(), name);
    }
}

void FrmMainTest::hiddenLinesAreNoMessage() {
    MessageLines messages;
    messages.lines[0].text = "of the time before";
    messages.lines[1].visible = true;
    rig->window.showMessages(messages);
    QVERIFY(!label("tlBottomText_2")->parentWidget()->isVisible());
    messages.lines[1].text = "Waiting for link";
    rig->window.showMessages(messages);
    QVERIFY(label("tlBottomText_2")->parentWidget()->isVisible());
}

void FrmMainTest::aboutIsShownByItsButton() {
    click("pbAbout");
    QCOMPARE(rig->abouts, 1);
}

void FrmMainTest::theFolderIsShownAndOpened() {
    rig->window.showFolder("/home/anna/psion");
    const QString folder = QDir::toNativeSeparators(QStringLiteral("/home/anna/psion"));
    QCOMPARE(label("lblFolder")->text(), folder);
    QCOMPARE(label("lblFolder")->accessibleDescription(), folder);
    click("pbOpenFolder");
    QCOMPARE(rig->openedFolders, 1);
}

void FrmMainTest::aLongFolderMakesNoWideWindow() {
    rig->window.showFolder("/psion");
    const int width = rig->window.width();
    const QString folder =
        QDir::toNativeSeparators(QStringLiteral("/home/")) + QString(170, QLatin1Char('x'));
    rig->window.showFolder(folder.toStdString());
    QCoreApplication::processEvents();
    QCOMPARE(rig->window.width(), width);
    const QString shown = label("lblFolder")->text();
    QVERIFY2(shown.startsWith(folder.left(6)) && shown.contains(QChar(0x2026)), qPrintable(shown));
    QCOMPARE(label("lblFolder")->toolTip(), folder);
    QFont large = label("lblFolder")->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    label("lblFolder")->setFont(large);
    QVERIFY(label("lblFolder")->text().size() < shown.size());
}

void FrmMainTest::theVersionHasTheWholeOneAsItsTip() {
    rig->window.setVersion("beta3", "build 1");
    rig->window.setFullVersion("Velmora 0.1.0 (abcdef)");
    QCOMPARE(label("tlProgVers")->text(), QStringLiteral("beta3 build 1"));
    QCOMPARE(label("tlProgVers")->toolTip(), QStringLiteral("Velmora 0.1.0 (abcdef)"));
}

void FrmMainTest::hideButtonMinimises() {
    click("pbHide");
    QVERIFY(rig->window.isMinimized());
}

void FrmMainTest::hideButtonHidesWhereSomethingBringsTheWindowBack() {
    bool there = true;
    rig->window.hideInsteadOfMinimising([&there] { return there; });
    const auto tip = [this] {
        QHelpEvent asked(QEvent::ToolTip, {}, {});
        QCoreApplication::sendEvent(button("pbHide"), &asked);
        return button("pbHide")->toolTip();
    };
    QCOMPARE(tip(), QStringLiteral("Put the window into the tray; the server goes on"));
    click("pbHide");
    QVERIFY(!rig->window.isVisible());
    QVERIFY(!rig->window.isMinimized());
    rig->window.restore();
    QVERIFY(rig->window.isVisible());
    there = false;
    QCOMPARE(tip(), QStringLiteral("Minimise the window; the server goes on"));
    click("pbHide");
    QVERIFY(rig->window.isVisible());
    QVERIFY(rig->window.isMinimized());
}

void FrmMainTest::captionCarriesTheStateWhileMinimised() {
    click("pbHide");
    rig->reach(SendDir);
    QCOMPARE(rig->window.windowTitle(), QStringLiteral("Velmora - Sending directory"));
    rig->window.restore();
    QVERIFY(!rig->window.isMinimized());
    QCOMPARE(rig->window.windowTitle(), QStringLiteral("Velmora"));
    QCOMPARE(rig->window.focusWidget(), button("pbStartStop"));
}

void FrmMainTest::captionNamesTheProfile() {
    rig->window.setProfile("attic");
    QCOMPARE(rig->window.windowTitle(), QStringLiteral("Velmora (attic)"));
    click("pbHide");
    rig->reach(SendDir);
    QCOMPARE(rig->window.windowTitle(), QStringLiteral("Velmora - Sending directory (attic)"));
    rig->window.restore();
    QCOMPARE(rig->window.windowTitle(), QStringLiteral("Velmora (attic)"));
}

void FrmMainTest::shutDownButtonEndsTheProgram() {
    click("pbShutDown");
    QVERIFY(rig->closed);
    QCOMPARE(rig->lastReason, CloseReason::Program);
    QVERIFY(!rig->store.entries.empty());
}

void FrmMainTest::requestedShutdownEndsTheProgramAfterHalfASecond() {
    rig->reach(WaitLink);
    rig->controller.setState(Shutdown);
    QVERIFY(!rig->closed);
    rig->time.advance(500ms);
    QVERIFY(rig->closed);
    QCOMPARE(rig->lastReason, CloseReason::Program);
}

void FrmMainTest::portThatFailsStopsTheServerUntilStartIsPressedAgain() {
    click("pbStartStop");
    rig->port.countError = CommError(kCommFailed, "device gone", "InBufferCount");
    rig->time.advance(20ms);
    QCOMPARE(rig->controller.state(), int{Offline});
    QVERIFY(label("tlWarning")->isVisible());
    QCOMPARE(label("tlBottomText_2")->text(), QStringLiteral("COM1: device gone"));
    QVERIFY(button("pbStartStop")->isEnabled());
    rig->port.countError.reset();
    click("pbStartStop");
    QCOMPARE(rig->controller.state(), int{WaitLink});
    QVERIFY(!label("tlWarning")->isVisible());
}

void FrmMainTest::debugSwitchAppearsAndWorksByMouseAndKey() {
    QVERIFY(!label("lblDebug")->isVisible());
    rig->controller.setDebugMode(true);
    QVERIFY(label("lblDebug")->isVisible());
    QTest::mouseClick(label("lblDebug"), Qt::LeftButton);
    QCOMPARE(rig->debugSwitches, 0);
    QTest::mouseDClick(label("lblDebug"), Qt::LeftButton);
    QCOMPARE(rig->debugSwitches, 1);
    QTest::mouseDClick(label("lblDebug"), Qt::RightButton);
    QCOMPARE(rig->debugSwitches, 1);
    label("lblDebug")->setFocus();
    QTest::keyClick(label("lblDebug"), Qt::Key_Space);
    QCOMPARE(rig->debugSwitches, 2);
    QTest::keyClick(label("lblDebug"), Qt::Key_Return);
    QCOMPARE(rig->debugSwitches, 3);
    QTest::keyClick(label("lblDebug"), Qt::Key_Enter);
    QCOMPARE(rig->debugSwitches, 4);
    QTest::keyClick(label("lblDebug"), Qt::Key_D);
    QCOMPARE(rig->debugSwitches, 4);
}

void FrmMainTest::theMonitorIsSwitchedByItsKeysWithoutTheDebugSwitch() {
    QVERIFY(!label("lblDebug")->isVisible());
    QTest::keyClick(button("pbStartStop"), Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(rig->debugSwitches, 1);
}

void FrmMainTest::debugSwitchShowsThatItHasTheFocus() {
    rig->controller.setDebugMode(true);
    rig->window.activateWindow();
    rig->window.setAttribute(Qt::WA_KeyboardFocusChange);  // as the first Tab does
    button("pbSetup")->setFocus();
    const QImage without = label("lblDebug")->grab().toImage();
    label("lblDebug")->setFocus();
    QTRY_VERIFY(label("lblDebug")->hasFocus());
    QVERIFY(label("lblDebug")->grab().toImage() != without);
}

void FrmMainTest::captionsOfOtherLanguagesMayHaveNoMnemonic() {
    rig->window.setButtonCaption(MainButton::Setup, "1 & 2");
    QCOMPARE(button("pbSetup")->text(), QStringLiteral("1 && 2"));
}

void FrmMainTest::windowThatBelongsToNoProgramCloses() {
    frmMain window;
    window.show();
    window.close();
    QVERIFY(!window.isVisible());
}

void FrmMainTest::popupRaisesAMinimisedWindow() {
    rig->options.AutoPopup = true;
    rig->reach(WaitLink);
    click("pbHide");
    rig->controller.setState(Downld);
    QVERIFY(!rig->window.isMinimized());
}

void FrmMainTest::autoHideMinimises() {
    rig->options.AutoHide = true;
    click("pbStartStop");
    QVERIFY(rig->window.isMinimized());
    QCOMPARE(rig->window.windowTitle(), QStringLiteral("Velmora - Waiting for link "));
}

void FrmMainTest::windowHiddenBeforeItIsShownAppearsMinimised() {
    frmMain window;
    window.minimise();
    QVERIFY(!window.isVisible());
    window.show();
    QVERIFY(window.isMinimised());
}

void FrmMainTest::theRoomOfALargerWindowGoesToTheDisplay() {
    const QSize least = rig->window.size();
    const QSize display = label("imgBGround")->size();
    const int letters = label("tlDisplay_1")->font().pointSize();
    const int message = label("tlBottomText_1")->parentWidget()->height();
    rig->window.resize(least * 2);
    QCoreApplication::processEvents();
    QCOMPARE(label("imgBGround")->size(), display + least);
    QCOMPARE(label("tlBottomText_1")->parentWidget()->height(), message);
    QVERIFY(label("tlDisplay_1")->font().pointSize() > letters);
    rig->controller.setState(WaitLink);
    QCOMPARE(line1(), QStringLiteral("Waiting for link"));
    QCOMPARE(rig->window.size(), least * 2);
    // No smaller than it was.
    rig->window.resize(10, 10);
    QCoreApplication::processEvents();
    QCOMPARE(rig->window.size(), least);
    QCOMPARE(label("tlDisplay_1")->font().pointSize(), letters);
}

void FrmMainTest::aLargerWindowBreaksItsMessagesAnew() {
    const std::string path = "/home/" + std::string(70, 'x');
    rig->controller.ShowWarning("Port COM5 is not accessible!", "");
    rig->window.showAdvice("The adapter was there before it was pulled out of the machine, as " + path);
    QCoreApplication::processEvents();
    const int narrow = label("lblAdvice")->height();
    QVERIFY(label("lblAdvice")->text().contains(QChar(0x2026)));
    rig->window.resize(rig->window.size() * 3);
    QCoreApplication::processEvents();
    QVERIFY(label("lblAdvice")->height() < narrow);
    QVERIFY(label("lblAdvice")->text().endsWith(QString(70, QLatin1Char('x'))));
    QCOMPARE(label("lblAdvice")->toolTip(), QString());
    QVERIFY(label("lblAdvice")->y() <=
            label("tlBottomText_2")->y() + label("tlBottomText_2")->fontMetrics().lineSpacing());
    rig->controller.ShowClear();
    rig->window.resize(rig->window.minimumSize());
    QCoreApplication::processEvents();
    QVERIFY(!label("lblAdvice")->isVisible());
}

void FrmMainTest::aWindowThatGrewForALongMessageGoesBack() {
    const QSize least = rig->window.size();
    std::string words;
    for (int i = 0; i < 40; ++i) {
        words += "several words ";
    }
    rig->controller.ShowWarning(words, "");
    QTRY_VERIFY(rig->window.height() > least.height());
    QCOMPARE(rig->window.width(), least.width());
    rig->controller.ShowClear();
    QTRY_COMPARE(rig->window.size(), least);
}

void FrmMainTest::resizingTheWindowFocusesStartStop() {
    button("pbHide")->setFocus();
    rig->window.resize(rig->window.size() * 2);
    QVERIFY(button("pbStartStop")->hasFocus());
}

void FrmMainTest::everyControlIsNamedAndInTheKeyboardsOrder() {
    rig->controller.setDebugMode(true);
    rig->controller.ShowText("one", "two", "three");
    QSet<QWidget*> chain;
    QWidget* next = &rig->window;
    do {
        chain.insert(next);
        next = next->nextInFocusChain();
    } while (next != &rig->window);

    int looked = 0;
    for (QWidget* widget : rig->window.findChildren<QWidget*>()) {
        const bool control = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                             (qobject_cast<QLabel*>(widget) != nullptr && widget->isVisible());
        if (!control) {
            continue;
        }
        ++looked;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(face != nullptr && !face->text(QAccessible::Name).isEmpty(),
                 qPrintable(widget->objectName()));
        if (qobject_cast<QAbstractButton*>(widget) != nullptr || widget->objectName() == "lblDebug") {
            QVERIFY2((widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus,
                     qPrintable(widget->objectName()));
            QVERIFY2(chain.contains(widget), qPrintable(widget->objectName()));
        }
    }
    QVERIFY(looked >= 20);

    QStringList order;
    button("pbStartStop")->setFocus();
    for (int i = 0; i < 9; ++i) {
        order.append(rig->window.focusWidget()->objectName());
        QTest::keyClick(rig->window.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(order, QStringList({"pbStartStop", "pbSetup", "pbFolder", "pbHide", "pbShutDown", "pbTransfers",
                                 "pbAbout", "pbOpenFolder", "lblDebug"}));
    QCOMPARE(rig->window.focusWidget(), button("pbStartStop"));
}

void FrmMainTest::mnemonicsAreUnique() {
    QSet<QString> letters;
    for (const char* name :
         {"pbStartStop", "pbSetup", "pbFolder", "pbHide", "pbShutDown", "pbTransfers", "pbOpenFolder"}) {
        const QString text = button(name)->text();
        const qsizetype position = text.indexOf(QLatin1Char('&'));
        QVERIFY2(position >= 0, name);
        const QString letter = text.mid(position + 1, 1).toLower();
        QVERIFY2(!letters.contains(letter), name);
        letters.insert(letter);
    }
}

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::FrmMainTest)
#include "frm_main_test.moc"
