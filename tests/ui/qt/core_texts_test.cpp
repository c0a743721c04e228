// What the code below the windows says, in another language: whoever changes a sentence there is told here.
#include "ui/qt/core_texts.h"

#include <QTest>

#include "doctor/cause.h"
#include "doctor/diagnosis.h"
#include "link/server_state.h"
#include "serial/comm_device.h"
#include "serial/device_facts.h"
#include "serial/open_diagnosis.h"
#include "serial/serial_port.h"
#include "server/port_status.h"
#include "services/service_codes.h"
#include "services/strings.h"
#include "transfers/transfer_text.h"
#include "ui/notices.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/transfer_table.h"
#include "ui/qt/translation.h"
#include "ui/transfer_speech.h"

namespace velmora {
namespace {

constexpr const char* kDevice = "/dev/ttyUSB0";
constexpr int kMissing = 2;

Transfer transferCalled(const std::string& name) {
    Transfer transfer;
    transfer.name = name;
    transfer.direction = TransferDirection::Save;
    return transfer;
}

}  // namespace

class CoreTextsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void whatIsNotKnownStaysAsItIs_data() {
        QTest::addColumn<QString>("text");
        for (const char* text :
             {"", " ", "100 %", "%", "Something else.", "a\nb\n", "It. Is? Nothing! ", "COM", "of"}) {
            QTest::newRow(text) << QString::fromUtf8(text);
        }
    }
    void whatIsNotKnownStaysAsItIs() {
        QFETCH(QString, text);
        const Translation german("de");
        QCOMPARE(coreText(text), text);
    }

    void everythingStaysInEnglish() {
        for (const char* sentence : coreSentences()) {
            const QString text = QString::fromUtf8(sentence);
            QCOMPARE(coreText(text), text);
        }
        const QString two = "/dev/x is in use by word. Velmora goes on when it is plugged in again.";
        QCOMPARE(coreText(two), two);
    }

    void namesAndNumbersStandAtTheirPlaces() {
        const Translation german("de");
        QCOMPARE(coreText("9,633 of 32,110"), QStringLiteral("9.633 von 32.110"));
        QCOMPARE(coreText("under way, 30 %, 0:23 left"), QStringLiteral("läuft, 30 %, noch 0:23"));
        QCOMPARE(coreText("under way, 30 %"), QStringLiteral("läuft, 30 %"));
        QCOMPARE(coreText("The Organiser uses 1200 baud, and the server 9600 baud."),
                 QStringLiteral("Der Organiser verwendet 1200 Baud, der Server 9600 Baud."));
        QCOMPARE(coreText("Port COM5 is not accessible!"),
                 QStringLiteral("Der Anschluss COM5 ist nicht zugänglich!"));
    }

    void numbersAreWrittenAsTheLanguageDoes() {
        {
            const Translation german("de");
            QCOMPARE(coreText("16,392"), QStringLiteral("16.392"));
            QCOMPARE(coreText("1,017.2 s"), QStringLiteral("1.017,2 s"));
            QCOMPARE(coreText("1,953 bytes/s"), QStringLiteral("1.953 Bytes/s"));
            QCOMPARE(coreText("complete, 1,203 formulas changed"),
                     QStringLiteral("vollständig, 1.203 Formeln geändert"));
            QCOMPARE(coreText("and 3 more"), QStringLiteral("und 3 weitere"));
            // No speed of a line has groups.
            QCOMPARE(coreText("115200 baud"), QStringLiteral("115200 Baud"));
        }
        QCOMPARE(coreText("1,017.2 s"), QStringLiteral("1,017.2 s"));
        const Translation french("fr");
        QCOMPARE(coreText("16,392"), QString::fromUtf8("16\u202f392"));
    }
    void whatAFormulaBecomesIsTold() {
        const Translation german("de");
        QCOMPARE(coreText("A1: =1-(2-3) comes back as =1-2-3"),
                 QStringLiteral("A1: =1-(2-3) kommt als =1-2-3 zurück"));
        QCOMPARE(coreText("A1: =1 comes back as =2, and saved again, as =3"),
                 QStringLiteral("A1: =1 kommt als =2 zurück, und noch einmal gespeichert als =3"));
        QCOMPARE(coreText("A1: =1 comes back as =2, which cannot be saved"),
                 QStringLiteral("A1: =1 kommt als =2 zurück, und das kann nicht gespeichert werden"));
        QCOMPARE(coreText("A1: =FOO(1) cannot be saved: it cannot be converted"),
                 QStringLiteral("A1: =FOO(1) kann nicht gespeichert werden: sie lässt sich nicht umwandeln"));
    }

    void sentencesAndLinesAreTakenOneByOne() {
        const Translation german("de");
        QCOMPARE(
            coreText("The transfer is lost. Unknown words. The transfer is lost."),
            QStringLiteral("Die Übertragung ist verloren. Unknown words. Die Übertragung ist verloren."));
        QCOMPARE(coreText("Libraries\nX\nPlaces"), QStringLiteral("Bibliotheken\nX\nOrte"));
        QCOMPARE(coreText("/a.b c/d cannot be opened. The transfer is lost."),
                 QStringLiteral("/a.b c/d lässt sich nicht öffnen. Die Übertragung ist verloren."));
    }

    void aSentenceInsideAnotherIsTranslatedToo() {
        const Translation german("de");
        QCOMPARE(coreText("refused: no such file (189)"),
                 QStringLiteral("abgelehnt: Datei nicht vorhanden (189)"));
        QCOMPARE(coreText("refused: for a reason of its own"),
                 QStringLiteral("abgelehnt: for a reason of its own"));
    }

    void everyCauseOfTheCableCheckIsTranslated() {
        const Translation german("de");
        for (const CauseWords& words : causes()) {
            isTranslated(std::string(words.finding));
            if (words.cause != Cause::None) {
                isTranslated(std::string(words.advice));
            }
        }
    }

    void everyStateOfAPortIsTranslated() {
        const Translation german("de");
        for (const std::int32_t status : {kStatusAvailable, kStatusModem, kStatusDevice, kStatusInUse,
                                          kStatusNotAccessible, kStatusError}) {
            isTranslated(portMark("5", status).toolTip);
        }
        const Strings strings;
        for (std::size_t status = 2; status < strings.PortStatus.size(); ++status) {
            isTranslated("Port COM5 " + strings.PortStatus[status]);
        }
    }

    void everyReasonWhyAPortCannotBeOpenedIsTranslated() {
        const Translation german("de");
        DeviceFacts facts;
        isTranslated(describeOpenFailure(kDevice, kMissing, facts, ""));
        facts.exists = true;
        facts.mayOpen = true;
        isTranslated(describeOpenFailure(kDevice, kPortInUse, facts, ""));
        isTranslated(describeOpenFailure(kDevice, kPortInUse, facts, "minicom"));
        isTranslated(describeOpenFailure(kDevice, kInvalidParameter, facts, ""));
        isTranslated(describeOpenFailure(kDevice, kNoSuchPort, facts, ""));
        isTranslated(describeOpenFailure(kDevice, kDeviceFailed, facts, ""));
        facts.owner = "root";
        facts.group = "dialout";
        facts.login = "anna";
        isTranslated(permissionSentence(kDevice, facts));
        facts.groupMayOpen = true;
        isTranslated(permissionSentence(kDevice, facts));
        facts.loginIsMember = true;
        isTranslated(permissionSentence(kDevice, facts));
        facts.sessionIsMember = true;
        isTranslated(permissionSentence(kDevice, facts));
    }

    void everyEndOfATransferIsTranslated() {
        const Translation german("de");
        Transfer transfer = transferCalled("Sums.wks");
        isTranslated(resultText(transfer, {}));
        transfer.remarks = {"C2"};
        isTranslated(resultText(transfer, {}));
        transfer.remarks.push_back("C3");
        isTranslated(resultText(transfer, {}));
        isTranslated(resultText(transfer, {TransferResult::Refused, 189, "no such file"}));
        isTranslated(resultText(transfer, {TransferResult::Incomplete, 0, "the link ended"}));
        for (const TransferDirection direction : {TransferDirection::Save, TransferDirection::Load}) {
            isTranslated(nameOf(direction));
        }
    }

    void everySpokenEndOfATransferIsTranslated() {
        const Translation german("de");
        TransferSpeech speech([](const std::string& words) { isTranslated(words); });
        speech.transferEnded(transferCalled("Sums.wks"), {});
        speech.transferEnded({},
                             {TransferResult::Refused, kCodeInvalidRequest, reasonOf(kCodeInvalidRequest)});
        QCOMPARE(coreText("Save of Sums.wks: incomplete: the link ended"),
                 QStringLiteral("Speichern von Sums.wks: unvollständig: die Verbindung endete"));
    }

    void everyNoticeIsTranslated() {
        const Translation german("de");
        Notices notices([] { return false; }, [](const Notice& notice) { isTranslated(notice.text); });
        notices.serverIs(OnExit);
        notices.portLost("COM7");
        Transfer transfer = transferCalled("My file. odb");
        notices.transferEnded(transfer, {TransferResult::Incomplete, 186, "disk full"});
        transfer.direction = TransferDirection::Load;
        notices.transferEnded(transfer, {});
        QCOMPARE(coreText("Save of My file. odb: incomplete: disk full (186)"),
                 QStringLiteral("Speichern von My file. odb: unvollständig: Datenträger voll (186)"));
    }

    void everyReasonOfARefusalIsTranslated() {
        const Translation german("de");
        for (int code = kCodeRecordTooLong; code <= kCodeEndOfFile; ++code) {
            isTranslated(reasonOf(code));
            isTranslated(std::string(reasonOf(code)) + " (" + std::to_string(code) + ")");
        }
    }

    void theNameOfAFileIsNoWordOfOurs() {
        const Translation german("de");
        TransferList list([](const DateTime& moment) { return moment; });
        TransferTable table(list);
        table.setWatched(true);
        list.transferEnded(transferCalled("complete"), {});
        table.update();
        QCOMPARE(table.index(0, TransferList::Name).data().toString(), QStringLiteral("complete"));
        QCOMPARE(table.index(0, TransferList::Result).data().toString(), QStringLiteral("vollständig"));
        QCOMPARE(table.headerData(TransferList::Result, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("Ergebnis"));
    }

  private:
    static void isTranslated(const std::string& english) {
        const QString text = qtText(english);
        QVERIFY2(coreText(text) != text, english.c_str());
    }
};

}  // namespace velmora

QTEST_MAIN(velmora::CoreTextsTest)
#include "core_texts_test.moc"
