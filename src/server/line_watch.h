// Telling why nothing happens while the server waits for a link.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "doctor/cause.h"
#include "doctor/heard.h"
#include "link/crc.h"
#include "link/link_state.h"
#include "serial/mode_string.h"
#include "serial/port_observer.h"

namespace velmora {

/// What a line watch asks and tells.
struct LineWatchParts {
    const Crc& crc;  ///< loaded before the port first opens
    const Clock& clock;
    std::function<LinkState()> linkState;
    std::function<std::string()> settings;  ///< the port's mode string
    std::string findOut;                    ///< what helps when nothing comes, one sentence
    /// Shows two lines to the user.
    std::function<void(const std::string& text2, const std::string& text3)> tell;
};

/// Listens at the port while the link is sought. When bytes come for two seconds and make no frame, it tells
/// what they probably are; when nothing has come for a minute since the port was opened, it tells of the
/// doctor. Each is told once, the first again when the likely cause changes. It looks at the time whenever
/// the link sends a request, and a frame that comes ends what it suspects.
class LineWatch : public PortObserver {
  public:
    static constexpr std::chrono::seconds kStrangeTime{2};
    static constexpr std::chrono::seconds kSilentTime{60};

    explicit LineWatch(LineWatchParts parts);

    void portOpened(std::intptr_t handle) override;
    void portClosing(std::intptr_t /*handle*/) override {}
    void portRead(std::string_view bytes) override;
    void portWriting(std::string_view bytes) override;

  private:
    using Time = std::chrono::microseconds;

    void tellOfStrangeBytes();

    LineWatchParts parts_;
    std::optional<Listener> listener_;  // while bytes come that make no frame
    Time strangeSince_{0};
    Time lastHeard_{0};
    Time silentSince_{0};
    bool everHeard_ = false;  // since the port was opened
    bool silenceTold_ = false;
    std::optional<Cause> told_;
};

}  // namespace velmora
