// The list of the serial devices that are present.
#pragma once

#include <QComboBox>
#include <functional>
#include <string>
#include <vector>

#include "serial/port_identity.h"

namespace velmora {

/// Shows the devices by port, name, make and the end of the serial number. None is selected at first.
class DeviceList : public QComboBox {
    Q_OBJECT

  public:
    /// What is said beside a device; empty for nothing.
    using Tip = std::function<std::string(const std::string& device)>;

    explicit DeviceList(QWidget* parent = nullptr);

    /// Shows these devices, none of them selected.
    void setDevices(std::vector<PortIdentity> devices);
    /// Shows these devices, the selected one still selected while it is present. Says whether anything that
    /// is shown changed; else nothing happens.
    bool refresh(std::vector<PortIdentity> devices);
    const std::vector<PortIdentity>& devices() const { return devices_; }
    /// Null without a selection; the list's own, until its devices are set again.
    const PortIdentity* selected() const;
    /// Without one nothing is said.
    void setTip(Tip tip);
    /// What a user must know before a device is of use to him; empty where there is nothing.
    static QString hint(const PortIdentity& device);

  Q_SIGNALS:
    /// The user, or a tool of his, has chosen a device, or the same one again.
    void chosen(const velmora::PortIdentity& device);

  private:
    void showTips();
    void announce();

    std::vector<PortIdentity> devices_;
    Tip tip_;
};

}  // namespace velmora
