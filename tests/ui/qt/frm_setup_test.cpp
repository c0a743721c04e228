#include "ui/qt/frm_setup.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

#include "support/accessibility_walk.h"
#include "support/assistive_actions.h"
#include "support/fake_timers.h"
#include "support/scripted_port.h"
#include "ui/adapter_follower.h"

namespace velmora {

namespace {

const QColor kGreen(0, 128, 0);
const QColor kOrange(255, 128, 0);
const QColor kRed(255, 0, 0);
const QColor kDarkRed(192, 0, 0);

/// As WCAG 2.1 has it: 1 to 21.
double contrastOf(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace

class FrmSetupTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        port = test::ScriptedPort();
        options = ServerOptions();
        options.AutoSelectPort = false;
        transfer = TransferSettings();
        statuses.clear();
        devices.clear();
        probed.clear();
        beeps = 0;
        whileProbing = nullptr;
    }
    void cleanup() { dialog.reset(); }

    void fourBusyPortsLeadToTheFirstFreeOneAbove() {
        options.AutoSelectPort = true;
        for (const int busy : {1, 2, 3, 4, 5, 6}) {
            statuses[busy] = kStatusInUse;
        }
        statuses[7] = kStatusAvailable;
        open();
        QVERIFY(other()->isChecked());
        QCOMPARE(text()->text(), QString("7"));
        QCOMPARE(other()->toolTip(), QString("COM7 is available"));
        QCOMPARE(colourOf(5), kGreen);
        QCOMPARE(find<QLabel>("lblStatus")->text(), QString("COM7 is available"));
        QTRY_VERIFY(text()->hasFocus());
        isForEverybody();
    }
    void readyTextsAreOfferedWhereThereAreSome() {
        open();
        auto* texts = find<QComboBox>("cboTexts");
        dialog->offerTexts({});
        QVERIFY(!texts->isVisible());
        dialog->offerTexts({"Deutsch", "Nederlands"});
        QVERIFY(texts->isVisible());
        QCOMPARE(dialog->chosenTexts(), std::optional<int>());
        texts->setCurrentText("Nederlands");
        QCOMPARE(dialog->chosenTexts(), std::optional<int>(1));
    }
    void theListFollowsAdaptersAndKeepsTheSelection() {
        devices = {adapter(6, "/dev/ttyUSB1", "BBBB1234")};
        open();
        auto* list = find<QComboBox>("cboPresentPorts");
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(text()->text(), QString("6"));
        devices.insert(devices.begin(), adapter(5, "/dev/ttyUSB0", "AAAA1234"));
        dialog->refreshDevices();
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->currentIndex(), 1);
        QCOMPARE(text()->text(), QString("6"));
        devices.erase(devices.begin());
        dialog->refreshDevices();
        QCOMPARE(list->currentIndex(), 0);
        devices.clear();
        dialog->refreshDevices();
        QCOMPARE(list->currentIndex(), -1);
        QCOMPARE(text()->text(), QString("6"));
    }
    void aHintThatIsThereFromTheStartMakesTheDialogNoLargerThanItNeeds() {
        make();
        dialog->setDeviceHint("The system tells nothing of adapters: the list is looked up twice a second.");
        dialog->show();
        QTRY_VERIFY(ok()->isEnabled());
        QCOMPARE(dialog->height(), dialog->layout()->totalHeightForWidth(dialog->width()));
        QCOMPARE(dialog->width(), dialog->sizeHint().width());
    }
    void theCableIsCheckedAtTheChosenPortAndRate() {
        devices = {adapter(6, "/dev/ttyUSB1", "BBBB1234")};
        open();
        auto* check = find<QPushButton>("pbCheckCable");
        QVERIFY(!check->isVisible());
        QStringList checked;
        dialog->setCheckCable([&](int number, const std::string& mode) {
            checked.append(QString::number(number) + " " + QString::fromStdString(mode));
        });
        QTest::keyClick(find<QComboBox>("cboPresentPorts"), Qt::Key_Down);
        find<QRadioButton>("obBaud_1200")->click();
        QTest::mouseClick(check, Qt::LeftButton);
        QCOMPARE(checked, QStringList("6 1200,N,8,1"));
        isForEverybody();
        text()->clear();
        QTest::keyClick(text(), Qt::Key_0);
        QVERIFY(!check->isEnabled());
    }
    void aHintStandsBelowTheListUntilADeviceIsChosen() {
        devices = {adapter(6, "/dev/ttyUSB1", "BBBB1234")};
        open();
        auto* hint = find<QLabel>("lblDeviceHint");
        QVERIFY(!hint->isVisible());
        dialog->setDeviceHint("a hint");
        QCOMPARE(hint->text(), QString("a hint"));
        QVERIFY(hint->isVisible());
        QTest::keyClick(find<QComboBox>("cboPresentPorts"), Qt::Key_Down);
        QVERIFY(!hint->isVisible());
    }
    void aPlugIsInTheListHalfASecondLaterAndTheSelectionStays() {
        devices = {adapter(6, "/dev/ttyUSB1", "BBBB1234")};
        open();
        test::FakeTime time;
        AdapterFollower follower(time.makeTimer(), true, [this] { dialog->refreshDevices(); });
        auto* list = find<QComboBox>("cboPresentPorts");
        QTest::keyClick(list, Qt::Key_Down);
        devices.insert(devices.begin(), adapter(5, "/dev/ttyUSB0", "AAAA1234"));
        follower.adaptersChanged();
        QCOMPARE(list->count(), 1);
        time.advance(std::chrono::milliseconds(500));
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->currentIndex(), 1);
        QCOMPARE(text()->text(), QString("6"));
    }
    void okKeepsTheAdapterOfThePort() {
        devices = {adapter(5, "/dev/ttyUSB0", "AAAA1234"), device(6, "/dev/ttyUSB1")};
        open();
        auto* list = find<QComboBox>("cboPresentPorts");
        QTest::keyClick(list, Qt::Key_Down);
        ok()->click();
        QCOMPARE(port.number, std::int16_t{5});
        QCOMPARE(options.PortIdentity, std::string("0403:6001:AAAA1234"));
    }
    void aPortWithoutAnAdapterForgetsTheFormerOne() {
        options.PortIdentity = "0403:6001:AAAA1234";
        devices = {device(6, "/dev/ttyUSB1")};
        open();
        QTest::keyClick(find<QComboBox>("cboPresentPorts"), Qt::Key_Down);
        ok()->click();
        QCOMPARE(options.PortIdentity, std::string());
    }
    void aPortThatStaysKeepsItsAdapterWhileThatIsAway() {
        options.PortIdentity = "0403:6001:AAAA1234";
        open();
        ok()->click();
        QCOMPARE(options.PortIdentity, std::string("0403:6001:AAAA1234"));
    }
    void noFreePortWaitsForANumber() {
        options.AutoSelectPort = true;
        openProbing();
        QCOMPARE(probed.back(), 32);
        QVERIFY(other()->isChecked());
        QVERIFY(text()->text().isEmpty());
        QTRY_VERIFY(text()->hasFocus());
        QVERIFY(!ok()->isEnabled());
        QTest::keyClicks(text(), "9");
        QVERIFY(ok()->isEnabled());
        QTest::keyClick(text(), Qt::Key_Backspace);
        QVERIFY(!ok()->isEnabled());
        isForEverybody();
    }
    void statusIsMarked_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("free") << int(kStatusAvailable) << " is available" << kGreen;
        QTest::newRow("modem") << int(kStatusModem) << " is used (modem)" << kOrange;
        QTest::newRow("device") << int(kStatusDevice) << " is used (device)" << kOrange;
        QTest::newRow("held") << int(kStatusInUse) << " is in use" << kRed;
        QTest::newRow("missing") << int(kStatusNotAccessible) << " is not accessible" << kDarkRed;
        QTest::newRow("error") << int(kStatusError) << " reports error" << kRed;
    }
    void statusIsMarked() {
        QFETCH(int, status);
        QFETCH(QString, ending);
        QFETCH(QColor, colour);
        statuses[1] = status;
        open();
        QCOMPARE(button(1)->toolTip(), "COM1" + ending);
        QCOMPARE(colourOf(1), colour);
        QVERIFY(button(1)->font().bold());
        QCOMPARE(find<QLabel>("lblStatus")->text(), "COM1" + ending);
        QTRY_VERIFY(button(1)->hasFocus());
        isForEverybody();
    }
    void aMarkGetsAGroundOfItsOwnOnlyWhereItWouldVanish() {
        statuses[1] = kStatusModem;
        statuses[2] = kStatusAvailable;
        open();
        QVERIFY(!button(1)->autoFillBackground());
        QVERIFY(!button(2)->autoFillBackground());
        QPalette orange;
        orange.setColor(QPalette::Window, QColor(0xFF, 0x90, 0x20));
        orange.setColor(QPalette::WindowText, Qt::black);
        dialog->setPalette(orange);
        button(2)->click();
        QVERIFY(button(1)->autoFillBackground());
        QVERIFY(button(1)->palette().color(QPalette::Window).lightness() < 64);
    }
    void everyMarkIsReadableOnADarkDesktop_data() { statusIsMarked_data(); }
    void everyMarkIsReadableOnADarkDesktop() {
        QFETCH(int, status);
        statuses[1] = status;
        open();
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(0x2B, 0x2D, 0x30));
        dark.setColor(QPalette::WindowText, QColor(0xE6, 0xE6, 0xE6));
        dialog->setPalette(dark);
        button(2)->click();
        const double contrast = contrastOf(colourOf(1), button(1)->palette().color(QPalette::Window));
        QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
    }
    void checkSaysWhyAPortCannotBeUsed() {
        open();
        dialog->setFailureReason([] { return std::string("/dev/ttyUSB4 is no serial port."); });
        other()->click();
        statuses[9] = kStatusError;
        QTest::keyClicks(text(), "9");
        auto* hint = find<QLabel>("lblDeviceHint");
        QVERIFY(!hint->isVisible());
        find<QPushButton>("pbCheckPort")->click();
        QCOMPARE(find<QLabel>("lblStatus")->text(), QString("COM9 reports error"));
        QVERIFY(hint->isVisible());
        QCOMPARE(hint->text(), QString("/dev/ttyUSB4 is no serial port."));
        // Another number has another reason, or none.
        QTest::keyClick(text(), Qt::Key_1);
        QVERIFY(!hint->isVisible());
        statuses[91] = kStatusAvailable;
        find<QPushButton>("pbCheckPort")->click();
        QVERIFY(!hint->isVisible());
    }
    void choicesOfAssistiveToolsCount() {
        devices = {adapter(6, "/dev/ttyUSB1", "BBBB1234")};
        open();
        test::toggleAssisted(*find<QRadioButton>("obBaud_1200"));
        test::toggleAssisted(*find<QCheckBox>("cbAutoStart"));
        find<QComboBox>("cboFileType")->setCurrentIndex(2);
        find<QComboBox>("cboWksDialect")->setCurrentIndex(1);
        test::toggleAssisted(*other());
        QVERIFY(!ok()->isEnabled());
        find<QComboBox>("cboPresentPorts")->setCurrentIndex(0);
        QCOMPARE(text()->text(), QString("6"));
        test::setAssisted(*text(), "7");
        QVERIFY(ok()->isEnabled());
        ok()->click();
        QCOMPARE(port.number, std::int16_t(7));
        QCOMPARE(port.Settings(), std::string("1200,N,8,1"));
        QVERIFY(options.AutoStart);
        QCOMPARE(transfer.DataFileType, std::int32_t(2));
        QCOMPARE(transfer.sheets.wksDialect, WksDialect::Common);
    }
    void aDeviceMayBeChosenAgain() {
        devices = {adapter(6, "/dev/ttyUSB1", "BBBB1234")};
        open();
        auto* list = find<QComboBox>("cboPresentPorts");
        QTest::keyClick(list, Qt::Key_Down);
        text()->setFocus();
        QTest::keyClicks(text(), "1");
        QCOMPARE(text()->text(), QString("61"));
        list->activated(0);
        QCOMPARE(text()->text(), QString("6"));
    }
    void anUncheckedPortHasNoMark() {
        statuses[2] = kStatusNotChecked;
        open();
        QVERIFY(button(2)->toolTip().isEmpty());
        QVERIFY(!button(2)->autoFillBackground());
        QCOMPARE(colourOf(2), dialog->palette().color(QPalette::WindowText));
    }
    void typingClearsTheOtherPortsMark() {
        port.number = 9;
        statuses[9] = kStatusModem;
        open();
        QCOMPARE(other()->toolTip(), QString("COM9 is used (modem)"));
        QTest::keyClicks(text(), "1");
        QVERIFY(other()->toolTip().isEmpty());
        QCOMPARE(find<QLabel>("lblStatus")->text(), QString());
        QCOMPARE(colourOf(5), dialog->palette().color(QPalette::WindowText));
        QVERIFY(!other()->autoFillBackground());
        isForEverybody();
    }
    void cancelRestoresTheNumber() {
        port.number = 3;
        open();
        QVERIFY(port.number != 3);
        find<QComboBox>("cboFileType")->setCurrentIndex(2);
        find<QCheckBox>("cbAutoStart")->click();
        find<QRadioButton>("obBaud_1200")->click();
        find<QPushButton>("pbCancel")->click();
        QCOMPARE(port.number, std::int16_t(3));
        QCOMPARE(port.settings, std::string("9600,N,8,1"));
        QVERIFY(!options.AutoStart);
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
    }
    void escapeIsCancel() {
        port.number = 3;
        open();
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QCOMPARE(port.number, std::int16_t(3));
        QVERIFY(!dialog->isVisible());
    }
    void otherKeysAreSwallowedWithABeep() {
        port.number = 9;
        open();
        text()->clear();
        QTest::keyClicks(text(), "1a-+ b2");
        QCOMPARE(text()->text(), QString("12"));
        QCOMPARE(beeps, 5);
    }
    void keysThatLeaveTheNumberAreNoCharacters_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("stays");
        QTest::addColumn<int>("chosen");
        QTest::newRow("Tab") << Qt::Key_Tab << true << 9;
        QTest::newRow("Backtab") << Qt::Key_Backtab << true << 9;
        QTest::newRow("Return") << Qt::Key_Return << false << 12;
        QTest::newRow("Enter") << Qt::Key_Enter << false << 12;
        QTest::newRow("Escape") << Qt::Key_Escape << false << 9;
    }
    void keysThatLeaveTheNumberAreNoCharacters() {
        QFETCH(Qt::Key, key);
        QFETCH(bool, stays);
        QFETCH(int, chosen);
        port.number = 9;
        open();
        text()->clear();
        QTest::keyClicks(text(), "12");
        QTest::keyClick(text(), key);
        QCOMPARE(beeps, 0);
        QCOMPARE(text()->text(), QString("12"));
        QCOMPARE(dialog->isVisible(), stays);
        QCOMPARE(port.number, std::int16_t(chosen));
    }
    void otherButtonsOfTheMouseSelectNoPort() {
        open();
        QVERIFY(button(1)->isChecked());
        QTest::mousePress(text(), Qt::RightButton);
        QVERIFY(button(1)->isChecked());
    }
    void whatIsClosedBeforeItsFirstProbeProbesNothing() {
        make();
        dialog->show();
        dialog->reject();
        QCoreApplication::processEvents();
        QVERIFY(probed.empty());
        QVERIFY(!dialog->isVisible());
    }
    void setupThatIsShownAgainIsAsItWasLeft() {
        open();
        const std::size_t looks = probed.size();
        dialog->hide();
        dialog->show();
        QCoreApplication::processEvents();
        QCOMPARE(probed.size(), looks);
        QVERIFY(ok()->isEnabled());
    }
    void aRightThatIsGivenWhileSetupIsOpenTakesTheHintAway() {
        devices = {device(6, "/dev/ttyUSB1")};
        devices[0].mayOpen = false;
        open();
        auto* list = find<QComboBox>("cboPresentPorts");
        QTest::keyClick(list, Qt::Key_Down);
        QVERIFY(find<QLabel>("lblDeviceHint")->isVisible());
        devices[0].mayOpen = true;
        dialog->refreshDevices();
        QCOMPARE(list->currentIndex(), 0);
        QVERIFY(!find<QLabel>("lblDeviceHint")->isVisible());
    }
    void anAdapterThatComesIsNotChosenByItself() {
        devices = {device(6, "/dev/ttyUSB1")};
        open();
        devices = {device(7, "/dev/ttyUSB2")};
        dialog->refreshDevices();
        auto* list = find<QComboBox>("cboPresentPorts");
        QCOMPARE(list->itemText(0), QString("COM7  /dev/ttyUSB2"));
        QCOMPARE(list->currentIndex(), -1);
    }
    void aPressInTheNumberSelectsTheOtherPort() {
        open();
        QVERIFY(button(1)->isChecked());
        QVERIFY(!find<QPushButton>("pbCheckPort")->isEnabled());
        QTest::keyClicks(text(), "4");
        QVERIFY(text()->text().isEmpty());
        QTest::mouseClick(text(), Qt::RightButton);
        QVERIFY(button(1)->isChecked());
        QTest::mouseClick(text(), Qt::LeftButton);
        QVERIFY(other()->isChecked());
        QVERIFY(find<QPushButton>("pbCheckPort")->isEnabled());
        QVERIFY(!ok()->isEnabled());
        button(2)->click();
        QVERIFY(ok()->isEnabled());
    }
    void checkBeepsWithoutANumber() {
        open();
        other()->click();
        probed.clear();
        find<QPushButton>("pbCheckPort")->click();
        QCOMPARE(beeps, 1);
        QVERIFY(probed.empty());
    }
    void checkProbesTheNumber() {
        statuses[12] = kStatusDevice;
        open();
        other()->click();
        QTest::keyClicks(text(), "12");
        probed.clear();
        find<QPushButton>("pbCheckPort")->click();
        QCOMPARE(probed, std::vector<int>{12});
        QCOMPARE(other()->toolTip(), QString("COM12 is used (device)"));
        QCOMPARE(colourOf(5), kOrange);
        QCOMPARE(find<QLabel>("lblStatus")->text(), QString("COM12 is used (device)"));
        isForEverybody();
    }
    void aRateThatIsSetHasAButton() {
        port.settings = "19200,N,8,1";
        statuses[1] = kStatusAvailable;
        open();
        auto* rate = find<QRadioButton>("obBaud_other");
        QVERIFY(rate->isVisible() && rate->isChecked());
        QCOMPARE(rate->text(), QString("19200"));
        isForEverybody();
        find<QRadioButton>("obBaud_1200")->click();
        QVERIFY(!rate->isChecked());
        rate->click();
        button(1)->click();
        ok()->click();
        QCOMPARE(port.settings, std::string("19200,N,8,1"));
    }
    void theUsualRatesHaveNoOtherBesideThem() {
        port.settings = "9600,N,8,1";
        open();
        QVERIFY(!find<QRadioButton>("obBaud_other")->isVisible());
        isForEverybody();
    }
    void devicesHaveTheTipsThatTheyAreGiven() {
        statuses[1] = kStatusAvailable;
        for (const char* const device : {"/dev/ttyUSB0", "/dev/ttyUSB1"}) {
            devices.emplace_back().device = device;
        }
        open();
        dialog->setDeviceTip([](const std::string& device) {
            return device == "/dev/ttyUSB1" ? "It is slow." : std::string();
        });
        const auto tip = [this](int row) {
            return find<QComboBox>("cboPresentPorts")->itemData(row, Qt::ToolTipRole).toString();
        };
        QCOMPARE(tip(0), QString());
        QCOMPARE(tip(1), QString("It is slow."));
        devices.erase(devices.begin());
        find<QPushButton>("pbRefreshPorts")->click();
        QCOMPARE(tip(0), QString("It is slow."));
    }
    void okTakesEverythingOver() {
        options.AutoSelectPort = true;
        statuses[1] = kStatusAvailable;
        port.settings = "2400,N,8,1";
        transfer.DataFileType = 3;
        open();
        QVERIFY(find<QRadioButton>("obBaud_2400")->isChecked());
        QCOMPARE(find<QComboBox>("cboFileType")->currentText(), QString("CSV (semicolon)"));
        button(2)->click();
        find<QRadioButton>("obBaud_1200")->click();
        find<QCheckBox>("cbAutoStart")->click();
        QTest::keyClick(find<QComboBox>("cboFileType"), Qt::Key_Home);
        auto* dialect = find<QComboBox>("cboWksDialect");
        QCOMPARE(dialect->currentText(), QString("as the Organiser's own"));
        QTest::keyClick(dialect, Qt::Key_End);
        QCOMPARE(dialect->currentText(), QString("for spreadsheet programs"));
        QVERIFY(!options.AutoStart);
        QCOMPARE(transfer.DataFileType, 3);
        QCOMPARE(port.settings, std::string("2400,N,8,1"));
        ok()->click();
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(port.number, std::int16_t(2));
        QCOMPARE(port.settings, std::string("1200,N,8,1"));
        QVERIFY(options.AutoStart);
        QVERIFY(!options.AutoSelectPort);
        QCOMPARE(transfer.DataFileType, 0);
        QVERIFY(transfer.sheets.wksDialect == WksDialect::Common);
    }
    void aDeviceFillsTheNumber() {
        devices = {adapter(5, "/dev/ttyUSB0", "A50285BI"), device(6, "/dev/ttyUSB1")};
        devices[1].mayOpen = false;
        devices[1].groupToJoin = "dialout";
        open();
        auto* list = find<QComboBox>("cboPresentPorts");
        QCOMPARE(list->itemText(0), QString("COM5  /dev/ttyUSB0  FTDI FT232R USB UART  …85BI"));
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(text()->text(), QString("5"));
        QVERIFY(other()->isChecked());
        QVERIFY(ok()->isEnabled());
        QVERIFY(find<QLabel>("lblDeviceHint")->text().isEmpty());
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(text()->text(), QString("6"));
        QCOMPARE(find<QLabel>("lblDeviceHint")->text(),
                 QString("/dev/ttyUSB1 may not be opened: join the group \"dialout\" and log in again"));
        isForEverybody();
    }
    void refreshListsAgain() {
        open();
        auto* list = find<QComboBox>("cboPresentPorts");
        QCOMPARE(list->count(), 0);
        QCOMPARE(list->placeholderText(), QString("No serial device is present"));
        devices = {device(5, "/dev/ttyUSB0")};
        find<QPushButton>("pbRefreshPorts")->click();
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->currentIndex(), -1);
    }
    void helpIsAskedForByItsButtonAndByItsKey() {
        open();
        auto* button = find<QPushButton>("pbHelp");
        QVERIFY(!button->isVisible());
        int asked = 0;
        dialog->offerHelp([&asked] { ++asked; });
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(asked, 1);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_F1);
        QCOMPARE(asked, 2);
        QVERIFY(dialog->isVisible());
        isForEverybody();
    }
    void thePortsAreProbedUnderTheEyesOfEverybody() {
        whileProbing = [&] {
            QVERIFY(!ok()->isEnabled());
            isForEverybody();
        };
        open();
        QVERIFY(!probed.empty());
    }

  private:
    template <typename Control>
    Control* find(const char* name) {
        return dialog->findChild<Control*>(name);
    }
    QRadioButton* button(int i) { return dialog->findChild<QRadioButton*>(QString("obPort_%1").arg(i)); }
    QRadioButton* other() { return button(5); }
    QLineEdit* text() { return find<QLineEdit>("txtPortNo"); }
    QPushButton* ok() { return find<QPushButton>("pbOK"); }
    QColor colourOf(int i) { return button(i)->palette().color(QPalette::WindowText); }
    void isForEverybody() { QCOMPARE(test::accessibilityFaults(*dialog), QStringList()); }

    void make() {
        dialog = std::make_unique<frmSetup>(
            port, options, transfer, [this](std::int16_t number) { return probe(number); },
            [this] { return devices; });
        dialog->setBeep([this] { ++beeps; });
    }
    void openProbing() {
        make();
        dialog->show();
        dialog->activateWindow();
        QTRY_VERIFY(find<QPushButton>("pbCheckPort") && dialog->isActiveWindow() && !probed.empty() &&
                    find<QLabel>("lblBusy")->text().isEmpty());
    }
    void open() {
        openProbing();
        QTRY_VERIFY(ok()->isEnabled());
    }
    static PortIdentity device(int number, const std::string& path) {
        PortIdentity identity;
        identity.number = number;
        identity.device = path;
        identity.mayOpen = true;
        return identity;
    }
    static PortIdentity adapter(int number, const std::string& path, const std::string& serial) {
        PortIdentity identity = device(number, path);
        identity.vendorId = "0403";
        identity.productId = "6001";
        identity.serial = serial;
        identity.maker = "FTDI";
        identity.product = "FT232R USB UART";
        return identity;
    }
    std::int32_t probe(std::int16_t number) {
        port.number = number;
        probed.push_back(number);
        if (whileProbing) {
            whileProbing();
        }
        const auto status = statuses.find(number);
        return status == statuses.end() ? std::int32_t(kStatusNotAccessible) : status->second;
    }

    test::ScriptedPort port;
    ServerOptions options;
    TransferSettings transfer;
    std::map<int, std::int32_t> statuses;
    std::vector<PortIdentity> devices;
    std::vector<int> probed;
    int beeps = 0;
    std::function<void()> whileProbing;
    std::unique_ptr<frmSetup> dialog;
};

}  // namespace velmora

QTEST_MAIN(velmora::FrmSetupTest)
#include "frm_setup_test.moc"
