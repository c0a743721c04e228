#include "ui/qt/device_list.h"

#include <QSignalBlocker>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "ui/qt/qt_text.h"

namespace velmora {

namespace {

QString describe(const PortIdentity& device) {
    QStringList parts{QStringLiteral("COM%1").arg(device.number)};
    // On Windows the device is called as its port.
    if (const QString name = qtSystemText(device.device); name != parts.front()) {
        parts.append(name);
    }
    const QString product = qtSystemText(device.maker + " " + device.product).trimmed();
    if (!product.isEmpty()) {
        parts.append(product);
    }
    // Two adapters of one kind differ in the end of their serial numbers.
    constexpr qsizetype kTold = 4;
    if (const QString serial = qtSystemText(device.serial); !serial.isEmpty()) {
        parts.append((serial.size() > kTold ? QStringLiteral("\u2026") : QString()) + serial.right(kTold));
    }
    return parts.join(QStringLiteral("  "));
}

bool looksTheSame(const PortIdentity& one, const PortIdentity& other) {
    return describe(one) == describe(other) && one.mayOpen == other.mayOpen;
}

}  // namespace

DeviceList::DeviceList(QWidget* parent) : QComboBox(parent) {
    setAccessibleName(tr("Serial devices that are present"));
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(38);
    connect(this, &QComboBox::currentIndexChanged, this, &DeviceList::announce);
    // The device that is selected already may be chosen again in place of a number that was typed.
    connect(this, &QComboBox::activated, this, &DeviceList::announce);
}

void DeviceList::setDevices(std::vector<PortIdentity> devices) {
    const QSignalBlocker quiet(this);
    devices_ = std::move(devices);
    clear();
    setPlaceholderText(devices_.empty() ? tr("No serial device is present") : tr("Devices that are present"));
    for (const PortIdentity& device : devices_) {
        addItem(describe(device));
    }
    showTips();
    setCurrentIndex(-1);
}

bool DeviceList::refresh(std::vector<PortIdentity> devices) {
    if (std::equal(devices.begin(), devices.end(), devices_.begin(), devices_.end(), looksTheSame)) {
        return false;
    }
    const QString kept = currentText();
    setDevices(std::move(devices));
    const QSignalBlocker quiet(this);
    setCurrentIndex(kept.isEmpty() ? -1 : findText(kept, Qt::MatchExactly | Qt::MatchCaseSensitive));
    return true;
}

const PortIdentity* DeviceList::selected() const {
    const int row = currentIndex();
    return row < 0 ? nullptr : &devices_[static_cast<std::size_t>(row)];
}

void DeviceList::setTip(Tip tip) {
    tip_ = std::move(tip);
    showTips();
}

void DeviceList::showTips() {
    int row = 0;
    for (const PortIdentity& device : devices_) {
        setItemData(row++, tip_ ? qtSystemText(tip_(device.device)) : QString(), Qt::ToolTipRole);
    }
}

void DeviceList::announce() {
    if (const PortIdentity* device = selected()) {
        // A copy: who hears of it may let events run that change the list.
        Q_EMIT chosen(PortIdentity(*device));
    }
}

QString DeviceList::hint(const PortIdentity& device) {
    if (device.mayOpen) {
        return {};
    }
    const QString name = qtSystemText(device.device);
    return device.groupToJoin.empty() ? tr("%1 may not be opened").arg(name)
                                      : tr("%1 may not be opened: join the group \"%2\" and log in again")
                                            .arg(name, qtSystemText(device.groupToJoin));
}

}  // namespace velmora
