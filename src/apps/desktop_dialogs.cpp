#include "apps/desktop_dialogs.h"

#include <QTimer>
#include <chrono>

#include "serial/adapter_latency.h"
#include "serial/port_list.h"
#include "ui/qt/frm_setup.h"
#include "ui/qt/native_folder_browser.h"

namespace velmora {

namespace {

constexpr std::chrono::milliseconds kFollow{400};
constexpr std::chrono::milliseconds kSettle{200};

}  // namespace

DesktopDialogs::DesktopDialogs(const Clock& clock, PortNames& portNames)
    : portNames_(portNames), debugWindow_(clock) {}

void DesktopDialogs::runSetup(QWidget& window, SerialPort& port, ServerOptions& options,
                              TransferSettings& transfer, const SetupModel::Probe& probe,
                              const AdapterEvents& adapters) {
    frmSetup dialog(
        port, options, transfer, probe, [this] { return listPorts(portNames_); }, &window);
    dialog.setDeviceTip([&port](const std::string& device) { return latencyTip(device, port.Settings()); });
    // Where the system does not tell of adapters, the list is looked up again as often as it must follow.
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &dialog, [&dialog] { dialog.refreshDevices(); });
    if (!adapters.live()) {
        look.start(kFollow);
    }
    openSetup_ = &dialog;
    dialog.exec();
    openSetup_ = nullptr;
}

void DesktopDialogs::adaptersChanged() {
    if (openSetup_ != nullptr) {
        // By then the many events of one plug are over.
        QTimer::singleShot(kSettle, openSetup_, [setup = openSetup_] { setup->refreshDevices(); });
    }
}

std::string DesktopDialogs::browseForFolder(QWidget& window, const FolderQuestion& question) {
    return browseForFolderOver(window, question);
}

void DesktopDialogs::toggleDebugWindow() {
    debugWindow_.toggle();
}

void DesktopDialogs::closeDebugWindow() {
    debugWindow_.close();
}

}  // namespace velmora
