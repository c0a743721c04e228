// Boxes that are shown and answered.
#include "ui/qt/qt_message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace velmora {
namespace {

class QtMessageBoxTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void questionIsAnsweredByItsDefaultButton();
    void questionIsAnsweredByTheOtherButton();
    void escapeIsNo();
    void foregroundBoxStaysOnTop();
    void informingTextIsPlain();
    void timersTickWhileABoxWaits();
    void mootQuestionClosesItself();
    void otherQuestionsStay();
    void boxOfAMinimisedWindowStandsAlone();
    void boxOfAHiddenWindowStandsAlone();
    void boxBelongsToAVisibleWindow();

  private:
    /// Runs an action on the box as soon as it is shown.
    void whenShown(std::function<void(QMessageBox&)> action) {
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [timer, action = std::move(action)] {
            auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (shown != nullptr) {
                timer->stop();
                timer->deleteLater();
                action(*shown);
            }
        });
        timer->start(1);
    }
    static void press(const QMessageBox& shown, QMessageBox::StandardButton button) {
        QTest::mouseClick(shown.button(button), Qt::LeftButton);
    }

    QWidget window;
    QtMessageBox box{&window};
};

void QtMessageBoxTest::questionIsAnsweredByItsDefaultButton() {
    for (const bool defaultYes : {true, false}) {
        whenShown([](QMessageBox& shown) { QTest::keyClick(&shown, Qt::Key_Return); });
        QCOMPARE(box.askYesNo(BoxIcon::Exclamation, "Velmora", "Really?", defaultYes, false), defaultYes);
    }
}

void QtMessageBoxTest::questionIsAnsweredByTheOtherButton() {
    for (const bool defaultYes : {true, false}) {
        whenShown([defaultYes](QMessageBox& shown) {
            QCOMPARE(shown.windowTitle(), QStringLiteral("Velmora"));
            QCOMPARE(shown.icon(), QMessageBox::Question);
            press(shown, defaultYes ? QMessageBox::No : QMessageBox::Yes);
        });
        QCOMPARE(box.askYesNo(BoxIcon::Question, "Velmora", "Really?", defaultYes, false), !defaultYes);
    }
}

void QtMessageBoxTest::escapeIsNo() {
    whenShown([](QMessageBox& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QVERIFY(!box.askYesNo(BoxIcon::Question, "Velmora", "Really?", true, false));
}

void QtMessageBoxTest::foregroundBoxStaysOnTop() {
    for (const bool foreground : {true, false}) {
        bool onTop = !foreground;
        whenShown([&onTop](QMessageBox& shown) {
            onTop = shown.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
            press(shown, QMessageBox::No);
        });
        box.askYesNo(BoxIcon::Question, "Velmora", "Really?", true, foreground);
        QCOMPARE(onTop, foreground);
    }
}

void QtMessageBoxTest::informingTextIsPlain() {
    QString text;
    whenShown([&text](QMessageBox& shown) {
        text = shown.text();
        QCOMPARE(shown.textFormat(), Qt::PlainText);
        QCOMPARE(shown.icon(), QMessageBox::Critical);
        press(shown, QMessageBox::Ok);
    });
    box.inform(BoxIcon::Critical, "Velmora", "\xFC <b>");
    QCOMPARE(text, QString::fromUtf8("ü <b>"));
}

void QtMessageBoxTest::timersTickWhileABoxWaits() {
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&ticks] {
        if (++ticks == 3) {
            press(*qobject_cast<QMessageBox*>(QApplication::activeModalWidget()), QMessageBox::Yes);
        }
    });
    timer.start(1);
    QVERIFY(box.askYesNo(BoxIcon::Question, "Velmora", "Really?", false, false));
    QVERIFY(ticks >= 3);
}

void QtMessageBoxTest::mootQuestionClosesItself() {
    whenShown([this](QMessageBox&) { box.withdraw("Really?"); });
    QVERIFY(!box.askYesNo(BoxIcon::Question, "Velmora", "Really?", true, false));
    box.withdraw("Really?");  // none waits
}

void QtMessageBoxTest::otherQuestionsStay() {
    whenShown([this](QMessageBox& shown) {
        box.withdraw("Sure?");
        QVERIFY(shown.isVisible());
        press(shown, QMessageBox::Yes);
    });
    QVERIFY(box.askYesNo(BoxIcon::Question, "Velmora", "Really?", true, false));
}

void QtMessageBoxTest::boxOfAMinimisedWindowStandsAlone() {
    window.showMinimized();
    whenShown([](QMessageBox& shown) {
        QCOMPARE(shown.parentWidget(), nullptr);
        press(shown, QMessageBox::Ok);
    });
    box.inform(BoxIcon::Information, "Velmora", "text");
}

void QtMessageBoxTest::boxOfAHiddenWindowStandsAlone() {
    window.hide();
    whenShown([](QMessageBox& shown) {
        QCOMPARE(shown.parentWidget(), nullptr);
        press(shown, QMessageBox::Ok);
    });
    box.inform(BoxIcon::Information, "Velmora", "text");
}

void QtMessageBoxTest::boxBelongsToAVisibleWindow() {
    window.showNormal();
    whenShown([this](QMessageBox& shown) {
        QCOMPARE(shown.parentWidget(), &window);
        press(shown, QMessageBox::Ok);
    });
    box.inform(BoxIcon::Information, "Velmora", "text");
}

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::QtMessageBoxTest)
#include "qt_message_box_test.moc"
