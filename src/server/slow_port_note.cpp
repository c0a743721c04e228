#include "server/slow_port_note.h"

#include "serial/adapter_latency.h"

namespace velmora {

void SlowPortNote::opened(const std::string& device, std::optional<std::chrono::milliseconds> heldBack,
                          const std::string& settings) {
    const auto line = parseModeString(settings);
    if (!heldBack || !line || !latencyMatters(*heldBack, *line)) {
        return;
    }
    const std::string advice = latencyAdvice(device, *heldBack);
    if (advice != told_) {
        told_ = advice;
        trace_.trace("COM", "latency", advice);
        window_.Report(advice);
    }
}

}  // namespace velmora
