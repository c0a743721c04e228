#include "simulated_server.h"

#include <algorithm>

#include "apps/server_core.h"
#include "platform/posix/posix_paths.h"
#include "support/no_yield.h"
#include "support/recording_view.h"
#include "support/scripted_box.h"

namespace velmora::simulation {
namespace {

/// The server's end of the line.
class ServerPort : public SerialPort {
  public:
    ServerPort(SimulatedLine& line, std::string settings) : line_(line), settings_(std::move(settings)) {}

    bool OpenPort() override {
        open_ = true;
        line_.discard(Direction::ToServer);
        return true;
    }
    bool ClosePort() override {
        open_ = false;
        return true;
    }
    bool Send(std::string_view data) override {
        requireOpen();
        if (!abandoned_) {
            line_.send(Direction::ToOrganiser, data);
        }
        return true;
    }
    bool GetInput(std::size_t maximum, std::string& text) override {
        requireOpen();
        text = line_.take(Direction::ToServer, maximum);
        return true;
    }
    std::int16_t CommPort() const override { return number_; }
    void setCommPort(std::int16_t number) override { number_ = number; }
    const std::string& Settings() const override { return settings_; }
    void setSettings(const std::string& settings) override { settings_ = settings; }
    bool PortOpen() const override { return open_; }
    void setPortOpen(bool open) override { open ? OpenPort() : ClosePort(); }
    std::int16_t InBufferCount() override {
        requireOpen();
        constexpr std::size_t kMost = 32'767;
        return static_cast<std::int16_t>(std::min(line_.waiting(Direction::ToServer), kMost));
    }
    bool DTREnable() const override { return dtr_; }
    void setDTREnable(bool enable) override { dtr_ = enable; }
    bool RTSEnable() const override { return rts_; }
    void setRTSEnable(bool enable) override { rts_ = enable; }
    /// From here on nothing is sent.
    void abandon() { abandoned_ = true; }

  private:
    void requireOpen() const {
        if (!open_) {
            throw CommError(kCommNotOpen, "Port not open", "simulation");
        }
    }
    SimulatedLine& line_;
    std::string settings_;
    std::int16_t number_ = 1;
    bool abandoned_ = false;
    bool open_ = false;
    bool dtr_ = false;
    bool rts_ = false;
};

class FixedZone : public ZoneSource {
  public:
    std::int32_t offsetMinutes() const override { return VirtualTime::kOffset.count(); }
    bool daylight() const override { return false; }
};

class NoTrace : public Trace {
  public:
    void trace(std::string_view, std::string_view, std::string_view) override {}
};

/// The number that a counter's label shows; below a million every digit is there.
std::uint64_t shownNumber(const std::string& label) {
    std::string digits = label;
    std::erase(digits, ',');
    return std::stoull(digits);
}

}  // namespace

struct SimulatedServer::Parts {
    Parts(VirtualTime& clock, SimulatedLine& line, SimulatedDisk& disk, const std::string& settings)
        : time(clock), port(line, settings), comTimer(clock), plpTimer(clock), displayTimer(clock) {
        core = std::make_unique<ServerCore>(ServerCoreParts{view,
                                                            box,
                                                            disk,
                                                            rules,
                                                            port,
                                                            trace,
                                                            comTimer,
                                                            plpTimer,
                                                            displayTimer,
                                                            time,
                                                            zone,
                                                            yield,
                                                            yield,
                                                            kProgramData,
                                                            {},
                                                            {},
                                                            {}});
    }

    VirtualTime& time;
    test::RecordingView view;
    test::ScriptedBox box;
    PosixPaths rules{"/"};
    ServerPort port;
    NoTrace trace;
    VirtualTimer comTimer;
    VirtualTimer plpTimer;
    VirtualTimer displayTimer;
    FixedZone zone;
    test::NoYield yield;
    std::unique_ptr<ServerCore> core;
};

SimulatedServer::SimulatedServer(VirtualTime& time, SimulatedLine& line, SimulatedDisk& disk,
                                 const std::string& settings)
    : parts_(std::make_unique<Parts>(time, line, disk, settings)) {
    ServerCore& core = *parts_->core;
    core.crc.load_CRCtable();
    core.transfer.DownloadPath = kDownloadFolder;
    disk.removeLeftovers(kDownloadFolder);
    core.applySettings(Settings());
    parts_->view.onClose = [&core] { core.controller().queryUnload(CloseReason::Program); };
    core.controller().setState(Offline);
}

SimulatedServer::~SimulatedServer() = default;

void SimulatedServer::change(const ServerSettings& settings) {
    ServerCore& core = *parts_->core;
    core.transfer.DataFileType = settings.dataFileType;
    core.transfer.StayInFolder = settings.stayInFolder;
    core.transfer.sheets.wksDialect = settings.commonWorksheets ? WksDialect::Common : WksDialect::Own;
    core.options.StopServer = settings.stopsOnExit;
    core.options.AllowShutdown = settings.endsOnShutdown;
}

void SimulatedServer::clickStartStop() {
    parts_->core->controller().pbStartStop_Click();
}

bool SimulatedServer::running() const {
    return parts_->core->controller().running();
}

bool SimulatedServer::ended() const {
    return parts_->core->controller().closed();
}

bool SimulatedServer::idle() const {
    return parts_->core->controller().state() == WaitLink;
}

bool SimulatedServer::isConsistent() const {
    return parts_->core->link().isConsistent();
}

Statistics SimulatedServer::statistics() const {
    const auto shown = [&](StatsLabel label) { return shownNumber(parts_->view.statsText(label)); };
    return {shown(StatsLabel::BytesRecv), shown(StatsLabel::BytesSent), shown(StatsLabel::FilesRecv),
            shown(StatsLabel::FilesSent)};
}

void SimulatedServer::resetStatistics() {
    parts_->core->controller().SetStats(0, 0);
}

void SimulatedServer::abandon() {
    parts_->port.abandon();
}

}  // namespace velmora::simulation
