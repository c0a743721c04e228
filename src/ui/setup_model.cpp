#include "ui/setup_model.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/number_text.h"
#include "serial/adapter_key.h"
#include "serial/mode_string.h"

namespace velmora {

namespace {

void call(const std::function<void()>& function) {
    if (function) {
        function();
    }
}

}  // namespace

SetupModel::SetupModel(SerialPort& port, ServerOptions& options, TransferSettings& transfer, Probe probe,
                       DialogCalls dialog)
    : port_(port),
      options_(options),
      transfer_(transfer),
      probe_(std::move(probe)),
      dialog_(std::move(dialog)),
      portAtOpening_(port.CommPort()) {}

void SetupModel::load() {
    takeRate();
    portAtOpening_ = port_.CommPort();
    fileType_ = transfer_.DataFileType;
    wksDialect_ = transfer_.sheets.wksDialect;
    autoStart_ = options_.AutoStart;

    std::int16_t port = portAtOpening_;
    probing_ = true;
    probePorts(port);
    probing_ = false;
    if (closed_) {
        port_.setCommPort(portAtOpening_);
        return;
    }
    changed();
}

void SetupModel::takeRate() {
    const double rate = numericValue(port_.Settings());
    if (rate < kLowestRate || rate > kHighestRate) {
        return;
    }
    baud_ = static_cast<int>(rate);
    if (std::find(kBaudRates.begin(), kBaudRates.end(), *baud_) == kBaudRates.end()) {
        otherBaud_ = baud_;
    }
}

void SetupModel::probePorts(std::int16_t& port) {
    bool search = options_.AutoSelectPort;
    for (std::int16_t number = 1; number <= kLastSearchedPort; ++number) {
        const bool standard = number <= kStandardPorts;
        if (!standard && !search) {
            break;
        }
        const std::int32_t status = probe_(number);
        if (closed_) {
            return;
        }
        if (standard) {
            ShowPortStatus(number, status);
            changed();
        }
        if (search && status == kStatusAvailable) {
            port = number;
            search = false;
        }
    }
    // A number below 1 is no port that could be shown.
    if (search || port < 1) {
        selectPort(kOtherPort);
        setPortText("");
        return;
    }
    if (port <= kStandardPorts) {
        selectPort(port);
        return;
    }
    setPortText(std::to_string(port));
    selectPort(kOtherPort);
    const std::int32_t status = probe_(port);
    if (closed_) {
        return;
    }
    ShowPortStatus(kOtherPort, status);
    showStatusOfSelected();
}

void SetupModel::activated() {
    if (selected_ == kOtherPort) {
        call(dialog_.focusPortText);
    }
}

void SetupModel::selectPort(int index) {
    selected_ = index;
    okEnabled_ = index != kOtherPort || !portText_.empty();
    showStatusOfSelected();
    changed();
    if (index == kOtherPort) {
        call(dialog_.focusPortText);
    }
}

void SetupModel::setPortText(const std::string& text) {
    portText_ = text;
    ShowPortStatus(kOtherPort, kStatusNotChecked);
    okEnabled_ = !text.empty();
    if (selected_ == kOtherPort) {
        showStatusOfSelected();
    }
    changed();
}

void SetupModel::portTextPressed() {
    if (selected_ != kOtherPort) {
        selectPort(kOtherPort);
    }
}

void SetupModel::pbCheckPort_Click() {
    checkFailed_ = false;
    if (portText_.empty()) {
        call(dialog_.beep);
        return;
    }
    if (probing_ || closed_) {
        return;
    }
    probing_ = true;
    changed();
    const std::int32_t status = probe_(otherPortNumber());
    probing_ = false;
    if (closed_) {
        port_.setCommPort(portAtOpening_);
        return;
    }
    checkFailed_ = status >= kStatusInUse;
    ShowPortStatus(kOtherPort, status);
    statusText_ = mark(kOtherPort).toolTip;
    changed();
}

void SetupModel::pbOK_Click() {
    if (probing_ || closed_ || !okEnabled_) {
        return;
    }
    const std::int16_t number = chosenPort();
    keepAdapter(number);
    port_.setCommPort(number);
    if (baud_) {
        port_.setSettings(chosenSettings());
    }
    options_.AutoStart = autoStart_;
    options_.AutoSelectPort = false;
    transfer_.DataFileType = fileType_;
    transfer_.sheets.wksDialect = wksDialect_;
    close();
}

/// The adapter behind the number is what counts from now on. A port that stays as it was keeps its adapter,
/// also while that is not plugged in.
void SetupModel::keepAdapter(std::int16_t number) {
    const auto chosen = std::find_if(presentPorts_.begin(), presentPorts_.end(),
                                     [number](const PortIdentity& port) { return port.number == number; });
    if (chosen != presentPorts_.end()) {
        const std::optional<AdapterKey> key = keyOf(*chosen, presentPorts_);
        options_.PortIdentity = key ? key->text() : std::string();
    } else if (number != portAtOpening_) {
        options_.PortIdentity.clear();
    }
}

void SetupModel::pbCancel_Click() {
    if (closed_) {
        return;
    }
    port_.setCommPort(portAtOpening_);
    close();
}

void SetupModel::ShowPortStatus(int index, std::int32_t status) {
    const std::string number =
        index == kOtherPort ? plainText(numericValue(portText_)) : std::to_string(index);
    marks_[static_cast<std::size_t>(index - 1)] = portMark(number, status);
}

void SetupModel::showStatusOfSelected() {
    statusText_ = mark(selected_).toolTip;
}

std::int16_t SetupModel::chosenPort() const {
    return selected_ == kOtherPort ? otherPortNumber() : static_cast<std::int16_t>(selected_);
}

std::string SetupModel::chosenSettings() const {
    return baud_ ? std::to_string(*baud_) + ",N,8,1" : port_.Settings();
}

// A number too large for a port number is answered as the largest one is: there is no such port.
std::int16_t SetupModel::otherPortNumber() const {
    constexpr double kLargest = std::numeric_limits<std::int16_t>::max();
    return toInt16(std::clamp(numericValue(portText_), -kLargest, kLargest));
}

void SetupModel::changed() const {
    call(dialog_.changed);
}

void SetupModel::close() {
    closed_ = true;
    call(dialog_.close);
}

}  // namespace velmora
