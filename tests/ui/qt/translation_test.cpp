// The windows in each language: all is translated, nothing is cut off, each letter of Alt means one thing.
#include "ui/qt/translation.h"

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QWindow>
#include <QXmlStreamReader>
#include <algorithm>
#include <memory>

#include "support/example_adapter.h"
#include "support/scripted_port.h"
#include "support/window_rig.h"
#include "ui/languages.h"
#include "ui/qt/elided_label.h"
#include "ui/qt/frm_about.h"
#include "ui/qt/frm_cable_check.h"
#include "ui/qt/frm_debug.h"
#include "ui/qt/frm_setup.h"
#include "ui/qt/frm_transfers.h"
#include "ui/qt/lcd_line.h"
#ifndef _WIN32
#include "ui/qt/folder_dialog.h"
#endif

namespace velmora {
namespace {

struct Message {
    QString context, source, translation;
    bool finished = true;
};

QList<Message> messagesOf(const QString& language) {
    QFile file(QStringLiteral(VELMORA_LANGUAGES_DIR "/velmora_%1.ts").arg(language));
    QList<Message> messages;
    if (!file.open(QIODevice::ReadOnly)) {
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (xml.tokenType() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            messages.append({context, xml.readElementText(), {}, true});
        } else if (xml.name() == QLatin1String("translation")) {
            messages.back().finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            messages.back().translation = xml.readElementText();
        }
    }
    return messages;
}

/// "%1 of %2" has %1 and %2.
QStringList placeholders(const QString& text) {
    static const QRegularExpression mark(QStringLiteral("%[1-9]"));
    QStringList found;
    for (auto match = mark.globalMatch(text); match.hasNext();) {
        found.append(match.next().captured());
    }
    found.sort();
    return found;
}

/// The letter that Alt takes to a control of this text; null for none.
QChar letterOf(const QString& text) {
    static const QRegularExpression mark(QStringLiteral("(?<!&)&([^&\\s])"));
    const auto match = mark.match(text);
    return match.hasMatch() ? match.captured(1).at(0).toLower() : QChar();
}

#ifdef _WIN32
constexpr bool kHasFonts = false;
#else
constexpr bool kHasFonts = true;
#endif

// Words that a language has in common with English.
const QStringList kAlike = {
    "OK",         "Name",       "Type",           "Computer", "Ctrl",         "Shift",
    "Version",    "Version %1", "Debug",          "Bytes",    "Options",      "&File",
    "Transferts", "Error",      "Help",           "&Help",    "&Start",       "&Stop",
    "Data",       "&No",        "Setup",          "Hide",     "&Transferts…", "Apply",
    "%8 baud",    "%8 bytes/s", "%1, driver %2.", "%8",       "%1: %2",
};

/// A window as users meet it, with all of its controls, and what it stands on.
class Shown {
  public:
    explicit Shown(const QString& name) {
        if (name == QLatin1String("main")) {
            showMain();
        } else if (name == QLatin1String("setup")) {
            showSetup();
        } else if (name == QLatin1String("about")) {
            auto about =
                std::make_unique<frmAbout>(QStringLiteral("Velmora"), QString(), frmAbout::Actions());
            about->offerHelp([] {});
            own_ = std::move(about);
        } else if (name == QLatin1String("cable check")) {
            own_ = std::make_unique<frmCableCheck>(
                "/dev/ttyUSB0", LineSettings(),
                [](StepObserver&, const std::function<bool()>&) { return Diagnosis(); });
        } else if (name == QLatin1String("monitor")) {
            showMonitor();
        } else if (name == QLatin1String("transfers")) {
            own_ = std::make_unique<frmTransfers>(list_, frmTransfers::Actions());
        } else if (name == QLatin1String("question")) {
            own_ = std::make_unique<QMessageBox>(QMessageBox::Question, QString(), QString(),
                                                 QMessageBox::Yes | QMessageBox::No);
        }
#ifndef _WIN32
        if (name == QLatin1String("folder")) {
            FolderDialog::Options options;
            options.pathBox = true;
            options.resizable = true;
            own_ = std::make_unique<FolderDialog>(options, nullptr);
        }
#endif
        window_ = own_ ? own_.get() : &rig_->window;
        window_->show();
        while (!window_->windowHandle()->isExposed()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        // What a check that has begun by now has changed.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }

    QWidget& window() {
        return *window_;
    }

  private:
    void showMain() {
        rig_ = std::make_unique<test::WindowRig>();
        rig_->controller.setDebugMode(true);
        rig_->window.setVersion("beta3", "build 1");
        rig_->reach(WaitLink);
        rig_->controller.SetStats(1, 1843);
    }
    void showSetup() {
        options_.AutoSelectPort = false;
        auto setup = std::make_unique<frmSetup>(
            port_, options_, transfer_, [](std::int16_t) { return kStatusInUse; },
            [] { return std::vector<PortIdentity>{test::exampleAdapter()}; });
        setup->setCheckCable([](int, const std::string&) {});
        setup->offerTexts({QStringLiteral("Nederlands")});
        setup->offerHelp([] {});
        own_ = std::move(setup);
    }
    void showMonitor() {
        auto monitor = std::make_unique<frmDebug>(time_);
        monitor->offerCapture([] { return std::string(); });
        monitor->findChild<QAction*>("mnuFind")->trigger();
        own_ = std::move(monitor);
    }

    test::FakeTime time_;
    test::ScriptedPort port_;
    ServerOptions options_;
    TransferSettings transfer_;
    TransferList list_{[](const DateTime& moment) { return moment; }};
    std::unique_ptr<test::WindowRig> rig_;
    std::unique_ptr<QWidget> own_;
    QWidget* window_ = nullptr;
};

const QStringList& windowNames() {
    static const QStringList names = [] {
        QStringList all{"main", "setup", "about", "cable check", "monitor", "transfers", "question"};
#ifndef _WIN32
        all.append("folder");
#endif
        return all;
    }();
    return names;
}

/// The words of a control; of one that cuts its text by itself none.
QString wordsOf(const QWidget& control) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->text();
    }
    const auto* label = qobject_cast<const QLabel*>(&control);
    const bool cuts = qobject_cast<const ElidedLabel*>(label) || qobject_cast<const LcdLine*>(label);
    return label && !cuts ? label->text() : QString();
}

/// Whether all of the control's words are seen.
bool isWhole(const QWidget& control) {
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (label && label->wordWrap()) {
        return control.height() >= label->heightForWidth(control.width());
    }
    // The hint of a button has more room at its sides than it needs: "?" is in a square one.
    constexpr int kFrame = 12;
    const QString words = wordsOf(control);
    const int least = control.fontMetrics().size(Qt::TextShowMnemonic, words).width() + kFrame;
    const QSize wanted = control.minimumSizeHint();
    return control.width() >= std::min(wanted.width(), least) && control.height() >= wanted.height();
}

/// The texts that Alt and a letter lead to at the same time.
QStringList reachedByAlt(const QWidget& window) {
    QStringList texts;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        if (control->isVisibleTo(&window) && (!label || label->buddy())) {
            texts.append(wordsOf(*control));
        }
    }
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* menu : bar->actions()) {
            texts.append(menu->text());
        }
    }
    return texts;
}

QStringList entriesOf(const QMenu& menu) {
    QStringList texts;
    for (const QAction* entry : menu.actions()) {
        texts.append(entry->text());
    }
    return texts;
}

/// The text whose letter an earlier one has; empty when each has its own.
QString secondOfOneLetter(const QStringList& texts) {
    QString letters;
    for (const QString& text : texts) {
        if (const QChar letter = letterOf(text); !letter.isNull()) {
            if (letters.contains(letter)) {
                return text + QLatin1String(" among ") + texts.join(QLatin1String(", "));
            }
            letters.append(letter);
        }
    }
    return {};
}

}  // namespace

class TranslationTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyTextIsTranslated_data() { languages(); }
    void everyTextIsTranslated() {
        QFETCH(QString, language);
        const QList<Message> messages = messagesOf(language);
        QVERIFY(messages.size() > 150);
        for (const Message& message : messages) {
            const QByteArray text = (message.context + ": " + message.source).toUtf8();
            QVERIFY2(message.finished && !message.translation.isEmpty(), text);
            QVERIFY2(placeholders(message.source) == placeholders(message.translation), text);
            QVERIFY2(letterOf(message.source).isNull() == letterOf(message.translation).isNull(), text);
            QVERIFY2(message.source != message.translation || kAlike.contains(message.source), text);
        }
    }

    void nothingIsCutOff_data() { windows(); }
    void nothingIsCutOff() {
        if (!kHasFonts) {
            QSKIP("The offscreen platform has no fonts to measure with here.");
        }
        QFETCH(QString, language);
        QFETCH(QString, name);
        const Translation translation(language.toStdString());
        Shown shown(name);
        int seen = 0;
        for (const QWidget* control : shown.window().findChildren<QWidget*>()) {
            if (!control->isVisible() || wordsOf(*control).isEmpty()) {
                continue;
            }
            ++seen;
            QVERIFY2(isWhole(*control), (control->objectName() + ": " + wordsOf(*control)).toUtf8());
        }
        QVERIFY(seen > 0);
        constexpr int kSmallScreen = 1024;
        QVERIFY2(shown.window().width() <= kSmallScreen, QByteArray::number(shown.window().width()));
    }

    void eachLetterOfAltMeansOneThing_data() { windows(); }
    void eachLetterOfAltMeansOneThing() {
        QFETCH(QString, language);
        QFETCH(QString, name);
        const Translation translation(language.toStdString());
        Shown shown(name);
        QCOMPARE(secondOfOneLetter(reachedByAlt(shown.window())), QString());
        for (const QMenu* menu : shown.window().findChildren<QMenu*>()) {
            QCOMPARE(secondOfOneLetter(entriesOf(*menu)), QString());
        }
    }

    void noMarkOfTheCableCheckIsCutOff_data() { languages(); }
    void noMarkOfTheCableCheckIsCutOff() {
        QFETCH(QString, language);
        const Translation translation(language.toStdString());
        frmCableCheck check(
            "/dev/ttyUSB0", LineSettings(), [](StepObserver& observer, const std::function<bool()>&) {
                for (const StepStatus status :
                     {StepStatus::Well, StepStatus::Noted, StepStatus::Fault, StepStatus::Unknown}) {
                    observer.found({DoctorStep::Echo, status, "What is sent comes back."});
                }
                return Diagnosis();
            });
        check.show();
        auto* const steps = check.findChild<QTableWidget*>("tblSteps");
        QTRY_COMPARE(steps->rowCount(), 4);
        const QAbstractItemView& view = *steps;
        QVERIFY2(view.sizeHintForColumn(0) <= steps->columnWidth(0),
                 QByteArray::number(view.sizeHintForColumn(0)));
    }

    void noCellOfTheTransfersIsCutOff_data() { languages(); }
    void noCellOfTheTransfersIsCutOff() {
        if (!kHasFonts) {
            QSKIP("The offscreen platform has no fonts to measure with here.");
        }
        QFETCH(QString, language);
        const Translation translation(language.toStdString());
        TransferList list([](const DateTime& moment) { return moment; });
        Transfer contacts;
        contacts.name = "CONTACTS.odb";
        contacts.bytes = 32'110;
        contacts.size = 32'110;
        contacts.duration = std::chrono::seconds(100);
        Transfer sheet = contacts;
        sheet.remarks.resize(23);
        list.transferEnded(contacts, {TransferResult::Refused, 189, "no such file"});
        list.transferEnded(contacts, {TransferResult::Incomplete, 0, "the link ended"});
        list.transferEnded(sheet, {TransferResult::Complete, 0, {}});
        list.transferBegan(contacts);
        frmTransfers window(list, frmTransfers::Actions());
        window.present();
        const auto* const table = window.findChild<QTableView*>("tblTransfers");
        QCOMPARE(table->model()->rowCount(), 4);
        const QAbstractItemView& view = *table;
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < table->model()->columnCount(); ++column) {
                const QModelIndex cell = table->model()->index(row, column);
                const int wanted = view.sizeHintForIndex(cell).width();
                QVERIFY2(wanted <= table->columnWidth(column), qPrintable(cell.data().toString()));
            }
        }
    }

    void buttonsOfTheToolkitSpeakTheLanguage() {
        const Translation translation("de");
        QMessageBox box(QMessageBox::Question, QString(), QString(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.button(QMessageBox::Yes)->text(), QStringLiteral("&Ja"));
        QCOMPARE(box.button(QMessageBox::No)->text(), QStringLiteral("&Nein"));
    }
    void englishIsTheTextAsItIsWritten() {
        const Translation translation("en");
        Shown shown("main");
        QCOMPARE(shown.window().findChild<QPushButton*>("pbSetup")->text(), QStringLiteral("Set&up…"));
        QCOMPARE(shown.window().findChild<QPushButton*>("pbStartStop")->text(), QStringLiteral("&Stop"));
    }
    void theDesktopHasALanguage() { QVERIFY(!desktopLanguages().empty()); }
    void aTranslationEndsWithItsObject() {
        {
            const Translation translation("de");
            QCOMPARE(frmMain::tr("&Start"), QStringLiteral("&Starten"));
        }
        QCOMPARE(frmMain::tr("&Start"), QStringLiteral("&Start"));
    }

  private:
    static void languages() {
        QTest::addColumn<QString>("language");
        for (const std::string_view known : knownLanguages()) {
            const std::string language(known);
            if (language != "en") {
                QTest::newRow(language.c_str()) << QString::fromStdString(language);
            }
        }
    }
    static void windows() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("name");
        for (const std::string_view known : knownLanguages()) {
            const QString language = QString::fromStdString(std::string(known));
            for (const QString& name : windowNames()) {
                QTest::newRow(qPrintable(language + QLatin1Char(' ') + name)) << language << name;
            }
        }
    }
};

}  // namespace velmora

QTEST_MAIN(velmora::TranslationTest)
#include "translation_test.moc"
