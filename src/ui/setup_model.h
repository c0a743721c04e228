// The setup dialog without its controls: port, baud rate, automatic start, data file type, worksheet dialect.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/translatable.h"
#include "serial/port_identity.h"
#include "serial/serial_port.h"
#include "server/port_status.h"
#include "server/server_options.h"
#include "services/transfer_settings.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// The dialog's rules. The dialog forwards the user's actions and shows the state after each change.
///
/// Probing a port takes up to a quarter of a second, during which the dialog's events may run: what would
/// probe again or accept the dialog is then ignored, and Cancel ends the probing.
class SetupModel {
  public:
    static constexpr int kStandardPorts = 4;  ///< obPort(1..4)
    static constexpr int kOtherPort = 5;      ///< obPort(5), with its number in txtPortNo
    static constexpr int kLastSearchedPort = 32;
    static constexpr std::array<int, 3> kBaudRates{9600, 2400, 1200};
    /// The entries of cboFileType; the index is the data file type.
    static constexpr std::array<const char*, 4> kFileTypes{
        translatable("velmora::frmSetup", "ODB (tab-delimited)"),
        translatable("velmora::frmSetup", "TXT (tab-delimited)"),
        translatable("velmora::frmSetup", "CSV (comma)"),
        translatable("velmora::frmSetup", "CSV (semicolon)")};

    /// The entries of cboWksDialect; the index is the dialect of worksheets in WKS format.
    static constexpr std::array<const char*, 2> kWksDialects{
        translatable("velmora::frmSetup", "as the Organiser's own"),
        translatable("velmora::frmSetup", "for spreadsheet programs")};

    /// Tests a port and returns its PortStatusNumber; checkPort with its modem probe forced.
    using Probe = std::function<std::int32_t(std::int16_t port)>;

    /// What the model asks of the dialog; each may be missing.
    struct DialogCalls {
        std::function<void()> changed;        ///< show the state again
        std::function<void()> focusPortText;  ///< focus to txtPortNo, if the dialog is visible
        std::function<void()> beep;
        std::function<void()> close;
    };

    /// The port object, options and settings must outlive the model; ok() writes to them.
    SetupModel(SerialPort& port, ServerOptions& options, TransferSettings& transfer, Probe probe,
               DialogCalls dialog);

    /// The ports that are present, as the user sees them: OK keeps the adapter of the chosen one.
    void setPresentPorts(std::vector<PortIdentity> ports) { presentPorts_ = std::move(ports); }

    /// Reads the current values and probes the ports: COM1 to COM4 to mark them, further ones only to find a
    /// free one when none is configured.
    void load();
    /// The dialog became active.
    void activated();

    /// obPort(i) was selected, 1 to 5.
    void selectPort(int index);
    /// txtPortNo was changed; it may hold any text.
    void setPortText(const std::string& text);
    /// The left mouse button was pressed in txtPortNo.
    void portTextPressed();
    /// One of kBaudRates, or otherBaud, was selected.
    void selectBaud(int baud) { baud_ = baud; }
    void setAutoStart(bool on) { autoStart_ = on; }
    /// 0 to 3.
    void setFileType(std::int32_t type) { fileType_ = type; }
    void setWksDialect(WksDialect dialect) { wksDialect_ = dialect; }

    void pbCheckPort_Click();
    void pbOK_Click();
    /// Also for the dialog's close button.
    void pbCancel_Click();

    /// 1 to 5.
    int selectedPort() const { return selected_; }
    /// Colour and tool-tip of obPort(index), 1 to 5.
    const PortMark& mark(int index) const { return marks_[static_cast<std::size_t>(index - 1)]; }
    const std::string& portText() const { return portText_; }
    /// Whether the last pbCheckPort_Click found a port that cannot be opened or used.
    bool checkFailed() const { return checkFailed_; }
    /// The number of the selected port; 0 or less when there is none.
    std::int16_t chosenPort() const;
    /// The mode string that OK would set.
    std::string chosenSettings() const;
    /// Whether txtPortNo and pbCheckPort are enabled.
    bool portTextEnabled() const { return selected_ == kOtherPort; }
    bool okEnabled() const { return okEnabled_; }
    /// Text of lblStatus.
    const std::string& statusText() const { return statusText_; }
    /// The selected rate; nothing when the port has none.
    std::optional<int> baud() const { return baud_; }
    /// The rate of obBaud_other: the port's own when that is none of kBaudRates.
    std::optional<int> otherBaud() const { return otherBaud_; }
    bool autoStart() const { return autoStart_; }
    std::int32_t fileType() const { return fileType_; }
    WksDialect wksDialect() const { return wksDialect_; }
    /// Ports are being tested.
    bool probing() const { return probing_; }
    bool closed() const { return closed_; }

  private:
    void takeRate();
    void probePorts(std::int16_t& port);
    void ShowPortStatus(int index, std::int32_t status);
    void showStatusOfSelected();
    void keepAdapter(std::int16_t number);
    std::int16_t otherPortNumber() const;
    void changed() const;
    void close();

    SerialPort& port_;
    ServerOptions& options_;
    TransferSettings& transfer_;
    Probe probe_;
    DialogCalls dialog_;

    std::int16_t portAtOpening_ = 0;
    std::vector<PortIdentity> presentPorts_;
    int selected_ = 1;
    std::array<PortMark, kOtherPort> marks_;
    std::string portText_;
    std::string statusText_;
    bool okEnabled_ = true;
    std::optional<int> baud_;
    std::optional<int> otherBaud_;
    bool autoStart_ = false;
    std::int32_t fileType_ = 0;
    WksDialect wksDialect_ = WksDialect::Own;
    bool probing_ = false;
    bool checkFailed_ = false;
    bool closed_ = false;
};

}  // namespace velmora
