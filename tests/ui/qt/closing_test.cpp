// Windows that are closed on a desktop: a display of the test's own, and a window manager's requests.
#include <QPushButton>
#include <QTest>
#include <QWindow>
#include <memory>
#include <vector>

#include "doctor/stoppable_line.h"
#include "support/own_display.h"
#include "support/scripted_port.h"
#include "support/window_frame.h"
#include "support/window_rig.h"
#include "ui/qt/c_sh_folder.h"
#include "ui/qt/frm_cable_check.h"
#include "ui/qt/frm_setup.h"

namespace velmora {

class ClosingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theMainWindowAsksAndStaysDuringATransfer() {
        test::WindowRig rig;
        show(rig.window);
        rig.reach(Downld);
        rig.box.answer = false;
        test::pressCloseButton(rig.window);
        QTRY_COMPARE(rig.box.asked.size(), std::size_t{1});
        QVERIFY(rig.window.isVisible());
        QVERIFY(!rig.closed);
        QCOMPARE(rig.lastReason, CloseReason::User);
        rig.box.answer = true;
        test::pressCloseButton(rig.window);
        QTRY_VERIFY(rig.closed);
        QVERIFY(!rig.window.isVisible());
    }
    void closingTheMainWindowStopsTheServer() {
        test::WindowRig rig;
        show(rig.window);
        rig.reach(WaitLink);
        test::pressCloseButton(rig.window);
        QTRY_VERIFY(rig.closed);
        QCOMPARE(rig.link.count("stop"), 1);
        QVERIFY(rig.box.asked.empty());
    }
    void aClosedFolderDialogIsACancelledOne() {
        cSHFolder folder;
        connect(&folder, &cSHFolder::Initialized, this,
                [&folder] { test::pressCloseButton(*folder.hWnd()); });
        QCOMPARE(folder.BrowseForFolder(nullptr), std::string());
        QVERIFY(!folder.hWnd());
    }
    void closingSetupWhileItProbesEndsTheProbes_data() {
        QTest::addColumn<bool>("byItsButton");
        QTest::newRow("Cancel") << true;
        QTest::newRow("the window's frame") << false;
    }
    void closingSetupWhileItProbesEndsTheProbes() {
        QFETCH(bool, byItsButton);
        std::vector<int> probed;
        bool focusWaitsAtCancel = false;
        port.number = 3;
        std::unique_ptr<frmSetup> setup;
        setup = std::make_unique<frmSetup>(
            port, options, transfer,
            [&](std::int16_t number) {
                port.number = number;
                probed.push_back(number);
                auto* cancel = setup->findChild<QPushButton*>("pbCancel");
                focusWaitsAtCancel = setup->focusWidget() == cancel;
                if (byItsButton) {
                    QTest::mouseClick(cancel, Qt::LeftButton);
                } else {
                    test::pressCloseButton(*setup);
                }
                // The program goes on while a port is probed.
                [&] { QTRY_VERIFY(!setup->isVisible()); }();
                return std::int32_t(kStatusNotAccessible);
            },
            [] { return std::vector<PortIdentity>(); });
        setup->show();
        QTRY_VERIFY(!setup->isVisible());
        QVERIFY(focusWaitsAtCancel);
        QCOMPARE(probed, std::vector<int>{1});
        QCOMPARE(port.number, std::int16_t(3));
    }
    void closingACheckOfTheCableByItsFrameEndsTheCheckFirst() {
        bool closedAmid = true;
        std::unique_ptr<frmCableCheck> check;
        check = std::make_unique<frmCableCheck>(
            "COM7", LineSettings(),
            [&](StepObserver& /*observer*/, const std::function<bool()>& stopWanted) -> Diagnosis {
                test::pressCloseButton(*check);
                [&] { QTRY_VERIFY(stopWanted()); }();
                closedAmid = !check->isVisible();
                throw ExaminationStopped();
            });
        check->show();
        QTRY_VERIFY(!check->isVisible());
        QVERIFY(!closedAmid);
    }

  private:
    static void show(QWidget& window) {
        window.show();
        while (!window.windowHandle()->isExposed()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    test::ScriptedPort port;
    ServerOptions options;
    TransferSettings transfer;
};

}  // namespace velmora

int main(int argc, char* argv[]) {
    return velmora::test::runOnOwnDisplay<velmora::ClosingTest>(argc, argv);
}
#include "closing_test.moc"
