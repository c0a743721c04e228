// A serial device as the line that the doctor examines.
#pragma once

#include <functional>
#include <string>

#include "base/event_yield.h"
#include "doctor/examined_line.h"
#include "serial/comm_device.h"
#include "serial/comm_plain.h"
#include "serial/waiting_reader.h"

namespace velmora {

class CommExaminedLine : public ExaminedLine {
  public:
    /// Examines the port called `port` ("COM7") on `device`, which is closed and is called `name` in
    /// messages. `now` gives a time that only grows. The yield's events run while the line is waited for, so
    /// that a window can be seen to live. All must outlive this object.
    CommExaminedLine(CommDevice& device, std::string port, std::string name, EventYield& yield,
                     std::function<Time()> now);
    ~CommExaminedLine() override;
    CommExaminedLine(const CommExaminedLine&) = delete;
    CommExaminedLine& operator=(const CommExaminedLine&) = delete;

    SystemError open(const LineSettings& settings) override;
    bool use(const LineSettings& settings) override;
    std::optional<LineSettings> settingsInUse() override;
    std::optional<std::uint32_t> modemLines() override;
    void write(std::string_view bytes) override;
    LineInput read(Time deadline) override;
    Time now() const override { return now_(); }

  private:
    void check(SystemError error) const;

    CommDevice& device_;
    std::string port_;
    std::string name_;
    std::function<Time()> now_;
    PlainComm plain_;
    WaitingReader reader_;
};

}  // namespace velmora
