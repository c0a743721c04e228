// The protocol trace as lines of text: what each entry reads like and which entries are wanted.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "link/idle_polling.h"
#include "link/link_state.h"
#include "link/trace.h"

namespace velmora {

/// Where trace lines go and who decides which: the debug window, or a console.
class TraceSink {
  public:
    virtual ~TraceSink() = default;

    /// Whether any line is wanted at all.
    virtual bool logging() const = 0;
    /// Whether entries of a category, named in capitals, are wanted. Asked for every category of every entry
    /// while logging, so a sink that lists the categories it has met learns of them here (TraceCategories
    /// keeps such a list).
    virtual bool categoryEnabled(std::string_view category) = 0;
    /// Takes one line, without an end of line.
    virtual void addline(const std::string& text) = 0;
    /// Takes one that tells of the polling of an idle link (IdlePolling); a sink that does not tell these
    /// apart takes it as any other.
    virtual void addPollingLine(const std::string& text) { addline(text); }
};

/// Describes a frame as on the wire: its type with the sequence number, for DATA the length, and the bytes of
/// its data with their stuffing, unprintable ones as "<", two hexadecimal digits, ">". Takes any bytes; fewer
/// than five have no type. A type byte outside the known ones reads as DATA with an odd number.
std::string describeFrame(std::string_view frame);

/// The name of a state, padded with blanks to ten characters.
std::string linkStateName(LinkState state);

/// Turns trace entries into lines and hands those that are wanted to a sink. Nothing is built for the others.
class Debug : public Trace {
  public:
    /// The sink must outlive this object.
    explicit Debug(TraceSink& sink) : sink_(sink) {}

    /// Tells where the link state for entries about it comes from; until then the link counts as idle.
    void showStateOf(std::function<LinkState()> source) { linkState_ = std::move(source); }

    void trace(std::string_view categories, std::string_view label, std::string_view data) override;

  private:
    bool wanted(std::string_view categories);
    std::string line(std::string_view categories, std::string_view label, std::string_view data) const;
    LinkState state() const { return linkState_ ? linkState_() : LinkState::Idle; }

    TraceSink& sink_;
    IdlePolling polling_;
    std::function<LinkState()> linkState_;
};

}  // namespace velmora
