#include "serial/port_report.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "base/byte_text.h"
#include "base/system_text.h"
#include "serial/adapter_key.h"
#include "serial/port_names.h"

namespace velmora {
namespace {

constexpr std::size_t kColumns = 5;
using Row = std::array<std::string, kColumns>;

/// Whether the number is the same in every run.
bool hasLastingNumber(const PortIdentity& port) {
    return port.number > 0 && port.number < PortNames::firstFreeNumber();
}

/// The name with the port's number; empty for a device without one.
std::string comName(const PortIdentity& port) {
    return hasLastingNumber(port) ? "COM" + std::to_string(port.number) : std::string();
}

/// What names the port whatever number it gets, as far as anything does.
std::string lastingName(const PortIdentity& port, const std::vector<PortIdentity>& ports) {
    if (const std::optional<AdapterKey> key = keyOf(port, ports)) {
        return adapterName(*key);
    }
    return hasLastingNumber(port) ? comName(port) : port.device;
}

std::string stateOf(const PortIdentity& port) {
    if (!port.holder.empty()) {
        return "in use by " + port.holder;
    }
    if (port.mayOpen) {
        return "free";
    }
    return port.groupToJoin.empty() ? "may not be opened" : "join the group \"" + port.groupToJoin + "\"";
}

std::string adapterOf(const PortIdentity& port) {
    std::string text = trimBlanks(port.maker + " " + port.product);
    if (!port.chip.empty() && text.find(port.chip) == std::string::npos) {
        text += (text.empty() ? "" : ", ") + port.chip;
    }
    return text.empty() ? port.driver : text;
}

/// How many columns a UTF-8 text takes, to a good approximation: one for each character.
std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    }));
}

}  // namespace

std::string portTable(const std::vector<PortIdentity>& ports) {
    if (ports.empty()) {
        return "No serial port is present.\n";
    }
    std::vector<Row> rows{{"Port", "Device", "Adapter", "State", "Lasting name for --port"}};
    for (const PortIdentity& port : ports) {
        // What an adapter tells of itself must not break the lines.
        rows.push_back({comName(port), port.device, showControls(adapterOf(port)), stateOf(port),
                        showControls(lastingName(port, ports))});
    }
    std::array<std::size_t, kColumns> widths{};
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < kColumns; ++column) {
            widths[column] = std::max(widths[column], widthOf(row[column]));
        }
    }
    std::string table;
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < kColumns; ++column) {
            line += row[column] + std::string(widths[column] - widthOf(row[column]) + 2, ' ');
        }
        table += trimRight(line) + '\n';
    }
    return table;
}

std::string portsAsJson(const std::vector<PortIdentity>& ports) {
    using Json = nlohmann::ordered_json;
    Json array = Json::array();
    for (const PortIdentity& port : ports) {
        Json object;
        object["port"] = comName(port);
        object["number"] = hasLastingNumber(port) ? port.number : 0;
        object["name"] = utf8OfSystemText(lastingName(port, ports));
        const std::array<std::pair<const char*, const std::string*>, 12> texts = {
            {{"device", &port.device},
             {"stableName", &port.stableName},
             {"vendorId", &port.vendorId},
             {"productId", &port.productId},
             {"serial", &port.serial},
             {"socket", &port.socket},
             {"maker", &port.maker},
             {"product", &port.product},
             {"driver", &port.driver},
             {"chip", &port.chip},
             {"holder", &port.holder},
             {"groupToJoin", &port.groupToJoin}}};
        for (const auto& [key, text] : texts) {
            object[key] = utf8OfSystemText(*text);
        }
        object["mayOpen"] = port.mayOpen;
        array.push_back(std::move(object));
    }
    constexpr int kIndent = 2;
    return array.dump(kIndent, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace velmora
