#include <filesystem>
#include <fstream>

#include "serial/adapter_latency.h"

namespace velmora {

std::optional<std::chrono::milliseconds> latencyTimer(const std::string& device, const std::string& devices) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path node = fs::canonical(device, error);
    if (error) {
        return std::nullopt;
    }
    std::ifstream file(fs::path(devices) / node.filename() / "device" / "latency_timer");
    int milliseconds = 0;
    if (!(file >> milliseconds) || milliseconds < 0) {
        return std::nullopt;
    }
    return std::chrono::milliseconds(milliseconds);
}

std::string latencyTip(const std::string& /*device*/, const std::string& /*settings*/) {
    return {};
}

}  // namespace velmora
