// The server's objects and how they meet, for every program that serves.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/clock.h"
#include "base/computer_sleep.h"
#include "base/event_yield.h"
#include "base/files.h"
#include "base/message_box.h"
#include "base/path_rules.h"
#include "base/timer.h"
#include "link/crc.h"
#include "link/plp.h"
#include "link/trace.h"
#include "serial/device_facts.h"
#include "serial/port_identity.h"
#include "serial/port_names.h"
#include "serial/serial_port.h"
#include "server/link_control.h"
#include "server/main_view.h"
#include "server/port_keeper.h"
#include "server/server_controller.h"
#include "server/server_options.h"
#include "server/sleep_watch.h"
#include "services/boot_service.h"
#include "services/dispatcher.h"
#include "services/file_service.h"
#include "services/ftran_service.h"
#include "services/open_file.h"
#include "services/plan_service.h"
#include "services/planm_service.h"
#include "services/stop_request_service.h"
#include "services/strings.h"
#include "services/time_services.h"
#include "services/tools.h"
#include "services/transfer_settings.h"
#include "spreadsheet/spreadsheet.h"
#include "startup/settings.h"
#include "transfers/earlier_copies.h"
#include "transfers/transfer_log.h"
#include "transfers/transfers.h"

namespace velmora {

/// What a program gives its server; all of it must outlive the server.
struct ServerCoreParts {
    MainView& view;
    MessageBox& box;
    Files& files;
    const PathRules& rules;
    SerialPort& port;
    Trace& trace;
    Timer& ComTimer;
    Timer& PLPtimer;
    Timer& DisplayTimer;
    const Clock& clock;
    const ZoneSource& zone;
    EventYield& yield;
    EventYield& readYield;                            ///< what the link uses between two reads
    std::string programData;                          ///< KnownFolders::programData()
    std::function<std::string(int number)> portName;  ///< as ServerParts has it
    std::function<bool()> portWatched;                ///< as ServerParts has it
    std::function<void()> started;                    ///< as ServerParts has it
    /// What finds the port's adapter and waits for it; without it a lost port stays lost.
    struct PortKeeping {
        Timer& timer;
        PortNames& names;
        std::function<std::vector<PortIdentity>()> list;
        std::function<DeviceFacts(const std::string& device)> facts;
        std::function<void(const std::string& line)> tell;  ///< may be missing
        std::function<WaitFor()> waitFor;
    };
    std::optional<PortKeeping> portKeeping = {};
    /// What the computer is kept awake by; without it its sleep goes unnoticed.
    struct SleepWatching {
        ComputerSleep& sleep;
        Timer& timer;
    };
    std::optional<SleepWatching> sleepWatching = {};
};

/// One object of each kind, from the settings to the services, connected.
class ServerCore {
  public:
    explicit ServerCore(const ServerCoreParts& parts);
    ~ServerCore();
    ServerCore(const ServerCore&) = delete;
    ServerCore& operator=(const ServerCore&) = delete;

    // Filled by start-up before the server first starts.
    Strings strings;
    ServerOptions options;
    TransferSettings transfer;
    EarlierCopiesSettings copies;
    Crc crc;

    /// Takes over the settings that only the services need, and removes the earlier copies whose time is
    /// over; call it when start-up has read them.
    void applySettings(const Settings& settings);

    /// As PLP has it.
    std::chrono::nanoseconds soonestFrame() const { return link_.soonestFrame(); }
    /// Takes the link down and closes the port, when they are not yet; tells whoever watches them.
    void stopLink();
    /// Adds somebody who hears of all transfers; it must outlive the server.
    void observe(TransferObserver& observer) { transfers_.observe(observer); }
    /// What turns an Organiser's names into paths.
    const FileNameMapper& names() const { return tools_; }
    EarlierCopies& earlierCopies() { return earlierCopies_; }
    ServerController& controller() { return controller_; }
    const ServerController& controller() const { return controller_; }
    /// An adapter came, went or changed.
    void adaptersChanged();
    /// Why the port's adapter cannot be told; empty when it can.
    std::string portComplaint() const { return keeper_ ? keeper_->complaint() : std::string(); }
    /// Whether the server waits for its port.
    bool waitsForPort() const { return keeper_ && keeper_->waiting(); }
    const PLP& link() const { return link_; }

  private:
    /// The link as the controller drives it.
    class LinkOfController : public LinkControl {
      public:
        explicit LinkOfController(PLP& link) : link_(link) {}
        std::int32_t PLP_Start(SerialPort& port, Timer& timer) override {
            return link_.PLP_Start(port, timer);
        }
        void PLP_Stop() override { link_.PLP_Stop(); }
        std::int32_t PLP_ReceiveEvent() override { return link_.PLP_ReceiveEvent(); }
        void PLP_Timeout() override { link_.PLP_Timeout(); }

      private:
        PLP& link_;
    };

    Tools tools_;
    std::optional<PortKeeper> keeper_;
    std::optional<SleepWatch> sleepWatch_;
    ServerController controller_;
    PLP link_;
    LinkOfController linkControl_;
    ServiceDispatcher dispatcher_;
    TransferLog transferLog_;
    Transfers transfers_;
    EarlierCopies earlierCopies_;
    OpenFile openFile_;
    Spreadsheet spreadsheet_;
    TimeServices timeServices_;

    FtranService ftran_;
    FileService file_;
    BootService boot_;
    StopRequestService exit_;
    StopRequestService shutdown_;
    PlanService plan_;
    PlanmService planm_;
    TimeService time_;
    TimeService gmt_;
    TimeService timeInfo_;
};

}  // namespace velmora
