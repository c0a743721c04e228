// The list of serial devices, over adapters that come and go.
#include "ui/qt/device_list.h"

#include <QTest>
#include <memory>
#include <vector>

namespace velmora {

namespace {

PortIdentity device(int number, const std::string& path) {
    PortIdentity identity;
    identity.number = number;
    identity.device = path;
    identity.mayOpen = true;
    return identity;
}

PortIdentity adapter(int number, const std::string& path, const std::string& serial) {
    PortIdentity identity = device(number, path);
    identity.maker = "FTDI";
    identity.product = "FT232R USB UART";
    identity.serial = serial;
    return identity;
}

}  // namespace

class DeviceListTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        list = std::make_unique<DeviceList>();
        chosen.clear();
        connect(list.get(), &DeviceList::chosen, list.get(),
                [this](const PortIdentity& one) { chosen.push_back(one.number); });
    }
    void devicesAreNamedByWhatIsKnownOfThem() {
        list->setDevices(
            {device(5, "COM5"), adapter(6, "/dev/ttyUSB1", "B1"), adapter(7, "COM7", "A50285BI")});
        QCOMPARE(list->itemText(0), QString("COM5"));
        QCOMPARE(list->itemText(1), QString("COM6  /dev/ttyUSB1  FTDI FT232R USB UART  B1"));
        QCOMPARE(list->itemText(2), QString("COM7  FTDI FT232R USB UART  …85BI"));
    }
    void devicesThatAreSetAreNotChosen() {
        QVERIFY(!list->selected());
        list->setDevices({device(5, "COM5")});
        QCOMPARE(list->currentIndex(), -1);
        QVERIFY(!list->selected());
        QCOMPARE(list->placeholderText(), QString("Devices that are present"));
        list->setDevices({});
        QCOMPARE(list->placeholderText(), QString("No serial device is present"));
        QVERIFY(chosen.empty());
    }
    void aChoiceIsTold() {
        list->setDevices({device(5, "COM5"), device(6, "COM6")});
        QTest::keyClick(list.get(), Qt::Key_End);
        QCOMPARE(list->selected()->number, 6);
        QCOMPARE(chosen.back(), 6);
        chosen.clear();
        list->activated(1);
        QCOMPARE(chosen, std::vector<int>{6});
    }
    void theSelectedDeviceStaysSelectedAmongOthers() {
        list->setDevices({adapter(6, "/dev/ttyUSB1", "BBBB1234")});
        list->setCurrentIndex(0);
        chosen.clear();
        QVERIFY(list->refresh({device(5, "/dev/ttyUSB0"), adapter(6, "/dev/ttyUSB1", "BBBB1234")}));
        QCOMPARE(list->currentIndex(), 1);
        QVERIFY(list->refresh({device(5, "/dev/ttyUSB0")}));
        QCOMPARE(list->currentIndex(), -1);
        QVERIFY(chosen.empty());
    }
    void withoutAChangeNothingHappens() {
        list->setDevices({device(5, "COM5")});
        list->setCurrentIndex(0);
        QVERIFY(!list->refresh({device(5, "COM5")}));
        QVERIFY(list->refresh({device(5, "COM5"), device(6, "COM6")}));
    }
    void aRightThatIsGivenIsAChange() {
        PortIdentity locked = device(6, "/dev/ttyUSB1");
        locked.mayOpen = false;
        list->setDevices({locked});
        list->setCurrentIndex(0);
        QVERIFY(list->refresh({device(6, "/dev/ttyUSB1")}));
        QVERIFY(list->selected()->mayOpen);
    }
    void aDeviceThatCannotBeOpenedHasAHint() {
        PortIdentity one = device(6, "/dev/ttyUSB1");
        QCOMPARE(DeviceList::hint(one), QString());
        one.mayOpen = false;
        QCOMPARE(DeviceList::hint(one), QString("/dev/ttyUSB1 may not be opened"));
        one.groupToJoin = "dialout";
        QCOMPARE(DeviceList::hint(one),
                 QString("/dev/ttyUSB1 may not be opened: join the group \"dialout\" and log in again"));
    }
    void tipsStandBesideTheirDevices() {
        list->setDevices({device(5, "/dev/ttyUSB0"), device(6, "/dev/ttyUSB1")});
        list->setTip([](const std::string& path) {
            return path == "/dev/ttyUSB1" ? std::string("It is slow.") : std::string();
        });
        const auto tip = [this](int row) { return list->itemData(row, Qt::ToolTipRole).toString(); };
        QCOMPARE(tip(0), QString());
        QCOMPARE(tip(1), QString("It is slow."));
        list->refresh({device(6, "/dev/ttyUSB1")});
        QCOMPARE(tip(0), QString("It is slow."));
    }
    void whoHearsOfAChoiceMayChangeTheList() {
        list->setDevices({adapter(6, "/dev/ttyUSB1", "BBBB1234")});
        std::string serial;
        connect(list.get(), &DeviceList::chosen, list.get(), [this, &serial](const PortIdentity& one) {
            list->setDevices({});
            serial = one.serial;
        });
        list->setCurrentIndex(0);
        QCOMPARE(serial, std::string("BBBB1234"));
    }

  private:
    std::unique_ptr<DeviceList> list;
    std::vector<int> chosen;
};

}  // namespace velmora

QTEST_MAIN(velmora::DeviceListTest)
#include "device_list_test.moc"
