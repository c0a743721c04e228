// A line whose examination can be stopped.
#pragma once

#include <exception>
#include <functional>
#include <utility>

#include "doctor/examined_line.h"

namespace velmora {

/// The user wants no more of an examination.
class ExaminationStopped : public std::exception {};

/// A line that throws ExaminationStopped from `read` as soon as that is wanted. It can still be written to,
/// so that the link can be taken down.
class StoppableLine : public ExaminedLine {
  public:
    /// `line` must outlive this object. `stopWanted` is asked every fiftieth of a second; none: never.
    StoppableLine(ExaminedLine& line, std::function<bool()> stopWanted)
        : line_(line), stopWanted_(std::move(stopWanted)) {}

    SystemError open(const LineSettings& settings) override { return line_.open(settings); }
    bool use(const LineSettings& settings) override { return line_.use(settings); }
    std::optional<LineSettings> settingsInUse() override { return line_.settingsInUse(); }
    std::optional<std::uint32_t> modemLines() override { return line_.modemLines(); }
    void write(std::string_view bytes) override { line_.write(bytes); }
    LineInput read(Time deadline) override;
    Time now() const override { return line_.now(); }

  private:
    ExaminedLine& line_;
    std::function<bool()> stopWanted_;
};

}  // namespace velmora
