// A line on a clock of its own, ill or not, with a handheld at the other end or none.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "doctor/examined_line.h"
#include "doctor/simulated_handheld.h"
#include "ill_line.h"
#include "serial/wire_time.h"

namespace velmora::test {

/// Bytes take the time that they take at the rate of their sender, and are sampled with the settings that the
/// receiver has when they arrive.
class SimulatedLine : public ExaminedLine {
  public:
    /// An Organiser's own settings stand in the illness; it is well, too, when it has nothing but these.
    SimulatedLine(const tools::Illness& illness, std::uint64_t seed) : line_(illness, seed) {
        handheldSettings_ = illness.handheld.value_or(LineSettings());
    }

    // What a test arranges.
    std::unique_ptr<SimulatedHandheld> handheld;
    SystemError openError = kSuccess;
    std::optional<std::uint32_t> lines;  ///< modem lines
    bool tellsSettings = true;
    bool hasParity = true;                  ///< as a pseudo-terminal has none
    bool tellsErrors = true;                ///< counts framing errors and breaks
    std::optional<std::uint32_t> onlyRate;  ///< the only one that the device takes
    std::optional<LineSettings> told;       ///< what it says in place of what it was set to
    std::optional<Time> busyAt;             ///< when the computer does something else for a second
    std::optional<Time> lostAt;             ///< when the adapter is pulled
    std::optional<Time> goneAt;             ///< when the handheld gives up

    SystemError open(const LineSettings& settings) override {
        settings_ = settings;
        return openError;
    }
    bool use(const LineSettings& settings) override {
        if (onlyRate && settings.baud != *onlyRate) {
            return false;
        }
        settings_ = settings;
        if (!hasParity) {
            settings_.parity = Parity::None;
            settings_.dataBits = LineSettings().dataBits;
        }
        inbox_ = {};
        return true;
    }
    std::optional<LineSettings> settingsInUse() override {
        return tellsSettings ? std::optional(told.value_or(settings_)) : std::nullopt;
    }
    std::optional<std::uint32_t> modemLines() override { return lines; }
    void write(std::string_view bytes) override {
        check();
        const LineSettings sender = settings_;
        const Time arrival = arrivalOf(bytes.size(), sender, outFree_);
        events_.emplace(arrival, [this, sent = std::string(bytes), sender] {
            arrive(line_.backToComputer(sent, sender));
            const auto heard = line_.toHandheld(sent, sender);
            if (handheld) {
                send(handheld->receive(understood(heard), now_));
            }
        });
    }
    LineInput read(Time deadline) override {
        check();
        if (goneAt && now_ >= *goneAt) {
            handheld.reset();
        }
        if (busyAt && now_ >= *busyAt) {
            busyAt.reset();
            const Time until = now_ + std::chrono::seconds(1);
            while (step(until)) {
            }
        }
        while (inbox_.bytes.empty() && step(deadline)) {
        }
        return std::exchange(inbox_, {});
    }
    Time now() const override { return now_; }

  private:
    using Event = std::function<void()>;

    void check() const {
        if (lostAt && now_ >= *lostAt) {
            throw LineLost("The line was cut.");
        }
    }
    Time arrivalOf(std::size_t bytes, const LineSettings& sender, Time& free) {
        free = std::max(free, now_) +
               std::chrono::ceil<Time>(byteTime(sender) * static_cast<std::int64_t>(bytes));
        return free;
    }
    /// The handheld drops a byte in which it sees an error.
    static std::string understood(const tools::IllLine::Bytes& bytes) {
        std::string text;
        for (const SampledByte& byte : bytes) {
            if (!byte.framingError && !byte.parityError) {
                text += byte.value;
            }
        }
        return text;
    }
    void arrive(const tools::IllLine::Bytes& bytes) {
        constexpr std::uint32_t kParity = 4;
        constexpr std::uint32_t kFraming = 8;
        constexpr std::uint32_t kBreak = 16;
        inbox_.bytes += tools::valuesOf(bytes);
        for (const SampledByte& byte : bytes) {
            const std::uint32_t flags = (byte.parityError ? kParity : 0) | (byte.lineBreak      ? kBreak
                                                                            : byte.framingError ? kFraming
                                                                                                : 0);
            inbox_.errorFlags |= tellsErrors ? flags : 0;
        }
    }
    void send(const std::vector<SimulatedHandheld::Sent>& frames) {
        for (const auto& [at, frame] : frames) {
            events_.emplace(at, [this, bytes = frame] {
                events_.emplace(arrivalOf(bytes.size(), handheldSettings_, inFree_),
                                [this, bytes] { arrive(line_.toComputer(bytes, settings_)); });
            });
        }
    }
    /// Goes to the next thing that happens, or to the deadline; false there.
    bool step(Time deadline) {
        const Time unasked = line_.nextUnasked() == tools::IllLine::Time::max()
                                 ? Time::max()
                                 : std::chrono::ceil<Time>(line_.nextUnasked());
        const Time timer = handheld ? handheld->nextTimer() : Time::max();
        const Time event = events_.empty() ? Time::max() : events_.begin()->first;
        const Time next = std::min({unasked, timer, event});
        if (next > deadline) {
            now_ = std::max(now_, deadline);
            return false;
        }
        now_ = std::max(now_, next);
        if (next == event) {
            const Event happens = events_.begin()->second;
            events_.erase(events_.begin());
            happens();
        } else if (next == timer) {
            send({handheld->tick()});
        } else {
            arrive(line_.unasked(now_, settings_));
        }
        return true;
    }

    tools::IllLine line_;
    LineSettings settings_;
    LineSettings handheldSettings_;
    LineInput inbox_;
    Time now_{0};
    Time outFree_{0};
    Time inFree_{0};
    std::multimap<Time, Event> events_;
};

}  // namespace velmora::test
