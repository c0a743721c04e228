// velmora-screenshots FOLDER [LANGUAGE]: pictures of the main window in its states, as real calls of the
// controller bring them about, and of the dialogs and windows beside it. For the documents, and for a look at
// what a change does; with a language, every window in it, in light and dark.
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>
#include <QStyleFactory>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "link/crc.h"
#include "link/debug.h"
#include "link/frames.h"
#include "serial/device_facts.h"
#include "serial/open_diagnosis.h"
#include "support/example_adapter.h"
#include "support/scripted_port.h"
#include "support/window_rig.h"
#include "ui/about_text.h"
#include "ui/qt/artwork.h"
#include "ui/qt/frm_about.h"
#include "ui/qt/frm_cable_check.h"
#include "ui/qt/frm_debug.h"
#include "ui/qt/frm_setup.h"
#include "ui/qt/frm_transfers.h"
#include "ui/qt/translation.h"

namespace {

using namespace velmora;
using test::WindowRig;

struct Scene {
    const char* name;
    bool dark;
    std::function<void(WindowRig&)> play;
};

QPalette darkPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2B, 0x2D, 0x30));
    palette.setColor(QPalette::WindowText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::Base, QColor(0x1F, 0x21, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x2B, 0x2D, 0x30));
    palette.setColor(QPalette::Text, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA0, 0xA0));
    palette.setColor(QPalette::Button, QColor(0x3A, 0x3D, 0x41));
    palette.setColor(QPalette::ButtonText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::Mid, QColor(0x55, 0x59, 0x5E));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x8E, 0xB9));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x80, 0x80, 0x80));
    return palette;
}

void download(WindowRig& rig) {
    rig.reach(WaitLink);
    rig.controller.setState(Connect);
    rig.controller.setState(Downld);
    rig.controller.setCurrentFile("/home/user/Psion Files/Contacts.odb");
    rig.controller.SetStats(1, 1843);
    rig.controller.SetStats(2, 312);
    rig.controller.SetStats(3, 2);
    rig.controller.SetStats(4, 1);
}

void portMissing(WindowRig& rig) {
    rig.controller.setState(Offline);
    rig.port.number = 5;
    rig.link.startResult = 5;
    rig.controller.pbStartStop_Click();
    DeviceFacts facts;
    rig.window.showAdvice(describeOpenFailure("/dev/ttyUSB0", 2, facts, ""));
}

const std::vector<Scene>& scenes() {
    static const std::vector<Scene> all = {
        {"welcome", false, [](WindowRig& rig) { rig.controller.setState(Offline); }},
        {"waiting", false, [](WindowRig& rig) { rig.reach(WaitLink); }},
        {"main-window", false, download},
        {"main-window-dark", true, download},
        {"port-missing", false, portMissing},
        {"port-missing-dark", true, portMissing},
        {"no-port", false,
         [](WindowRig& rig) {
             rig.controller.ShowWarning("No port selected!", "");
             rig.controller.setState(NoPort);
             rig.window.showAdvice(
                 QCoreApplication::translate("DesktopServer", "Plug in the adapter, then click Setup.")
                     .toStdString());
         }},
        {"stopped-by-organiser", false,
         [](WindowRig& rig) {
             rig.reach(WaitLink);
             rig.controller.setState(OnExit);
         }},
    };
    return all;
}

bool save(QWidget& window, const QDir& folder, const char* name) {
    const QString path = folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
    if (!window.grab().save(path)) {
        std::fprintf(stderr, "velmora-screenshots: %s cannot be written\n", qPrintable(path));
        return false;
    }
    return true;
}

// Four ports in different states, and a USB adapter as the other port, plugged in or not.
bool saveSetup(const QDir& folder, const char* name, const std::vector<PortIdentity>& present) {
    test::ScriptedPort port;
    port.number = 5;
    ServerOptions options;
    options.AutoSelectPort = false;
    TransferSettings transfer;
    int probes = 0;
    const auto probe = [&probes, &present](std::int16_t number) -> std::int32_t {
        static constexpr std::int32_t kAnswers[] = {kStatusInUse, kStatusModem, kStatusNotAccessible,
                                                    kStatusNotAccessible};
        const auto index = static_cast<std::size_t>(number - 1);
        ++probes;
        if (index < std::size(kAnswers)) {
            return kAnswers[index];
        }
        return present.empty() ? kStatusNotAccessible : kStatusAvailable;
    };
    frmSetup dialog(port, options, transfer, probe, [&present] { return present; });
    dialog.setCheckCable([](int, const std::string&) {});
    dialog.offerTexts({QStringLiteral("English"), QStringLiteral("Deutsch")});
    dialog.offerHelp([] {});
    dialog.show();
    constexpr int kAllPorts = 5;
    while (probes < kAllPorts) {
        QApplication::processEvents();
    }
    QApplication::processEvents();
    if (!present.empty()) {
        auto* const list = dialog.findChild<QComboBox*>("cboPresentPorts");
        list->setCurrentIndex(0);
        list->activated(0);
        dialog.findChild<QPushButton*>("pbCheckPort")->click();
    }
    QApplication::processEvents();
    return save(dialog, folder, name);
}

// The same evening in every picture.
class PictureClock : public Clock {
  public:
    DateTime localTime() const override { return {}; }
    DateTime universalTime() const override { return {}; }
    double secondsSinceMidnight() const override { return 72000 + seconds; }
    std::chrono::microseconds monotonic() const override { return {}; }

    double seconds = 0;
};

// A link being made and the first frames of a transfer, as the trace of the link words them.
bool saveMonitor(const QDir& folder, const char* name) {
    PictureClock clock;
    frmDebug window(clock);
    window.toggle();
    DebugLogModel& log = window.model();
    Debug trace(log);
    const auto entry = [&](double seconds, const char* categories, const char* label, std::string_view data) {
        clock.seconds = seconds;
        trace.trace(categories, label, data);
    };
    using namespace std::string_view_literals;
    entry(0.02, "PLP", "starting PLP", {});
    entry(0.02, "COM", "open port", "COM5 9600,N,8,1");
    Crc crc;
    crc.load_CRCtable();
    entry(3.41, "COM,DATA", "recv", buildFrame(crc, FrameType::Connect, 0, {}));
    entry(3.42, "COM,DATA", "send", buildFrame(crc, FrameType::Ack, 0, {}));
    entry(3.58, "COM,DATA", "recv", buildFrame(crc, FrameType::Data, 1, "FTRAN"sv));
    entry(3.59, "COM,DATA", "send", buildFrame(crc, FrameType::Ack, 1, {}));
    entry(3.60, "COM,DATA", "send", buildFrame(crc, FrameType::Data, 1, {}));
    entry(3.66, "COM,DATA", "recv", buildFrame(crc, FrameType::Ack, 1, {}));
    entry(3.74, "COM,DATA", "recv",
          buildFrame(crc, FrameType::Data, 2,
                     "\x00\x01\x00"
                     "CONTACTS"sv));
    entry(3.75, "COM,DATA", "send", buildFrame(crc, FrameType::Ack, 2, {}));
    entry(3.81, "COM,DATA", "send", buildFrame(crc, FrameType::Data, 2, {}));
    window.showWaiting();
    return save(window, folder, name);
}

Transfer pictured(const char* name, TransferDirection direction, std::uint64_t bytes, int seconds,
                  int minute) {
    Transfer transfer;
    transfer.name = name;
    transfer.path = std::string("/home/anna/Documents/Psion Files/") + name;
    transfer.direction = direction;
    transfer.bytes = bytes;
    transfer.duration = std::chrono::seconds{seconds};
    transfer.began = {2026, 11, 22, 19, minute, 35};
    return transfer;
}

// An evening's transfers, with one under way.
bool saveTransfers(const QDir& folder, const char* name) {
    TransferList list([](const DateTime& universal) { return universal; });
    frmTransfers window(list, {});
    window.present();
    list.transferEnded(pictured("Contacts.odb", TransferDirection::Save, 16'392, 17, 31), {});
    list.transferEnded(pictured("Memo.odb", TransferDirection::Load, 0, 0, 33),
                       {TransferResult::Refused, 189, "no such file"});
    Transfer sheet = pictured("Sums.wks", TransferDirection::Save, 1'204, 3, 36);
    sheet.remarks = {"C2: =A1-(B1-C1) comes back as =A1-B1-C1", "C3: =0.5*A1 comes back as =5.0E-1*A1"};
    list.transferEnded(sheet, {});
    list.transferEnded(pictured("Diary.ob3", TransferDirection::Save, 4'100, 6, 38),
                       {TransferResult::Incomplete, 0, "the link ended"});
    Transfer running = pictured("Journal.odb", TransferDirection::Load, 0, 0, 41);
    running.size = 32'110;
    list.transferBegan(running);
    running.bytes = 9'633;
    running.duration = std::chrono::seconds{10};
    list.transferMoved(running);
    window.findChild<TransferTable*>()->update();
    QApplication::processEvents();
    return save(window, folder, name);
}

bool saveAbout(const QDir& folder, const char* name) {
    const std::string text =
        aboutText("6.4.2", {{"Settings", "/home/anna/.config/Velmora.ini"},
                            {"Download folder", "/home/anna/Documents/Psion Files"},
                            {"Earlier copies", "/home/anna/.local/share/Velmora/Earlier copies"}});
    frmAbout dialog(QStringLiteral("Velmora 0.1.0 (1a2b3c4)"), QString::fromStdString(text), {});
    dialog.offerHelp([] {});
    dialog.show();
    QApplication::processEvents();
    return save(dialog, folder, name);
}

bool saveQuestion(const QDir& folder, const char* name) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Velmora"),
                    QStringLiteral("Transaction in progress! Do you really want to stop the server?"),
                    QMessageBox::Yes | QMessageBox::No);
    box.show();
    QApplication::processEvents();
    return save(box, folder, name);
}

// A check that has found its cause.
bool saveCableCheck(const QDir& folder, const char* name) {
    frmCableCheck dialog(
        "/dev/ttyUSB0", LineSettings(), [](StepObserver& observer, const std::function<bool()>& /*stop*/) {
            using Status = StepStatus;
            for (const StepFinding& step : std::initializer_list<StepFinding>{
                     {DoctorStep::Device, Status::Well, "/dev/ttyUSB0 is there and may be opened."},
                     {DoctorStep::Adapter, Status::Well, "FT232R, driver ftdi_sio."},
                     {DoctorStep::Settings, Status::Well, "The device is set to 9600 baud."},
                     {DoctorStep::ModemLines, Status::Noted,
                      "No line is on: nothing is connected or switched on, or the cable has only three "
                      "wires."},
                     {DoctorStep::Echo, Status::Well, "What is sent does not come back."},
                     {DoctorStep::Listening, Status::Fault, "231 bytes came that make no frame."},
                     {DoctorStep::OtherRates, Status::Fault,
                      "The Organiser uses 1200 baud, and the server 9600 baud."}}) {
                observer.found(step);
            }
            return Diagnosis{
                {Cause::WrongRate, 95, "The Organiser uses 1200 baud, and the server 9600 baud."}, {}};
        });
    dialog.show();
    QApplication::processEvents();
    QApplication::processEvents();
    return save(dialog, folder, name);
}

struct Window {
    const char* name;
    std::function<bool(const QDir& folder, const char* name)> save;
    bool inDocuments;
    bool darkInDocuments;
};

const std::vector<Window>& windows() {
    static const std::vector<Window> all = {
        {"setup",
         [](const QDir& folder, const char* name) {
             return saveSetup(folder, name, {test::exampleAdapter()});
         },
         true, true},
        {"setup-no-adapter", [](const QDir& folder, const char* name) { return saveSetup(folder, name, {}); },
         true, false},
        {"cable-check", saveCableCheck, true, true},
        {"about", saveAbout, true, false},
        {"protocol-monitor", saveMonitor, true, false},
        {"transfers", saveTransfers, true, true},
        {"question", saveQuestion, false, false},
    };
    return all;
}

bool saveScene(const Scene& scene, const QDir& folder, const char* name) {
    WindowRig rig;
    rig.window.setVersion("beta3", "build 1");
    rig.window.showFolder("/home/anna/Documents/Psion Files");
    rig.window.show();
    scene.play(rig);
    QApplication::processEvents();
    return save(rig.window, folder, name);
}

/// The pictures that the documents have.
bool savePictures(const QDir& folder) {
    const QPalette light = QApplication::palette();
    for (const Scene& scene : scenes()) {
        QApplication::setPalette(scene.dark ? darkPalette() : light);
        if (!saveScene(scene, folder, scene.name)) {
            return false;
        }
    }
    for (const Window& window : windows()) {
        QApplication::setPalette(light);
        if (window.inDocuments && !window.save(folder, window.name)) {
            return false;
        }
        QApplication::setPalette(darkPalette());
        const std::string dark = std::string(window.name) + "-dark";
        if (window.darkInDocuments && !window.save(folder, dark.c_str())) {
            return false;
        }
    }
    return true;
}

/// Every window, in light and dark.
bool saveEverything(const QDir& folder) {
    const QPalette light = QApplication::palette();
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? darkPalette() : light);
        const std::string ending = dark ? "-dark" : "";
        for (const Scene& scene : scenes()) {
            if (!scene.dark && !saveScene(scene, folder, (scene.name + ending).c_str())) {
                return false;
            }
        }
        for (const Window& window : windows()) {
            if (!window.save(folder, (window.name + ending).c_str())) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2 || argc > 3 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: velmora-screenshots FOLDER [LANGUAGE]\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    QApplication::setWindowIcon(programIcon());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const Translation translation(argc == 3 ? argv[2] : "en");
    return (argc == 3 ? saveEverything(folder) : savePictures(folder)) ? 0 : 1;
}
